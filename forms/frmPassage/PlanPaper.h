// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanTexts.h"

namespace korvel
{

/// Adds to a paper what the bridge files of a plan: when it begins or is to end, one line a leg,
/// stops and changes of clocks, the totals, the list for other programs and the route for chart
/// programs. A plan without rows adds nothing.
void tellPlan(WorkingPaper& paper, const PassagePlan& plan, const PlanReckoning& reckoning);

} // namespace korvel
