// SPDX-License-Identifier: MIT
#pragma once

#include "app/alarms.h"
#include "app/shell/Bell.h"

#include <QObject>
#include <QPointer>

#include <deque>

class QMessageBox;

namespace korvel
{

/// Shows what has fallen due, one box at a time, in front of every other window, open questions
/// included. The boxes run beside the event loop: the clocks go on, and what falls due meanwhile
/// waits in a list.
class AlarmBoxes : public QObject
{
public:
    /// @param bell must outlive this object; rings until an alarm's box is acknowledged
    explicit AlarmBoxes(Bell& bell) : m_bell(bell) {}
    ~AlarmBoxes() override;

    void show(const std::vector<Due>& due);

private:
    void showNext();

    Bell& m_bell;
    std::deque<Due> m_waiting;
    QPointer<QMessageBox> m_box;
};

} // namespace korvel
