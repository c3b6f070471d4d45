// SPDX-License-Identifier: MIT
#include "app/shell/GuardedApplication.h"

#include "app/shell/SessionQuestions.h"

#include <exception>

namespace korvel
{

bool GuardedApplication::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const SessionEnded&) {
        return true; // whoever asked is to go away without an answer
    } catch (const std::exception& error) {
        met(error.what());
    } catch (...) {
        met("unknown");
    }
    return false;
}

void GuardedApplication::met(const std::string& fault)
{
    if (!m_told.insert(fault).second) return;
    // Not here: the event that failed may have been half a painting.
    QMetaObject::invokeMethod(
        this,
        [this, fault] {
            saveEverything();
            tell(fault);
        },
        Qt::QueuedConnection);
}

} // namespace korvel
