// SPDX-License-Identifier: MIT
#include "app/shell/MainPanel.h"

#include "app/shell/ColourScheme.h"
#include "app/shell/widget_colours.h"

#include <QLabel>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

void write(QLabel& label, const std::string& text)
{
    const QString shown = QString::fromStdString(text);
    if (label.text() != shown) label.setText(shown);
}

void showIfAny(QLabel& label, const std::string& text)
{
    write(label, text);
    label.setVisible(!text.empty());
}

} // namespace

MainPanel::MainPanel()
{
    new QVBoxLayout(this);
    m_lblTime = addLabel("lblTime", "Clocks", 1.8);
    m_lblOffset = addLabel("lblOffset", "Offset of ship's time", 1.0);
    m_lblZone = addLabel("lblZone", "Zone of the computer", 1.0);
    m_lblMEMO = addLabel("lblMEMO", "Memories", 1.1);
    m_lbl1NM = addLabel("lbl1NM", "Distance unit", 1.1);
    m_lblFault = addLabel("lblFault", "Fault", 1.0);
    for (QLabel* label : {m_lblOffset, m_lblZone, m_lblFault})
        label->hide();
}

QLabel* MainPanel::addLabel(const QString& name, const QString& accessibleName, double size)
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setAccessibleDescription(accessibleName); // a name would hide the text from a reader
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    label->setFont(font);
    layout()->addWidget(label);
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

void MainPanel::showOffset(const std::string& text)
{
    showIfAny(*m_lblOffset, text);
}

void MainPanel::showZoneNotice(const std::string& text)
{
    showIfAny(*m_lblZone, text);
}

void MainPanel::showFault(const std::string& text)
{
    showIfAny(*m_lblFault, text);
}

void MainPanel::applyColours(const ColourScheme& colours)
{
    setTextColour(m_lblTime, colours.clock);
    setTextColour(m_lblMEMO, colours.memo);
    setTextColour(m_lbl1NM, colours.unit);
    setTextColour(m_lblOffset, colours.notice);
    setTextColour(m_lblZone, colours.notice);
    setTextColour(m_lblFault, colours.notice);
}

} // namespace korvel
