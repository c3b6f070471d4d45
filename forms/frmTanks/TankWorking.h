// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmTanks/TankTexts.h"

namespace korvel
{

/// What was loaded or discharged, from the sums of both surveys, and the ship's figure against the
/// bill of lading or outturn.
Working movedWorking(const SheetInHand& work, const TanksShown& shown);

/// The working of the tank in hand, step by step: in the survey in hand, or in the other one where
/// only that found oil.
Working tankWorking(const SheetInHand& work, ListKind kind);

/// The tables and constants that were used, a sentence each, and what the figures are good for.
std::vector<std::string> tankLimits(const TankReckoning& reckoning);

} // namespace korvel
