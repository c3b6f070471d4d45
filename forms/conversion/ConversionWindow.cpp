// SPDX-License-Identifier: MIT
#include "forms/conversion/ConversionWindow.h"

#include "forms/conversion/CalculateConversion.h"
#include "forms/conversion/ConversionWorking.h"
#include "navlib/arithmetic_error.h"
#include "shell/layout/Panels.h"
#include "shell/layout/TypeScale.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>
#include <QLabel>
#include <QMenu>

#include <algorithm>

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

ConversionWindow::ConversionWindow(Program& program, const ConversionKind& kind)
    : CalculatorWindow(program, kind.name, kind.caption), m_quantity(kind.quantity),
      m_focus([this](QWidget* now) { focusMoved(now); })
{
    addBoxes(kind.box);
    layOut();
    addMenus();
    addCalculation();
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
    const auto units = NavFunc113::UnitTable(m_quantity);
    for (std::size_t i = 0; i < units.size(); ++i) {
        const int row = static_cast<int>(i);
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
    grid->setRowStretch(static_cast<int>(units.size()), 1);
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
            return convertedInFull(m_quantity, m_lead, m_boxes[m_lead]->value(), i);
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
        const auto figures = CalculateConversion(m_quantity, m_lead, m_boxes[m_lead]->value());
        for (std::size_t i = 0; i < figures.size(); ++i)
            if (figures[i]) show(i, *figures[i]);
        setNotice("typed", asQString(remarkOn(m_boxes[m_lead]->value())), NoticeLevel::Fault);
    } catch (const NavFunc113::ArithmeticError&) {
        // No box may keep a figure that does not belong to the one typed in.
        for (std::size_t i = 0; i < m_boxes.size(); ++i)
            if (i != m_lead) show(i, {});
        throw;
    }
}

WorkingPaper ConversionWindow::paper() const
{
    std::vector<std::string> boxes;
    for (const KeyUpBox* box : m_boxes)
        boxes.push_back(box->value());
    const std::string typed = boxes[m_lead];
    WorkingPaper paper = CalculatorWindow::paper();
    paper.kind = "Conversion of " + windowTitle().toLower().toStdString();
    paper.inputs = {convertedFrom(m_quantity, m_lead, typed)};
    paper.results = convertedInto(m_quantity, m_lead, boxes);
    paper.workings = {conversionWorking(m_quantity, m_lead, typed, boxes)};
    paper.limits = {"Figures are shown with seven significant digits, whole digits always in full"};
    return paper;
}

void ConversionWindow::clearBoxes()
{
    m_boxes[m_lead]->clear();
    m_boxes[m_lead]->setFocus();
}

frmArea::frmArea(Program& program)
    : ConversionWindow(program, {"frmArea", "Area", "KV_Area.ini", "txtArea", Quantity::Area})
{
}

frmLength::frmLength(Program& program)
    : ConversionWindow(program,
                       {"frmLength", "Length", "KV_Length.ini", "txtLength", Quantity::Length})
{
}

frmVolume::frmVolume(Program& program)
    : ConversionWindow(program,
                       {"frmVolume", "Volume", "KV_Volume.ini", "txtVolume", Quantity::Volume})
{
}

frmPressure::frmPressure(Program& program)
    : ConversionWindow(program, {"frmPressure", "Pressure", "KV_Pressure.ini", "txtPressure",
                                 Quantity::Pressure})
{
}

frmWeight::frmWeight(Program& program)
    : ConversionWindow(program,
                       {"frmWeight", "Weight", "KV_Weight.ini", "txtWeight", Quantity::Weight})
{
}

} // namespace korvel
