// SPDX-License-Identifier: MIT
#include "forms/frmTanks/TankListPage.h"

#include "forms/frmTanks/TankFields.h"
#include "forms/frmTanks/TankModel.h"
#include "shell/controls/RowsView.h"
#include "shell/layout/Panels.h"
#include "shell/layout/WrappingRow.h"
#include "shell/machine/AsQString.h"
#include "shell/program/Program.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr std::array widest{
    "000 !", "Slop tank P 00",     "Previous: sounding", "00000.000", "0.00000",   "000000.000",
    "000",   "Previous: sounding", "00000.000",          "0.00000",   "000000.000"};
static_assert(widest.size() == TankModel::Columns);

constexpr std::array<std::string TankReading::*, TankFieldCount> readingTexts{
    nullptr,
    &TankReading::sounding,
    &TankReading::volume,
    &TankReading::water,
    &TankReading::temperature,
    &TankReading::grade};

/// A text that stays as it is while somebody types in it.
void put(EntryBox* box, const std::string& text)
{
    const QString shown = asQString(text);
    if (box->text() != shown) box->setText(shown);
}

} // namespace

TankListPage::TankListPage(Program& program, SheetInHand& work, Parts parts)
    : m_work(work), m_parts(std::move(parts)), m_model(new TankModel(work, m_parts.kind, this)),
      m_table(new RowsView(*m_model,
                           {widest, RowsView::Look::nothing, 8, 3,
                            [&program]() -> const ColourScheme& { return program.colours(); },
                            [&work, kind = m_parts.kind] { return work.row(kind); }},
                           this))
{
    m_table->setObjectName(m_parts.table);
    m_table->setAccessibleName(m_parts.kind == ListKind::Cargo
                                   ? "Tanks; a key goes to the box of its column"
                                   : "Bunker tanks; a key goes to the box of its column");
    const bool isCargo = m_parts.kind == ListKind::Cargo;
    m_optSurvey = isCargo ? new Options(this, m_parts.options,
                                        {{"&Before", "Survey before loading or discharge"},
                                         {"A&fter", "Survey after loading or discharge"}})
                          : new Options(this, m_parts.options,
                                        {{"Previo&us", "Previous survey of the bunkers"},
                                         {"&Now", "Survey of the bunkers now"}});
    for (QLabel*& unit : m_units)
        unit = new QLabel;
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_table, 1, Qt::AlignLeft); // as wide as its columns
    column->addWidget(layOutBoxes());
    connectBoxes();
    showUnits();
}

QWidget* TankListPage::layOutBoxes()
{
    auto* panel = new QWidget;
    auto* lines = new QVBoxLayout(panel);
    lines->setContentsMargins(0, 0, 0, 0);
    auto* row = new WrappingRow;
    lines->addLayout(row);
    row->setGap(2 * panel->fontMetrics().averageCharWidth());
    row->startGroup();
    row->addWidget(m_optSurvey->makeSwitch());
    const std::array fields = m_parts.kind == ListKind::Cargo ? CargoTankFields : BunkerTankFields;
    constexpr std::array<const char*, TankFieldCount> rooms{
        "Slop tank P 0", "00.000 m 000", "0000000.0000", "00000.000", "-00.000", "Gasoline 95 0"};
    for (std::size_t field = 0; field < TankFieldCount; ++field) {
        EntryBox* box = m_parts.boxes[field];
        box->setFixedWidth(panel->fontMetrics().horizontalAdvance(rooms[field]) +
                           panel->fontMetrics().horizontalAdvance("0"));
        auto* caption = new QLabel(fields[field].caption);
        caption->setBuddy(box);
        row->startGroup();
        row->addWidget(caption);
        row->stayClose();
        row->addWidget(box);
        if (field < TankVolume || field > TankTemperature) continue;
        row->stayClose();
        row->addWidget(m_units[field - TankVolume]);
    }
    row->addStretch();
    auto* results = new WrappingRow;
    lines->addLayout(results);
    results->setGap(row->spacing());
    layOutResults(*results);
    return panel;
}

void TankListPage::layOutResults(WrappingRow& row)
{
    const auto& labels = m_parts.results.all();
    for (std::size_t i = 0; i < labels.size(); ++i) {
        labels[i]->setRoom(tankRoom);
        row.startGroup();
        row.addWidget(new QLabel(m_parts.captions[i]));
        row.stayClose();
        row.addWidget(labels[i]);
    }
    row.addStretch();
}

