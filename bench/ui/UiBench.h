// SPDX-License-Identifier: MIT
#pragma once

#include "bench/ui/Keystroke.h"
#include "shell/machine/ProgramFolder.h"
#include "shell/main/frmKORVEL2000.h"
#include "tools/unattended/Unattended.h"

#include <QTemporaryDir>

#include <stdexcept>

namespace korvel::bench
{

class StoppedClock : public ComputerClock
{
public:
    NavFunc113::DateTime now() const override { return 38425.40625; }
    double hoursAheadOfUTC() const override { return 9; }
    std::optional<std::string> set(NavFunc113::DateTime) override { return "not in a bench"; }
};

/// A program in a folder of its own, for windows to be measured in.
struct BenchProgram {
    QTemporaryDir folder;
    NoOfficer questions;
    StoppedClock clock;
    SilentBell bell;
    ProgramFolder files{folder.path()};
    frmKORVEL2000 main{{questions, clock, files, bell}, {}};

    Program& program() { return main.program(); }
};

/// A control of a window by its object name.
template <typename Control>
Control& find(QWidget& window, const char* name)
{
    auto* found = window.findChild<Control*>(name);
    if (!found) throw std::runtime_error(name);
    return *found;
}

} // namespace korvel::bench
