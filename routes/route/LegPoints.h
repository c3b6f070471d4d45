// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/angles.h"
#include "navlib/sailing/composite_sailing.h"
#include "routes/route/Route.h"

#include <vector>

namespace korvel
{

inline NavFunc113::GeoPoint geoPoint(const RoutePoint& point)
{
    return {DegToDegMin(point.latitude), DegToDegMin(point.longitude)};
}

/// A point of a leg, and how the leg comes to it.
struct LegPoint {
    NavFunc113::GeoPoint at;
    LegKind leg;            ///< rhumb line or great circle
    bool isTangent = false; ///< of a circle and the limiting parallel
};

/// The points of a leg in the order of travel, the arrival last, the departure not among them: none
/// on a rhumb line, the tangent points of a composite leg, and on circles those of the step.
///
/// On meridians as many degrees apart as the step says, whole multiples of it; or as many miles
/// apart, counted from the beginning of the circle. A leg along a meridian has no points on
/// meridians. A limit beyond which an end lies, or of 0 or 90 degrees, is no limit: the great
/// circle.
std::vector<LegPoint> pointsOfLeg(const NavFunc113::GeoPoint& from, const NavFunc113::GeoPoint& to,
                                  LegKind kind, const CircleStep& step, NavFunc113::DegMin limit);

} // namespace korvel
