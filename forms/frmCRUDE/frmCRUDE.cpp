// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/frmCRUDE.h"

#include "forms/frmCRUDE/CrudeFields.h"
#include "forms/frmCRUDE/CrudeWorking.h"
#include "shell/controls/AnswerStrip.h"
#include "shell/layout/Panels.h"
#include "shell/machine/AsQString.h"
#include "shell/screen/WidgetColours.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>

namespace korvel
{
namespace
{

using namespace CrudeField;

/// Where the texts of the boxes belong.
constexpr std::array<std::string CrudeInput::*, CrudeFields.size()> crudeInputs = {
    &CrudeInput::volume,      &CrudeInput::freeWater,           &CrudeInput::temperature,
    &CrudeInput::density,     &CrudeInput::observedTemperature, &CrudeInput::sedimentAndWater,
    &CrudeInput::klPerBarrel,
};

/// The lists, in the order of the record.
struct Choice {
    const char* name;
    const char* words; ///< what is chosen, for assistive tools and papers
    const char* texts; ///< parted by "|"
};
constexpr std::array<Choice, 7> crudeChoices = {{
    {"cboVolumeUnit", "Unit of the volume", "kL (m³)|bbl"},
    {"cboTemperatureUnit", "Unit of temperatures", "°C|°F"},
    {"cboDensityBase", "Density or API gravity", "kg/m³ at 15 °C|°API at 60 °F"},
    {"cboReadWith", "Density read with", "glass hydrometer|other means"},
    {"cboVCFDecimals", "Decimals of the VCF", "5|4 (shore tables)"},
    {"cboWeightRule", "Weight in air by", "density - 1.1|Table 56, as printed|Table 56, exact"},
    {"cboEdition", "Edition of the tables", "1980|2004"},
}};

} // namespace

frmCRUDE::frmCRUDE(Program& program)
    : CalculatorWindow(program, "frmCRUDE", "Crude oil"), m_boxes(addFields(CrudeFields))
{
    addChoices();
    m_results = new CrudeResults;
    auto* columns = new QHBoxLayout(scrollBody());
    layOutBody(*columns, Spacing::Groups);
    auto* left = new QVBoxLayout;
    layOutBody(*left, Spacing::Groups);
    left->addWidget(layOutInputs());
    left->addWidget(layOutMethods());
    left->addStretch();
    columns->addLayout(left);
    columns->addWidget(m_results, 1);
    pinAnswers(m_results->answers());
    foldColumns();
    addMenus();

    const int calculation =
        calculations().add({"Cargo", m_boxes.all(), m_results->labels(), [this] { run(); }});
    const auto recalculate = [this, calculation] {
        if (calculations().isHeld()) return;
        showUnits();
        calculations().run(calculation);
    };
    for (QComboBox* choice : m_choices)
        connect(choice, &QComboBox::currentIndexChanged, this, recalculate);
    connect(m_chkObserved, &QCheckBox::toggled, this, recalculate);
    connect(m_cmdFromDensity, &QPushButton::clicked, this, [this, calculation] {
        m_boxes[KLperBbl]->clear();
        calculations().run(calculation);
    });
    useCrudeSettings();
    loadSettings();
    showUnits();
    m_boxes[Volume]->setFocus();
}

void frmCRUDE::addChoices()
{
    QComboBox** const members[] = {&m_cboVolumeUnit, &m_cboTemperatureUnit, &m_cboDensityBase,
                                   &m_cboReadWith,   &m_cboVCFDecimals,     &m_cboWeightRule,
                                   &m_cboEdition};
    for (std::size_t i = 0; i < crudeChoices.size(); ++i) {
        auto* choice = new QComboBox;
        choice->setObjectName(crudeChoices[i].name);
        choice->setAccessibleName(crudeChoices[i].words);
        choice->addItems(QString(crudeChoices[i].texts).split('|'));
        m_choices.push_back(*members[i] = choice);
    }
    m_chkObserved = new QCheckBox("observed, to be red&uced");
    m_chkObserved->setObjectName("chkObserved");
    m_cmdFromDensity = new QPushButton("&From density");
    m_cmdFromDensity->setObjectName("cmdFromDensity");
    m_cmdFromDensity->setToolTip("Empties the box: the factor is that of this oil");
    m_lblFreeWaterUnit = new QLabel;
    m_lblObservedTemperatureUnit = new QLabel;
}

QWidget* frmCRUDE::layOutInputs()
{
    auto* group = new QGroupBox("Observed");
    auto* grid = gridOf(group);
    int row = 0;
    const auto line = [&](std::size_t field, QWidget* beside) {
        auto* label = new QLabel(CrudeFields[field].caption);
        label->setBuddy(m_boxes[field]);
        grid->addWidget(label, row, 0);
        grid->addWidget(m_boxes[field], row, 1, Qt::AlignLeft);
        grid->addWidget(beside, row++, 2);
    };
    line(Volume, m_cboVolumeUnit);
    line(FreeWater, m_lblFreeWaterUnit);
    line(Temperature, m_cboTemperatureUnit);
    line(Density, m_cboDensityBase);
    grid->addWidget(m_chkObserved, row, 1);
    grid->addWidget(m_cboReadWith, row++, 2);
    line(ObservedTemperature, m_lblObservedTemperatureUnit);
    line(SedimentAndWater, new QLabel("%"));
    line(KLperBbl, m_cmdFromDensity);
    return group;
}

QWidget* frmCRUDE::layOutMethods()
{
    auto* group = new QGroupBox("Methods");
    auto* grid = gridOf(group);
    int row = 0;
    for (const auto& [caption, choice] :
         {std::pair("VCF decima&ls", m_cboVCFDecimals),
          std::pair("Wei&ght in air", m_cboWeightRule), std::pair("Ed&ition", m_cboEdition)}) {
        auto* label = new QLabel(caption);
        label->setBuddy(choice);
        grid->addWidget(label, row, 0);
        grid->addWidget(choice, row++, 1);
    }
    grid->setColumnStretch(1, 1);
    return group;
}

void frmCRUDE::addMenus()
{
    QMenu* cargo = menus().add("&Cargo", "mnuCargo");
    menus().addEntry(cargo, "mnuCargo", 0, "&Clear", [this] { clearCargo(); });
    menus().addEntry(cargo, "mnuCargo", 1, "&Print..", [this] { printPaper(); });
    addMemoMenus();
    menus().addLinks("mnuLinks");
}

void frmCRUDE::addMemoMenus()
{
    using Figure = std::string (*)(const CrudeResult&);
    const std::pair<const char*, Figure> stored[] = {
        {"&Net standard volume", [](const CrudeResult& of) { return of.netStandard; }},
        {"&Barrels", [](const CrudeResult& of) { return of.barrels; }},
        {"&Kilolitres", [](const CrudeResult& of) { return of.kilolitres; }},
        {"&Metric tons in air", [](const CrudeResult& of) { return of.net.metricInAir; }},
        {"&Long tons in air", [](const CrudeResult& of) { return of.net.longInAir; }},
        {"Metric tons in &vacuo", [](const CrudeResult& of) { return of.net.metricInVacuo; }},
        {"Long tons in v&acuo", [](const CrudeResult& of) { return of.net.longInVacuo; }},
        {"&Density at 15 °C", [](const CrudeResult& of) { return of.density15; }},
        {"VC&F", [](const CrudeResult& of) { return of.vcf; }},
    };
    for (const auto& [caption, figure] : stored) {
        QAction* entry =
            menus().addStoreSingle(caption, [this, of = figure] { return of(m_shown); });
        m_stores.push_back([this, entry, caption = QString(caption), of = figure] {
            const QString shown = asQString(of(m_shown));
            entry->setText(shown.isEmpty() ? caption : caption + ":  " + shown);
        });
    }
    connect(findChild<QMenu*>("mnuMemo"), &QMenu::aboutToShow, this, [this] {
        for (const auto& nameWithFigure : m_stores)
            nameWithFigure();
    });
    menus().addRecallSingle("into &volume", m_boxes[Volume]);
    menus().addRecallSingle("into &free water", m_boxes[FreeWater]);
    menus().addRecallSingle("into &temperature", m_boxes[Temperature]);
    menus().addRecallSingle("into &density", m_boxes[Density]);
}

void frmCRUDE::useCrudeSettings()
{
    std::vector<FieldKind> kinds = recordKinds(m_boxes.all());
    kinds.insert(kinds.end(), m_choices.size(), FieldKind::Number);
    kinds.push_back(FieldKind::Tick);
    const auto save = [this] {
        Record values;
        for (const EntryBox* box : m_boxes.all())
            values.emplace_back(box->value());
        for (const QComboBox* choice : m_choices)
            values.emplace_back(static_cast<double>(choice->currentIndex()));
        values.emplace_back(m_chkObserved->isChecked());
        return values;
    };
    const auto load = [this](const Record& values) {
        auto value = values.begin();
        for (EntryBox* box : m_boxes.all())
            box->setText(asQString(textOf(*value++)));
        for (QComboBox* choice : m_choices) {
            const double index = numberOf(*value++);
            if (index >= 0 && index < choice->count())
                choice->setCurrentIndex(static_cast<int>(index));
        }
        m_chkObserved->setChecked(tickOf(*value));
    };
    record().use("KV_Crude.ini", std::move(kinds), save, load);
}

CrudeInput frmCRUDE::input() const
{
    CrudeInput cargo;
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        cargo.*crudeInputs[i] = m_boxes[i]->value();
    cargo.volumeUnit = static_cast<VolumeUnit>(m_cboVolumeUnit->currentIndex());
    cargo.temperatureUnit = static_cast<TemperatureUnit>(m_cboTemperatureUnit->currentIndex());
    cargo.densityBase = static_cast<DensityBase>(m_cboDensityBase->currentIndex());
    cargo.densityObserved = m_chkObserved->isChecked();
    cargo.readWith = static_cast<NavFunc113::ReadWith>(m_cboReadWith->currentIndex());
    cargo.isVCFShort = m_cboVCFDecimals->currentIndex() == 1;
    cargo.weightRule = static_cast<WeightRule>(m_cboWeightRule->currentIndex());
    cargo.edition = static_cast<NavFunc113::CrudeEdition>(m_cboEdition->currentIndex());
    return cargo;
}

void frmCRUDE::run()
{
    m_shown = {}; // a fault leaves nothing behind that could be stored
    m_boxes[KLperBbl]->setPlaceholderText(asQString(KLPerBarrelFromDensity(input())));
    m_shown = CalculateCrude(input());
    m_results->show(m_shown);
    setNotice("input", asQString(m_shown.notice), m_shown.level);
}

/// What the figures were made of: a box or choice that enters nothing is left out, an empty one
/// that stands for something says for what.
std::vector<PaperFigure> frmCRUDE::paperInputs(const std::vector<PaperFigure>& boxes) const
{
    const bool isObserved = m_chkObserved->isChecked();
    std::vector<PaperFigure> inputs;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        PaperFigure figure = boxes[i];
        const bool isEmpty = m_boxes[i]->text().isEmpty();
        const std::string unit = unitOf(i).toStdString();
        if ((i == ObservedTemperature && !isObserved) || (i == KLperBbl && isEmpty)) continue;
        if (!isEmpty) figure.unit = unit;
        if (isEmpty && (i == FreeWater || i == SedimentAndWater))
            figure.value = "0 " + unit + " (nothing entered)";
        if (isEmpty && i == ObservedTemperature)
            figure.value = "that of the cargo (nothing entered)";
        if (i == Density && isObserved && !isEmpty)
            figure.unit = m_cboDensityBase->currentText().section(' ', 0, 0).toStdString() +
                          ", observed, to be reduced";
        inputs.push_back(std::move(figure));
    }
    for (std::size_t i = 0; i < m_choices.size(); ++i)
        if (m_choices[i] != m_cboDensityBase && (m_choices[i] != m_cboReadWith || isObserved))
            inputs.push_back({crudeChoices[i].words, m_choices[i]->currentText().toStdString()});
    return inputs;
}

