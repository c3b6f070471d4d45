// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/frmCRUDE.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>

namespace korvel
{

frmCRUDE::frmCRUDE(Program& program) : CalculatorWindow(program, "frmCRUDE", "Crude oil")
{
    addBoxes();
    m_results = new CrudeResults;
    auto* columns = new QHBoxLayout(scrollBody());
    auto* left = new QVBoxLayout;
    left->addWidget(layOutInputs());
    left->addWidget(layOutMethods());
    left->addStretch();
    columns->addLayout(left);
    columns->addWidget(m_results, 1);
    addMenus();

    std::vector<QLineEdit*> inputs;
    for (const auto& [box, field] : m_boxes)
        inputs.push_back(box);
    const int calculation =
        addCalculation({"Cargo", std::move(inputs), m_results->labels(), [this] { run(); }});
    const auto recalculate = [this, calculation] {
        if (isLoading()) return;
        showUnits();
        calculate(calculation);
    };
    for (QComboBox* choice : m_choices)
        connect(choice, &QComboBox::currentIndexChanged, this, recalculate);
    connect(m_chkObserved, &QCheckBox::toggled, this, recalculate);
    connect(m_cmdFromDensity, &QPushButton::clicked, this, [this] {
        const std::string factor = KLPerBarrelFromDensity(input());
        if (!factor.empty()) m_txtKLperBbl->setText(QString::fromStdString(factor));
    });
    useCrudeSettings();
    loadSettings();
    showUnits();
    m_txtVolume->setFocus();
}

KeyUpBox* frmCRUDE::addBox(const QString& name, std::string CrudeInput::*field)
{
    KeyUpBox* box = addKeyUpBox(name, {});
    m_boxes.emplace_back(box, field);
    return box;
}

QComboBox* frmCRUDE::addChoice(const QString& name, const QString& accessibleName,
                               const QStringList& choices)
{
    auto* choice = new QComboBox;
    choice->setObjectName(name);
    choice->setAccessibleName(accessibleName);
    choice->addItems(choices);
    m_choices.push_back(choice);
    return choice;
}

void frmCRUDE::addBoxes()
{
    m_txtVolume = addBox("txtVolume", &CrudeInput::volume);
    m_txtFreeWater = addBox("txtFreeWater", &CrudeInput::freeWater);
    m_txtTemperature = addBox("txtTemperature", &CrudeInput::temperature);
    m_txtDensity = addBox("txtDensity", &CrudeInput::density);
    m_txtObservedTemperature = addBox("txtObservedTemperature", &CrudeInput::observedTemperature);
    m_txtSedimentAndWater = addBox("txtSedimentAndWater", &CrudeInput::sedimentAndWater);
    m_txtKLperBbl = addBox("txtKLperBbl", &CrudeInput::klPerBarrel);
    m_txtSedimentAndWater->setAccessibleName("Sediment and water, per cent");
    m_txtKLperBbl->setAccessibleName("KL/Bbl, kilolitres at 15 °C per barrel at 60 °F");
    m_txtKLperBbl->setText(defaultKLPerBarrel);
    std::vector<EntryBox*> order;
    for (const auto& [box, field] : m_boxes)
        order.push_back(box);
    setEntryOrder(order);

    m_cboVolumeUnit = addChoice("cboVolumeUnit", "Unit of the volume", {"kL (m³)", "bbl"});
    m_cboTemperatureUnit = addChoice("cboTemperatureUnit", "Unit of temperatures", {"°C", "°F"});
    m_cboDensityBase =
        addChoice("cboDensityBase", "Density or API gravity", {"kg/m³ at 15 °C", "°API at 60 °F"});
    m_cboReadWith =
        addChoice("cboReadWith", "Density read with", {"glass hydrometer", "other means"});
    m_cboVCFDecimals =
        addChoice("cboVCFDecimals", "Decimals of the VCF", {"5", "4 (shore tables)"});
    m_cboWeightRule = addChoice("cboWeightRule", "Weight in air by",
                                {"density - 1.1", "Table 56, as printed", "Table 56, exact"});
    m_cboEdition = addChoice("cboEdition", "Edition of the tables", {"1980", "2004"});
    m_chkObserved = new QCheckBox("observed, to be red&uced");
    m_chkObserved->setObjectName("chkObserved");
    m_cmdFromDensity = new QPushButton("&From density");
    m_cmdFromDensity->setObjectName("cmdFromDensity");
    m_cmdFromDensity->setToolTip("The factor that belongs to this oil");
    m_lblFreeWaterUnit = new QLabel;
    m_lblObservedTemperatureUnit = new QLabel;
}

QWidget* frmCRUDE::layOutInputs()
{
    auto* group = new QGroupBox("Observed");
    auto* grid = new QGridLayout(group);
    int row = 0;
    const auto line = [&](const QString& caption, QWidget* field, QWidget* beside) {
        auto* label = new QLabel(caption);
        label->setBuddy(field);
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
        if (beside) grid->addWidget(beside, row, 2);
        ++row;
    };
    line("V&olume", m_txtVolume, m_cboVolumeUnit);
    line("Fr&ee water", m_txtFreeWater, m_lblFreeWaterUnit);
    line("&Temperature", m_txtTemperature, m_cboTemperatureUnit);
    line("&Density", m_txtDensity, m_cboDensityBase);
    line("", m_chkObserved, m_cboReadWith);
    line("  &at temperature", m_txtObservedTemperature, m_lblObservedTemperatureUnit);
    line("&Sediment and water", m_txtSedimentAndWater, new QLabel("%"));
    line("&KL/Bbl", m_txtKLperBbl, m_cmdFromDensity);
    return group;
}

QWidget* frmCRUDE::layOutMethods()
{
    auto* group = new QGroupBox("Methods");
    auto* grid = new QGridLayout(group);
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
    QMenu* cargo = addMenu("&Cargo", "mnuCargo");
    addEntry(cargo, "mnuCargo", 0, "&Clear", [this] { clearCargo(); });
    addEntry(cargo, "mnuCargo", 1, "&Print...", [this] { printForm(); });
    addMemoMenus();
    addLinksMenu("mnuLinks");
}

void frmCRUDE::addMemoMenus()
{
    const std::pair<const char*, std::string CrudeResult::*> stored[] = {
        {"&Net standard volume", &CrudeResult::netStandard},
        {"&Barrels", &CrudeResult::barrels},
        {"&Kilolitres", &CrudeResult::kilolitres},
        {"&Metric tons in air", &CrudeResult::metricTonsInAir},
        {"&Long tons in air", &CrudeResult::longTonsInAir},
        {"Metric tons in &vacuo", &CrudeResult::metricTonsInVacuo},
        {"Long tons in v&acuo", &CrudeResult::longTonsInVacuo},
        {"&Density at 15 °C", &CrudeResult::density15},
        {"VC&F", &CrudeResult::vcf},
    };
    for (const auto& [caption, figure] : stored)
        addStoreSingle(caption, [this, at = figure] { return m_shown.*at; });
    addRecallSingle("into &volume", m_txtVolume);
    addRecallSingle("into &free water", m_txtFreeWater);
    addRecallSingle("into &temperature", m_txtTemperature);
    addRecallSingle("into &density", m_txtDensity);
}

void frmCRUDE::useCrudeSettings()
{
    std::vector<Kind> kinds(m_boxes.size(), Kind::Text);
    kinds.insert(kinds.end(), m_choices.size(), Kind::Number);
    kinds.push_back(Kind::Tick);
    const auto save = [this] {
        Record record;
        for (const auto& [box, field] : m_boxes)
            record.emplace_back(box->value());
        for (const QComboBox* choice : m_choices)
            record.emplace_back(static_cast<double>(choice->currentIndex()));
        record.emplace_back(m_chkObserved->isChecked());
        return record;
    };
    const auto load = [this](const Record& record) {
        auto value = record.begin();
        for (const auto& [box, field] : m_boxes)
            box->setText(QString::fromStdString(textOf(*value++)));
        for (QComboBox* choice : m_choices) {
            const double index = numberOf(*value++);
            if (index >= 0 && index < choice->count())
                choice->setCurrentIndex(static_cast<int>(index));
        }
        m_chkObserved->setChecked(tickOf(*value));
    };
    useSettings("KV_Crude.ini", std::move(kinds), save, load);
}

CrudeInput frmCRUDE::input() const
{
    CrudeInput cargo;
    for (const auto& [box, field] : m_boxes)
        cargo.*field = box->value();
    cargo.volumeUnit = static_cast<VolumeUnit>(m_cboVolumeUnit->currentIndex());
    cargo.temperatureUnit = static_cast<TemperatureUnit>(m_cboTemperatureUnit->currentIndex());
    cargo.densityBase = static_cast<DensityBase>(m_cboDensityBase->currentIndex());
    cargo.densityObserved = m_chkObserved->isChecked();
    cargo.readWith = static_cast<NavFunc113::ReadWith>(m_cboReadWith->currentIndex());
    cargo.vcfDecimals = m_cboVCFDecimals->currentIndex() == 0 ? 5 : 4;
    cargo.weightRule = static_cast<WeightRule>(m_cboWeightRule->currentIndex());
    cargo.edition = static_cast<NavFunc113::CrudeEdition>(m_cboEdition->currentIndex());
    return cargo;
}

void frmCRUDE::run()
{
    m_shown = {}; // a fault leaves nothing behind that could be stored
    m_shown = CalculateCrude(input());
    m_results->show(m_shown);
    setNotice("input", QString::fromStdString(m_shown.notice));
}

void frmCRUDE::showUnits()
{
    const QString volume = m_cboVolumeUnit->currentText();
    const QString temperature = m_cboTemperatureUnit->currentText();
    const bool observed = m_chkObserved->isChecked();
    m_lblFreeWaterUnit->setText(volume);
    m_lblObservedTemperatureUnit->setText(temperature + " (empty: the cargo's)");
    m_txtObservedTemperature->setEnabled(observed);
    m_cboReadWith->setEnabled(observed);
    m_txtDensity->setNext(observed ? m_txtObservedTemperature : m_txtSedimentAndWater);
    m_txtVolume->setAccessibleName("Observed volume, " + volume);
    m_txtFreeWater->setAccessibleName("Free water, " + volume);
    m_txtTemperature->setAccessibleName("Temperature of the cargo, " + temperature);
    m_txtDensity->setAccessibleName("Density, " + m_cboDensityBase->currentText());
    m_txtObservedTemperature->setAccessibleName("Temperature at which the density was observed, " +
                                                temperature);
}

void frmCRUDE::clearCargo()
{
    for (KeyUpBox* box : {m_txtVolume, m_txtFreeWater, m_txtTemperature, m_txtDensity,
                          m_txtObservedTemperature, m_txtSedimentAndWater})
        box->clear();
    m_txtKLperBbl->setText(defaultKLPerBarrel);
    m_txtVolume->setFocus();
}

void frmCRUDE::applyColours()
{
    CalculatorWindow::applyColours();
    QPalette palette = m_results->rangeFlag()->palette();
    palette.setColor(QPalette::WindowText, program().colours().notice);
    m_results->rangeFlag()->setPalette(palette);
}

} // namespace korvel
