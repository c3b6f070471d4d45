// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmTanks/SheetInHand.h"

namespace korvel
{

/// The working of the tank in hand, step by step.
Working tankWorking(const SheetInHand& work, ListKind kind);

/// The tables and constants that were used, a sentence each, and what the figures are good for.
std::vector<std::string> tankLimits(const TankReckoning& reckoning);

} // namespace korvel
