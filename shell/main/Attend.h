// SPDX-License-Identifier: MIT
#pragma once

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
/// brings it to the front, SIGTERM and logout end the session, its end ends the program.
/// @param callers, window must outlive the event loop
void attend(const Callers& callers, frmKORVEL2000& window);

} // namespace korvel
