// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/ResultLabel.h"

#include <QWidget>

#include <string>

namespace korvel
{

struct ColourScheme;

/// What the main window shows: clocks, next alarm, memories, distance unit, TD, and what is to be
/// said about the computer's clock.
class MainPanel : public QWidget
{
public:
    MainPanel();

    void showClock(const std::string& text);
    void showMemories(const std::string& text);
    void showUnit(const std::string& text);
    void showTD(const std::string& text);
    void showAlarm(const std::string& text);
    /// Lines that are there only while they have something to say.
    void showOffset(const std::string& text);
    void showShip(const std::string& text);
    void showZoneNotice(const std::string& text);
    void showFault(const std::string& text);
    bool hasRemarks() const;

    void applyColours(const ColourScheme& colours);

    /// What is above it needs that much room, however short its own texts are.
    void setLeastWidth(int width);
    QSize sizeHint() const override
    {
        return QWidget::sizeHint().expandedTo(QSize(m_leastWidth, 0));
    }
    QSize minimumSizeHint() const override
    {
        return QWidget::minimumSizeHint().expandedTo(QSize(m_leastWidth, 0));
    }

private:
    ResultLabel* makeLabel(const QString& name, const QString& words, double size);

    int m_leastWidth{};
    ResultLabel* m_lblTime;
    ResultLabel* m_lblAlarm;
    ResultLabel* m_lblOffset;
    ResultLabel* m_lblZone;
    ResultLabel* m_lblShip;
    ResultLabel* m_lblMEMO;
    ResultLabel* m_lbl1NM;
    ResultLabel* m_lblTD;
    ResultLabel* m_lblFault;
};

} // namespace korvel
