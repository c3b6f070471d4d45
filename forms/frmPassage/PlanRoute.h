// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanReckoning.h"

namespace korvel
{

/// A plan for a file, or why there is none.
struct RouteOfPlan {
    Route route;
    std::string fault; ///< the row that has no position; empty when the route is there
};

/// The rows that hold anything, with their times as far as they are known.
RouteOfPlan routeOfPlan(const PassagePlan& plan, const PlanReckoning& reckoning);

/// A plan from a file.
struct PlanOfRoute {
    PassagePlan plan;
    std::vector<std::string> remarks; ///< what the plan has otherwise than the file
};

/// The times of the file's first point become those of the departure, in UTC. Where no point has a
/// speed, speeds are worked out from the times; where one has times of arrival and departure but no
/// stop, so is the stop.
PlanOfRoute planOfRoute(const Route& route, const PlanConditions& conditions);

} // namespace korvel
