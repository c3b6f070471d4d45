// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/sailing/great_circle_arc.h"

#include <optional>

/// Composite sailing: the shortest way that does not pass a limiting latitude, made of a great
/// circle that touches the limiting parallel, a run along it and a great circle that leaves it.
namespace NavFunc113
{

/// What a limiting latitude does to a great-circle route.
enum class CompositeKind {
    NotBinding,     ///< the great circle stays within the limit and is the route
    TwoTangents,    ///< circle, parallel, circle
    OneTangent,     ///< one end lies on the limit: parallel and circle, or circle and parallel
    AlongParallel,  ///< both ends lie on the limit
    EndBeyondLimit, ///< an end lies beyond the limit: there is no such route
};

/// A composite route. Ends, tangent points and pieces are in the order of travel.
struct CompositeTrack {
    CompositeKind kind = CompositeKind::NotBinding;
    /// Where the first circle touches the limit; the departure itself when it lies on the limit.
    /// Nothing unless there is a parallel.
    std::optional<GeoPoint> joins;
    /// Where the second circle leaves the limit; the arrival itself when it lies on the limit.
    std::optional<GeoPoint> leaves;
    Degrees firstChange;  ///< of longitude from the departure to the tangent point, 0 .. 180
    Degrees secondChange; ///< from the other tangent point to the arrival, 0 .. 180
    Miles firstCircle;    ///< the whole route where the limit does not bind
    Miles alongParallel;
    Miles secondCircle;
    Miles distance;   ///< the sum of the three
    Miles fullCircle; ///< without the limit
    /// Along the full circle up to the limit, along the limit, and along the circle again where it
    /// comes back: what the composite route saves is measured against this too.
    Miles leavingTheCircle;
    Degrees initialCourse;  ///< true, 0 <= course < 360
    Degrees parallelCourse; ///< 90 or 270
    Degrees finalCourse;    ///< true, 0 <= course < 360
};

/// The composite route between two positions, by the shorter change of longitude.
///
/// Changes of longitude dLo = acos(tan L / tan Lmax) and arcs d = acos(sin L / sin Lmax) lead from
/// either end to its tangent point; the limit binds when both changes together are less than that
/// of the route.
/// Source: Bowditch, American Practical Navigator, chapter "The Sailings" (composite sailing);
/// Napier's rules for the triangle that is right-angled at the tangent point.
/// @param limit latitude not to be passed: a northern one (positive) is not passed to the north, a
///              southern one (negative) not to the south; 0 < |limit| < 90
/// @param earth lengths of the circles as GreatCircleArc::distance, of the parallel as
///              RhumbDistance
/// @return for EndBeyondLimit the kind and fullCircle alone
/// @throws ArithmeticError InvalidArgument when the limit is 0, a pole or beyond
CompositeTrack CompositeSailing(const GeoPoint& from, const GeoPoint& to, DegMin limit,
                                Earth earth);

} // namespace NavFunc113
