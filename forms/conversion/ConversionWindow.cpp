// SPDX-License-Identifier: MIT
#include "forms/conversion/ConversionWindow.h"

#include "app/records/KeyedLines.h"
#include "forms/conversion/CalculateConversion.h"
#include "navlib/arithmetic_error.h"
#include "shell/layout/Panels.h"
#include "shell/layout/TypeScale.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>
#include <QLabel>
#include <QMenu>

#include <algorithm>
#include <array>

namespace korvel
{
namespace
{

using NavFunc113::Quantity;

/// Any box may be the one in hand, and nothing moves when it is.
void giveRoom(QLineEdit& box)
{
    box.setFont(lettersOf(Weight::Answer));
    box.setMinimumWidth(box.fontMetrics().horizontalAdvance("000000000.0000000"));
    constexpr int aroundLetters = 4; // frames included: seventeen boxes are a screen full
    box.setFixedHeight(box.fontMetrics().height() + aroundLetters);
}

/// A menu caption with a mnemonic of its own, 1 to 9 and A to Z, whatever the unit is called.
QString numbered(std::size_t index, const NavFunc113::Unit& unit)
{
    constexpr std::string_view marks = "123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    return QString("&%1  %2 (%3)")
        .arg(marks.at(index))
        .arg(asQString(unit.caption), asQString(unit.symbol));
}

} // namespace

/// What one conversion window has of its own.
struct ConversionWindow::Kind {
    const char* name;              ///< class name of the window
    const char* caption;           ///< its title
    const char* file;              ///< its settings file
    const char* box;               ///< name of its control array
    NavFunc113::Quantity quantity; ///< its unit table
    /// What a record of lines with keys begins with; empty: a settings record.
    const char* record = "";
    ConditionFields conditions = {};
};

const ConversionWindow::Kind& ConversionWindow::kindOf(Quantity quantity)
{
    static constexpr std::array kinds{
        Kind{"frmArea", "Area", "KV_Area.ini", "txtArea", Quantity::Area},
        Kind{"frmLength", "Length", "KV_Length.ini", "txtLength", Quantity::Length},
        Kind{"frmVolume", "Volume", "KV_Volume.ini", "txtVolume", Quantity::Volume},
        Kind{"frmPressure", "Pressure", "KV_Pressure.ini", "txtPressure", Quantity::Pressure},
        Kind{"frmWeight", "Weight", "KV_Weight.ini", "txtWeight", Quantity::Weight},
        Kind{"frmTemperature", "Temperature", "KV_Temperature.ini", "txtTemperature",
             Quantity::Temperature, "KORVEL2000 temperature "},
        Kind{"frmSpeed", "Speed", "KV_Speed.ini", "txtSpeed", Quantity::Speed, "KORVEL2000 speed "},
        Kind{"frmDensity", "Density", "KV_Density.ini", "txtDensity", Quantity::Density,
             "KORVEL2000 density "},
        Kind{"frmFlow",
             "Flow and consumption",
             "KV_Flow.ini",
             "txtFlow",
             Quantity::Flow,
             "KORVEL2000 flow and consumption ",
             {flowConditions, flowNeeds}},
        Kind{"frmEnergy",
             "Energy and power",
             "KV_Energy.ini",
             "txtEnergy",
             Quantity::Energy,
             "KORVEL2000 energy and power ",
             {energyConditions, energyNeeds}},
        Kind{"frmAngle", "Angle and time", "KV_Angle.ini", "txtAngle", Quantity::Angle,
             "KORVEL2000 angle and time "}};
    return *std::ranges::find(kinds, quantity, &Kind::quantity);
}

ConversionWindow::ConversionWindow(Program& program, Quantity quantity)
    : ConversionWindow(program, kindOf(quantity))
{
}

ConversionWindow::ConversionWindow(Program& program, const Kind& kind)
    : CalculatorWindow(program, kind.name, kind.caption), m_quantity(kind.quantity),
      m_needs(kind.conditions), m_conditions(addFields(kind.conditions.fields)),
      m_focus([this](QWidget* now) { focusMoved(now); })
{
    addBoxes(kind.box);
    layOut();
    addMenus();
    addCalculation();
    if (*kind.record)
        useConversionLines(kind);
    else
        useConversionSettings(kind.file);
    loadSettings();
    m_boxes[m_lead]->setFocus();
    focusMoved(m_boxes[m_lead]);
}

void ConversionWindow::addBoxes(const char* name)
{
    std::vector<EntryBox*> order;
    for (const NavFunc113::Unit& unit : NavFunc113::UnitTable(m_quantity)) {
        const std::size_t index = m_boxes.size();
        auto* box = new KeyUpBox(body());
        box->setObjectName(memberName(name, static_cast<int>(index)));
        box->declare(asQString(unit.caption), asQString(unit.symbol));
        box->setToolTip(asQString(unitToolTip(m_quantity, index)));
        box->setReading({.name = {}});
        box->isUnderstood = [this, index](const std::string& text) {
            return isReadWhole(m_quantity, index, text);
        };
        box->setResultUnit(asQString(unit.symbol));
        box->setAlignment(Qt::AlignRight);
        giveRoom(*box);
        m_boxes.push_back(box);
        order.push_back(box);
    }
    setEntryOrder(order);
}

void ConversionWindow::addCalculation()
{
    const int conversion = calculations().add(
        {"Conversion", {m_boxes.begin(), m_boxes.end()}, {}, [this] { convert(); }});
    for (EntryBox* condition : m_conditions.all())
        connect(condition, &QLineEdit::textChanged, this, [this, conversion] {
            if (!calculations().isHeld()) calculations().run(conversion);
        });
    for (std::size_t index = 0; index < m_boxes.size(); ++index)
        m_boxes[index]->onKeyUp = [this, index, conversion] {
            if (calculations().isHeld()) return;
            m_lead = index;
            calculations().run(conversion);
        };
}

void ConversionWindow::layOut()
{
    auto* grid = new QGridLayout(scrollBody());
    layOutBody(*grid, Spacing::Dense);
    addConditions(*grid);
    int row = static_cast<int>(m_conditions.size());
    const auto units = NavFunc113::UnitTable(m_quantity);
    for (std::size_t i = 0; i < units.size(); ++i, ++row) {
        auto* caption = new QLabel(asQString(units[i].caption));
        auto* symbol = new QLabel(asQString(units[i].symbol));
        caption->setBuddy(m_boxes[i]);
        caption->setToolTip(m_boxes[i]->toolTip());
        symbol->setToolTip(m_boxes[i]->toolTip());
        grid->addWidget(caption, row, 0);
        grid->addWidget(m_boxes[i], row, 1);
        grid->addWidget(symbol, row, 2);
    }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(row, 1);
}

/// Above the units, in letters of their own size: they are no answers.
void ConversionWindow::addConditions(QGridLayout& grid)
{
    for (std::size_t i = 0; i < m_conditions.size(); ++i) {
        auto* caption = new QLabel(m_needs.fields[i].caption);
        caption->setBuddy(m_conditions[i]);
        grid.addWidget(caption, static_cast<int>(i), 0);
        grid.addWidget(m_conditions[i], static_cast<int>(i), 1);
        grid.addWidget(new QLabel(m_needs.fields[i].unit), static_cast<int>(i), 2);
    }
}

NavFunc113::UnitConditions ConversionWindow::conditions() const
{
    Remarks unsaid;
    return conditions(unsaid);
}

NavFunc113::UnitConditions ConversionWindow::conditions(Remarks& remarks) const
{
    std::vector<std::string> texts;
    for (const EntryBox* box : m_conditions.all())
        texts.push_back(box->value());
    return readConditions(m_needs, texts, remarks);
}

void ConversionWindow::focusMoved(const QWidget* now)
{
    const auto box = std::ranges::find(m_boxes, now);
    if (box == m_boxes.end() || *box == m_inHand) return;
    m_inHand = *box;
    dressBoxes();
}

/// What is typed or asked for is the answer here.
void ConversionWindow::dressBoxes()
{
    QPalette accent;
    accent.setColor(QPalette::Text, program().colours().accent);
    for (KeyUpBox* box : m_boxes) {
        box->setFont(lettersOf(box == m_inHand ? Weight::Answer : Weight::Figure));
        box->setPalette(box == m_inHand ? accent : QPalette());
    }
}

void ConversionWindow::applyColours()
{
    CalculatorWindow::applyColours();
    dressBoxes();
}

void ConversionWindow::addMenus()
{
    QMenu* figures = menus().add("&Data", "mnuData");
    menus().addEntry(figures, "mnuData", 0, "&Clear", [this] { clearBoxes(); });
    menus().addEntry(figures, "mnuData", 1, "&Print..", [this] { printPaper(); });
    const auto units = NavFunc113::UnitTable(m_quantity);
    for (std::size_t i = 0; i < units.size(); ++i) {
        menus().addStoreSingle(numbered(i, units[i]), [this, i] {
            return convertedInFull(m_quantity, m_lead, m_boxes[m_lead]->value(), i, conditions());
        });
        menus().addRecallSingle("into " + numbered(i, units[i]), m_boxes[i]);
    }
    menus().addLinks("mnuLinks");
}

void ConversionWindow::useConversionSettings(const char* file)
{
    std::vector<FieldKind> kinds(m_boxes.size(), FieldKind::Figure);
    kinds.push_back(FieldKind::Number);
    const auto save = [this] {
        Record values;
        for (const KeyUpBox* box : m_boxes)
            values.emplace_back(box->value());
        values.emplace_back(static_cast<double>(m_lead));
        return values;
    };
    const auto load = [this](const Record& values) {
        for (std::size_t i = 0; i < m_boxes.size(); ++i)
            m_boxes[i]->fill(asQString(textOf(values[i])));
        const double lead = numberOf(values.back());
        if (lead >= 0 && lead < static_cast<double>(m_boxes.size()))
            m_lead = static_cast<std::size_t>(lead);
    };
    record().use(file, std::move(kinds), save, load);
}

void ConversionWindow::useConversionLines(const Kind& kind)
{
    const auto save = [this, begin = std::string(kind.record)] {
        std::string text = begin;
        text += "1\n";
        for (std::size_t i = 0; i < m_conditions.size(); ++i)
            addKeyedLine(text, m_needs.fields[i].name, m_conditions[i]->value());
        addKeyedLine(text, m_boxes[m_lead]->objectName().toStdString(), m_boxes[m_lead]->value());
        return text;
    };
    const auto take = [this, begin = std::string(kind.record)](const std::string& bytes) {
        return readKeyedLines(bytes, begin, "record of this window",
                              [this](std::string_view key, const std::string& value) {
                                  for (std::size_t i = 0; i < m_conditions.size(); ++i)
                                      if (key == m_needs.fields[i].name)
                                          m_conditions[i]->setText(asQString(value));
                                  for (std::size_t i = 0; i < m_boxes.size(); ++i)
                                      if (key == m_boxes[i]->objectName().toStdString()) {
                                          m_lead = i;
                                          m_boxes[i]->fill(asQString(value));
                                      }
                              });
    };
    record().useText(kind.file, save, take);
}

/// Figures that rest on one of which only the beginning was read are in doubt.
void ConversionWindow::dimOthers()
{
    const bool isHalfRead = m_boxes[m_lead]->halfRead().has_value();
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        setDimmed(*m_boxes[i], isHalfRead && i != m_lead);
}

void ConversionWindow::convert()
{
    dimOthers();
    const auto show = [this](std::size_t index, const std::string& figure) {
        m_boxes[index]->fill(asQString(figure));
    };
    try {
        const std::string& text = m_boxes[m_lead]->value();
        const auto figures = CalculateConversion(m_quantity, m_lead, text, conditions());
        for (std::size_t i = 0; i < figures.size(); ++i)
            if (figures[i]) show(i, *figures[i]);
        const ConversionNotice notice = noticeOn(m_quantity, m_lead, text, conditions());
        setNotice("typed", asQString(notice.text), notice.level);
        Remarks remarks;
        conditions(remarks);
        setNotice("conditions", asQString(remarks.text()), NoticeLevel::Fault);
    } catch (const NavFunc113::ArithmeticError&) {
        // No box may keep a figure that does not belong to the one typed in.
        for (std::size_t i = 0; i < m_boxes.size(); ++i)
            if (i != m_lead) show(i, {});
        throw;
    }
}

Converted ConversionWindow::converted() const
{
    Converted converted{m_quantity, m_lead, m_boxes[m_lead]->value(), conditions()};
    for (const KeyUpBox* box : m_boxes)
        converted.boxes.push_back(box->value());
    return converted;
}

WorkingPaper ConversionWindow::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    paper.kind = "Conversion of " + windowTitle().toLower().toStdString();
    std::erase_if(paper.inputs,
                  [](const PaperFigure& input) { return input.value == "nothing entered"; });
    paper.inputs.insert(paper.inputs.begin(), convertedFrom(converted()));
    paper.results = convertedInto(converted());
    paper.workings = {conversionWorking(converted())};
    paper.limits = {"Figures are shown with seven significant digits, whole digits always in full"};
    return paper;
}

void ConversionWindow::clearBoxes()
{
    m_boxes[m_lead]->clear();
    m_boxes[m_lead]->setFocus();
}

} // namespace korvel