void TankListPage::connectBoxes()
{
    const FieldBoxes& boxes = m_parts.boxes;
    for (EntryBox* box : boxes.all()) {
        connect(box, &QLineEdit::textChanged, this, [this, box] {
            if (!m_isFilling) typeRow(box->objectName());
        });
        box->onLeave = [this] { m_work.endTyping(); };
        box->onUndo = [this] {
            emit undoWanted();
            return true;
        };
        box->installEventFilter(this);
    }
    setEntryOrder(boxes.all());
    boxes[TankGrade]->onEnter = [this] { goToRow(m_work.row(m_parts.kind) + 1); };
    connect(m_optSurvey, &QButtonGroup::idClicked, this,
            [this](int survey) { goToSurvey(static_cast<TankSurvey>(survey)); });
    connect(m_table, &RowsView::rowChosen, this, &TankListPage::goToRow);
    connect(m_table, &RowsView::typed, this, &TankListPage::typeInto);
    connect(m_table, &RowsView::deleteWanted, this, &TankListPage::deleteWanted);
    connect(m_table, &RowsView::pasteWanted, this, &TankListPage::pasteWanted);
}

void TankListPage::goToRow(std::size_t row)
{
    m_work.goToRow(m_parts.kind, row);
    fill();
    emit changed();
    if (auto* box = dynamic_cast<EntryBox*>(focusWidget())) box->selectAll();
}

void TankListPage::goToSurvey(TankSurvey survey)
{
    m_work.goToSurvey(m_parts.kind, survey);
    fill();
    emit changed();
}

void TankListPage::fill()
{
    m_isFilling = true;
    const TankRow row = m_work.rowInHand(m_parts.kind);
    const TankSurvey survey = m_work.survey(m_parts.kind);
    put(m_parts.boxes[TankNameBox], row.tank);
    for (std::size_t field = TankSounding; field < TankFieldCount; ++field)
        put(m_parts.boxes[field],
            row.surveys[static_cast<std::size_t>(survey)].*readingTexts[field]);
    m_optSurvey->choose(static_cast<int>(survey));
    m_isFilling = false;
}

void TankListPage::typeRow(const QString& box)
{
    TankRow row = m_work.rowInHand(m_parts.kind);
    const auto survey = static_cast<std::size_t>(m_work.survey(m_parts.kind));
    row.tank = m_parts.boxes[TankNameBox]->value();
    for (std::size_t field = TankSounding; field < TankFieldCount; ++field)
        row.surveys[survey].*readingTexts[field] = m_parts.boxes[field]->value();
    m_work.typeRow(m_parts.kind, std::move(row), box.toStdString());
}

void TankListPage::showUnits()
{
    const TankChoices& choices = m_work.sheet().choices;
    for (QLabel* unit : {m_units[0], m_units[1]})
        unit->setText(unitOf(choices.volume));
    m_units[2]->setText(unitOf(choices.temperature));
    const NumberField temperature = temperatureField(choices.temperature);
    m_parts.boxes[TankTemperature]->setLimits(limitsInWords(temperature.low, temperature.high));
}

void TankListPage::show()
{
    m_table->follow(true);
    m_model->follow();
    m_table->showRowInHand();
    m_table->follow(false);
    showUnits();
    const TankReckoning& reckoning = m_work.reckoning(m_parts.kind);
    const std::size_t row = m_work.row(m_parts.kind);
    if (row >= reckoning.rows()) return m_parts.results.show(TankTexts());
    const TankSurvey survey = m_work.survey(m_parts.kind);
    m_parts.results.show(
        tankTexts(m_work.rowInHand(m_parts.kind).surveys[static_cast<std::size_t>(survey)],
                  reckoning.tank(row, survey), reckoning));
}

/// A key in the table goes to the box of its column, of the survey that the column is of.
void TankListPage::typeInto(int column, const QString& text)
{
    std::size_t field = TankNameBox;
    if (const auto place = TankModel::placeOf(column)) {
        constexpr std::array fields{TankSounding, TankVolume, TankTemperature, TankGrade};
        field = fields[place->column];
        goToSurvey(place->survey);
    }
    m_parts.boxes[field]->setFocus(Qt::TabFocusReason);
    if (!text.isEmpty()) m_parts.boxes[field]->insert(text); // all is selected
}

bool TankListPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) return ScrolledBody::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->matches(QKeySequence::Redo)) {
        emit redoWanted();
        return true;
    }
    if (pastesRows(*key)) {
        emit pasteWanted();
        return true;
    }
    const int by = rowsWanted(*key);
    if (by == 0) return false;
    const auto to = static_cast<std::ptrdiff_t>(m_work.row(m_parts.kind)) + by;
    goToRow(static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, to)));
    return true;
}

} // namespace korvel