WorkingPaper frmCRUDE::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    paper.inputs = paperInputs(paper.inputs);
    paper.results = cargoFigures(m_shown);
    paper.workings = {cargoWorking(input(), m_shown)};
    paper.limits = {"The factor is used as it is shown, so that a pocket calculator comes to the "
                    "same volume",
                    "Outside the range of its table the formula is carried on and the result is "
                    "marked"};
    return paper;
}

void frmCRUDE::showUnits()
{
    const QString volume = m_cboVolumeUnit->currentText();
    const QString temperature = m_cboTemperatureUnit->currentText();
    const bool observed = m_chkObserved->isChecked();
    m_lblFreeWaterUnit->setText(volume);
    m_lblObservedTemperatureUnit->setText(temperature + " (empty: the cargo's)");
    m_boxes[ObservedTemperature]->setEnabled(observed);
    m_cboReadWith->setEnabled(observed);
    m_boxes[Density]->setNext(m_boxes[observed ? ObservedTemperature : SedimentAndWater]);
    for (const std::size_t field : {Volume, FreeWater, Temperature, Density, ObservedTemperature})
        m_boxes[field]->declare(CrudeFields[field].words, unitOf(field));
    const QString temperatures =
        limitsInWords(lowestTemperature(input().temperatureUnit), HUGE_VAL);
    for (const std::size_t field : {Temperature, ObservedTemperature})
        m_boxes[field]->setLimits(temperatures);
    m_boxes[Density]->setLimits(QString("above %1").arg(densityBound(input().densityBase)));
}

/// The unit that was chosen for a box, or its own.
QString frmCRUDE::unitOf(std::size_t field) const
{
    switch (field) {
    case Volume:
    case FreeWater:
        return m_cboVolumeUnit->currentText();
    case Temperature:
    case ObservedTemperature:
        return m_cboTemperatureUnit->currentText();
    case Density:
        return m_cboDensityBase->currentText();
    default:
        return CrudeFields[field].measure;
    }
}

void frmCRUDE::clearCargo()
{
    m_boxes.clear(Volume, m_boxes.size());
    m_boxes[Volume]->setFocus();
}

void frmCRUDE::applyColours()
{
    CalculatorWindow::applyColours();
    setTextColour(m_results->rangeFlag(), program().colours().notice);
}

} // namespace korvel
