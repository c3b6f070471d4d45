// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PassageShown.h"

namespace korvel
{

/// How the sums and times of a plan came about, leg by leg.
Working planWorking(const PassagePlan& plan, const PlanReckoning& reckoning,
                    const PassageShown& shown);

/// The composite legs: their vertices and pieces.
std::vector<Working> compositeWorkings(const PlanReckoning& reckoning);

/// What is shown of the row in hand.
/// @param sun its events as shown: rise and set, twilight
Working rowWorking(const PlanInHand& work, const PassageShown& shown,
                   const std::array<std::string, 2>& sun);

} // namespace korvel
