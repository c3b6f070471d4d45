// SPDX-License-Identifier: MIT
#include "forms/frmTanks/SheetPages.h"

#include "forms/frmTanks/TankFields.h"
#include "shell/layout/CellLayout.h"
#include "shell/layout/Panels.h"
#include "shell/layout/WrappingRow.h"

#include <QRadioButton>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

/// A caption, the options behind it.
void addOptions(WrappingRow& row, const char* caption, const Options& options)
{
    row.startGroup();
    row.addWidget(new QLabel(caption));
    row.addWidget(options.makeSwitch());
}

void addTable(QVBoxLayout& column, RowTable& table)
{
    column.addWidget(table.makeHeading());
    column.addWidget(&table);
}

} // namespace

GradesPage::GradesPage(SheetInHand& work, SheetBinding& binding, const FieldBoxes& fields)
    : m_work(work), m_table(new GradesTable(ListKind::Cargo, binding)),
      m_optMovement(new Options(
          this, "optMovement",
          {{"loading", "The cargo is loaded"}, {"discharge", "The cargo is discharged"}})),
      m_optEdition(new Options(
          this, "optEdition",
          {{"1980", "Tables of the edition of 1980"}, {"2004", "Tables of the edition of 2004"}})),
      m_optRounding(new Options(this, "optRounding",
                                {{"5 decimals", "Factors with five decimals"},
                                 {"4 decimals", "Factors with four decimals"},
                                 {"procedure of 1980", "Rounded as the procedure of 1980"}})),
      m_optAir(new Options(this, "optAir",
                           {{"ρ - 1.1", "Weight in air with density less 1.1"},
                            {"table 56", "Weight in air by table 56"}})),
      m_optVolume(new Options(
          this, "optVolume",
          {{"m³", "Observed volumes in cubic metres"}, {"bbl", "Observed volumes in barrels"}})),
      m_optTemperature(new Options(this, "optTemperature",
                                   {{"°C", "Temperatures in degrees Celsius"},
                                    {"°F", "Temperatures in degrees Fahrenheit"}}))
{
    auto* column = new QVBoxLayout(this);
    layOutBody(*column);
    auto* head = new QWidget;
    auto* row = new WrappingRow(head);
    row->setGap(2 * head->fontMetrics().averageCharWidth());
    const std::array rooms{"Rotterdam, berth 0000000000", "2038/08/04 20:38 ", "2038/08/04 20:38 "};
    for (std::size_t field = PortBox; field < BunkerTimes; ++field) {
        auto* caption = new QLabel(SheetFields[field].caption);
        caption->setBuddy(fields[field]);
        fields[field]->setFixedWidth(head->fontMetrics().horizontalAdvance(rooms[field]));
        row->startGroup();
        row->addWidget(caption);
        row->stayClose();
        row->addWidget(fields[field]);
    }
    row->addStretch();
    fields[BunkerTimes - 1]->setNext(m_table->boxes().front()); // not the next page's
    column->addWidget(head);
    column->addWidget(sectionHead("Grades and bill of lading, or outturn"));
    addTable(*column, *m_table);
    column->addWidget(sectionHead("How it is calculated"));
    column->addWidget(layOutChoices());
    column->addStretch();
}

QWidget* GradesPage::layOutChoices()
{
    auto* choices = new QWidget;
    auto* row = new WrappingRow(choices);
    addOptions(*row, "Movement", *m_optMovement);
    addOptions(*row, "Tables of", *m_optEdition);
    addOptions(*row, "Factor", *m_optRounding);
    addOptions(*row, "In air", *m_optAir);
    addOptions(*row, "Volumes in", *m_optVolume);
    addOptions(*row, "Temperatures in", *m_optTemperature);
    row->addStretch();
    for (Options* each :
         {m_optMovement, m_optEdition, m_optRounding, m_optAir, m_optVolume, m_optTemperature})
        connect(each, &QButtonGroup::idClicked, this,
                [this, each] { takeChoices(each->buttons().front()->objectName()); });
    return choices;
}

