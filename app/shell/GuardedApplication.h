// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>

#include <functional>
#include <set>

namespace korvel
{

/// The application, and the one place where an exception that no window has caught ends: the event
/// loop must not meet it. The records are written, the officer is told, and the program goes on.
class GuardedApplication : public QApplication
{
public:
    GuardedApplication(int& argc, char** argv) : QApplication(argc, argv) {}

    /// What is done about a fault at once, before anybody is told.
    std::function<void()> saveEverything = [] {};
    /// Tells the officer. Called from the event loop, once for each fault, however often it comes:
    /// a window that cannot be painted would ask to be painted again behind every box.
    std::function<void(const std::string& fault)> tell = [](const std::string&) {};

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void met(const std::string& fault);

    std::set<std::string> m_told;
};

} // namespace korvel
