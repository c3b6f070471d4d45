// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/ResultLabel.h"

#include <QScrollBar>

#include <functional>

namespace korvel
{

/// lblDate: shows the date; a click, or Enter or Space when it has the focus, asks for another one.
class DateLabel : public ResultLabel
{
public:
    explicit DateLabel(QWidget* parent = nullptr);

    std::function<void()> onClick;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

/// scrDate: steps day by day, by the wheel too, which elsewhere would leap three days a notch.
class DateScrollBar : public QScrollBar
{
public:
    explicit DateScrollBar(QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    int m_turned{}; ///< eighths of a degree that have not made a notch yet
};

} // namespace korvel
