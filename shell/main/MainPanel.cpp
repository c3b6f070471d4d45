// SPDX-License-Identifier: MIT
#include "shell/main/MainPanel.h"

#include "shell/machine/AsQString.h"
#include "shell/screen/ColourScheme.h"
#include "shell/screen/WidgetColours.h"

#include <QVBoxLayout>

namespace korvel
{
namespace
{

void write(ResultLabel& label, const std::string& text)
{
    const QString shown = asQString(text);
    if (label.text() != shown) label.setText(shown);
}

void showIfAny(ResultLabel& label, const std::string& text)
{
    write(label, text);
    label.setVisible(!text.empty());
}

} // namespace

MainPanel::MainPanel()
    : m_lblTime(makeLabel("lblTime", "Clocks", 1.45)),
      m_lblAlarm(makeLabel("lblAlarm", "Next alarm", 1.1)),
      m_lblOffset(makeLabel("lblOffset", "Offset of ship's time", 1.0)),
      m_lblZone(makeLabel("lblZone", "Zone of the computer", 1.0)),
      m_lblShip(makeLabel("lblShip", "Ship now", 1.0)),
      m_lblMEMO(makeLabel("lblMEMO", "Memories", 1.0)),
      m_lbl1NM(makeLabel("lbl1NM", "Distance unit", 1.1)),
      m_lblTD(makeLabel("lblTD", "Time difference", 1.1)),
      m_lblFault(makeLabel("lblFault", "Fault", 1.0))
{
    auto* column = new QVBoxLayout(this);
    // Small with every remark there is.
    column->setSpacing(2);
    column->setContentsMargins(8, 4, 8, 4);
    auto* last = new QHBoxLayout;
    last->addWidget(m_lbl1NM);
    last->addStretch();
    last->addWidget(m_lblTD);
    m_lblAlarm->setEliding(); // a comment may be long, and the window is to stay small
    for (QLabel* remark : {m_lblOffset, m_lblZone, m_lblShip, m_lblFault}) {
        remark->setWordWrap(true);
        remark->hide();
    }
    for (QLabel* label : {m_lblTime, m_lblAlarm, m_lblOffset, m_lblZone, m_lblShip, m_lblMEMO})
        column->addWidget(label);
    column->addLayout(last);
    column->addWidget(m_lblFault);
}

ResultLabel* MainPanel::makeLabel(const QString& name, const QString& words, double size)
{
    tellResultsToAssistiveTools(); // a name that is set makes the toolkit look at once
    auto* label = new ResultLabel(this);
    label->setObjectName(name);
    label->declare(words);
    QFont letters = font();
    letters.setPointSizeF(letters.pointSizeF() * size);
    label->setFont(letters);
    label->setRoomByText();
    return label;
}

void MainPanel::showClock(const std::string& text)
{
    write(*m_lblTime, text);
}

void MainPanel::showMemories(const std::string& text)
{
    write(*m_lblMEMO, text);
}

void MainPanel::showUnit(const std::string& text)
{
    write(*m_lbl1NM, text);
}

void MainPanel::showTD(const std::string& text)
{
    write(*m_lblTD, text);
}

void MainPanel::showAlarm(const std::string& text)
{
    write(*m_lblAlarm, text);
}

void MainPanel::showOffset(const std::string& text)
{
    showIfAny(*m_lblOffset, text);
}

void MainPanel::showZoneNotice(const std::string& text)
{
    showIfAny(*m_lblZone, text);
}

void MainPanel::showShip(const std::string& text)
{
    showIfAny(*m_lblShip, text);
}

void MainPanel::showFault(const std::string& text)
{
    showIfAny(*m_lblFault, text);
}

bool MainPanel::hasRemarks() const
{
    return !m_lblShip->text().isEmpty() || !m_lblOffset->text().isEmpty() ||
           !m_lblZone->text().isEmpty();
}

void MainPanel::setLeastWidth(int width)
{
    m_leastWidth = width;
    updateGeometry();
}

void MainPanel::applyColours(const ColourScheme& colours)
{
    setTextColour(m_lblTime, colours.clock);
    setTextColour(m_lblMEMO, colours.memo);
    setTextColour(m_lbl1NM, colours.unit);
    setTextColour(m_lblTD, colours.unit);
    setTextColour(m_lblAlarm, colours.memo);
    setTextColour(m_lblShip, colours.memo);
    setTextColour(m_lblOffset, colours.notice);
    setTextColour(m_lblZone, colours.notice);
    setTextColour(m_lblFault, colours.notice);
}

} // namespace korvel
