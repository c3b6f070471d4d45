// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/ComputerClock.h"
#include "app/machine/Questions.h"
#include "app/records/FileStore.h"
#include "shell/machine/Bell.h"

namespace korvel
{

/// What the program asks of the machine, handed in at construction.
struct Machine {
    Questions& questions;
    ComputerClock& clock;
    FileStore& files;
    Bell& bell;
};

} // namespace korvel
