// SPDX-License-Identifier: MIT
#include "shell/machine/FaultGuard.h"

#include <exception>

namespace korvel
{

bool FaultGuard::run(const std::function<bool()>& deliver)
{
    try {
        return deliver();
    } catch (const std::exception& error) {
        met(error.what());
    } catch (...) {
        met("unknown");
    }
    return false;
}

void FaultGuard::met(const std::string& fault)
{
    if (!m_met.insert(fault).second) return;
    QMetaObject::invokeMethod(
        this,
        [this, fault] {
            saveEverything();
            tell(fault);
        },
        Qt::QueuedConnection);
}

} // namespace korvel
