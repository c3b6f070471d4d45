// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PassageShown.h"

namespace korvel
{

/// How the sums and times of a plan came about, leg by leg.
Working planWorking(const PassagePlan& plan, const PlanReckoning& reckoning,
                    const PassageShown& shown);

/// The composite legs: their tangent points and pieces.
std::vector<Working> compositeWorkings(const PlanReckoning& reckoning);

/// What is shown of the row in hand.
Working rowWorking(const PlanInHand& work, const PassageShown& shown);

} // namespace korvel