void GradesPage::takeChoices(const QString& option)
{
    m_work.type(
        [this](TankSheet& sheet) {
            sheet.choices = {static_cast<NavFunc113::CrudeEdition>(m_optEdition->chosen()),
                             static_cast<NavFunc113::FactorRounding>(m_optRounding->chosen()),
                             static_cast<TankAirWeight>(m_optAir->chosen()),
                             static_cast<TankVolumeUnit>(m_optVolume->chosen()),
                             static_cast<TankTemperatureUnit>(m_optTemperature->chosen()),
                             static_cast<Movement>(m_optMovement->chosen())};
        },
        option.toStdString());
    m_work.endTyping();
    emit chosen();
}

void GradesPage::fill()
{
    const TankChoices& choices = m_work.sheet().choices;
    m_optMovement->choose(static_cast<int>(choices.movement));
    m_optEdition->choose(static_cast<int>(choices.edition));
    m_optRounding->choose(static_cast<int>(choices.rounding));
    m_optAir->choose(static_cast<int>(choices.air));
    m_optVolume->choose(static_cast<int>(choices.volume));
    m_optTemperature->choose(static_cast<int>(choices.temperature));
}

TotalsPage::TotalsPage(const ResultLabels<TanksShown>& labels)
    : m_optTotals(new Options(this, "optTotals",
                              {{"before", "Totals of the survey before"},
                               {"after", "Totals of the survey after"},
                               {"loaded or discharged", "Totals of what was moved"}})),
      m_totals(new TotalsTable), m_compare(new CompareTable)
{
    auto* column = new QVBoxLayout(this);
    layOutBody(*column);
    auto* figures = new QWidget;
    auto* cells = new CellLayout(figures, 2, Qt::Horizontal);
    for (const std::size_t each : {LabelAgainst, LabelByExperience, LabelOnBoard, LabelTotalMoved})
        cells->addCell({new QLabel(TanksResults[each].caption), labels[each]});
    column->addWidget(figures);
    column->addWidget(sectionHead("Totals"));
    auto* options = new QWidget;
    auto* row = new WrappingRow(options);
    addOptions(*row, "Of", *m_optTotals);
    row->addStretch();
    m_optTotals->choose(static_cast<int>(TotalsOf::Moved));
    column->addWidget(options);
    addTable(*column, *m_totals);
    column->addWidget(sectionHead("Ship against bill of lading, or outturn"));
    addTable(*column, *m_compare);
    column->addStretch();
    connect(m_optTotals, &QButtonGroup::idClicked, this, &TotalsPage::chosen);
}

void TotalsPage::show(const TankReckoning& reckoning)
{
    m_totals->show(totalsRows(reckoning, static_cast<TotalsOf>(m_optTotals->chosen())));
    m_compare->show(compareRows(reckoning));
}

ExperiencePage::ExperiencePage(SheetBinding& binding, const ResultLabels<TanksShown>& labels)
    : m_tables{new VoyagesTable(Movement::Loading, binding),
               new VoyagesTable(Movement::Discharge, binding)}
{
    auto* row = new QHBoxLayout(this);
    layOutBody(*row);
    constexpr std::array heads{"Loading", "Discharge"};
    for (std::size_t i = 0; i < m_tables.size(); ++i) {
        auto* group = new QWidget;
        auto* column = new QVBoxLayout(group);
        layOutBody(*column);
        column->addWidget(sectionHead(heads[i]));
        auto* figures = new QWidget;
        auto* cells = new CellLayout(figures, 3, Qt::Horizontal);
        for (const std::size_t each : {LabelMeans + i, LabelCounted + i, LabelSums + i})
            cells->addCell({new QLabel(TanksResults[each].caption), labels[each]});
        column->addWidget(figures);
        addTable(*column, *m_tables[i]);
        column->addStretch();
        row->addWidget(group);
    }
}

void ExperiencePage::show(const TanksShown& shown)
{
    for (std::size_t i = 0; i < m_tables.size(); ++i)
        m_tables[i]->show(shown.experience[i]);
}

} // namespace korvel
