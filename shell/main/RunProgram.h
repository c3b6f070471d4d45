// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/ComputerClock.h"
#include "shell/program/WindowCatalogue.h"

#include <functional>
#include <memory>

namespace korvel
{

using ClockMaker = std::function<std::unique_ptr<ComputerClock>()>;

/// The program from its start to its end: one in a folder, its records settled, faults and the end
/// of the session caught.
/// @param makeClock the clock of the machine; called once no other program holds the folder
/// @param windows   the calculator windows that can be opened
/// @return exit status
int runProgram(int argc, char* argv[], const ClockMaker& makeClock, const WindowCatalogue& windows);

} // namespace korvel
