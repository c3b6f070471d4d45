// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace korvel
{

class FaultGuard;
class FolderLock;
class TerminationWatch;
class frmKORVEL2000;

/// Where word from outside the program arrives.
struct Callers {
    FaultGuard& guard;
    FolderLock& lock;
    TerminationWatch& termination;
};

/// From now on the main window answers: a fault saves every record, another start in the folder
/// brings it to the front, SIGTERM and logout end the session.
/// @param callers, window must outlive the event loop
/// @param atEnd what follows the end of the session, from the event loop
void attend(const Callers& callers, frmKORVEL2000& window, const std::function<void()>& atEnd);

} // namespace korvel
