// SPDX-License-Identifier: MIT
#pragma once

#include "app/watch/Alarms.h"
#include "shell/machine/Bell.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <deque>
#include <set>

class QKeyEvent;
class QMessageBox;

namespace korvel
{

/// Shows what has fallen due, one box at a time, in front of every other window, open questions
/// and other programs included. The boxes run beside the event loop: the clocks go on, and what
/// falls due meanwhile waits in a list.
///
/// The officer may be in the middle of a number. For the first second a box only stands there and
/// rings: keys go on to where they went before. Then it takes the keyboard, unless the officer is
/// working in another program, and blocks the program until it is acknowledged.
class AlarmBoxes : public QObject
{
public:
    /// @param bell must outlive this object; rings until an alarm's box is acknowledged
    explicit AlarmBoxes(Bell& bell);
    ~AlarmBoxes() override;

    void show(const std::vector<DueAlarm>& due);

    /// Also takes keys that a window manager, which gives new windows the keyboard, sends to the
    /// box in its first second.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showNext();
    void takeKeyboard();
    QMessageBox* makeBox();
    bool passOn(const QKeyEvent& key);

    Bell& m_bell;
    std::deque<DueAlarm> m_waiting;
    DueAlarm m_shown{};
    QPointer<QMessageBox> m_box;
    QTimer m_firstSecond;
    QPointer<QWidget> m_acknowledged; ///< on its way out, but it may be the active window still
    QPointer<QWidget> m_hand;         ///< the window under the officer's hand
    std::set<int> m_passedDown;       ///< keys pressed there and not released yet
};

} // namespace korvel
