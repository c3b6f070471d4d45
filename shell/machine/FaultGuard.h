// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <set>
#include <string>

namespace korvel
{

/// The one place where an exception that no window has caught ends: the event loop must not meet
/// it. The records are written, the officer is told, and the program goes on.
class FaultGuard : public QObject
{
public:
    /// What is done about a fault before anybody is told.
    std::function<void()> saveEverything = [] {};
    /// Tells the officer.
    std::function<void(const std::string& fault)> tell = [](const std::string&) {};

    /// Delivers an event and catches what comes out. A fault is dealt with from the event loop
    /// later, for the event may have been half a painting; and once, however often it comes: a
    /// window that cannot be painted would ask to be painted again behind every box.
    /// @return what deliver returns; false after a fault
    bool run(const std::function<bool()>& deliver);

private:
    void met(const std::string& fault);

    std::set<std::string> m_met;
};

} // namespace korvel
