// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/ComputerClock.h"

#include <memory>

namespace korvel
{

/// The clock that a program runs on. Which one is decided by what the program is linked with: the
/// shipped program takes the computer's, a trial program one that cannot be set.
std::unique_ptr<ComputerClock> makeComputerClock();

} // namespace korvel
