// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <optional>

namespace NavFunc113
{

/// The point of a great circle that lies farthest from the equator.
struct Vertex {
    DegMin lat;
    DegMin longitude;     ///< -180 < longitude <= 180
    bool onRoute = false; ///< between departure and arrival, neither of them counted
};

/// Courses and vertex of a great-circle route on the sphere.
struct GreatCircleTrack {
    Degrees initialCourse; ///< true, 0 <= course < 360
    Degrees finalCourse;   ///< true, 0 <= course < 360
    /// Of the circle's two vertices the one on the route; if none lies there, the one beyond the
    /// end that is farther from the equator. On a route along a meridian a pole, given the
    /// longitude of the departure. Nothing on the equator, all of which is equally far.
    std::optional<Vertex> vertex;
};

/// Track of the shorter great circle between two positions. Meridians 180 degrees apart, to
/// within 1e-9, are joined over the pole that is nearer.
///
/// Source of the formulas: spherical triangle of the two positions and the pole (four-parts
/// formula) and Napier's rules for the right-angled triangle at the vertex; Bowditch, American
/// Practical Navigator, chapter "The Sailings".
/// @return nothing for equal and for opposite positions, between which no course is defined
std::optional<GreatCircleTrack> TrackOfGreatCircle(DegMin lat1, DegMin long1, DegMin lat2,
                                                   DegMin long2);

} // namespace NavFunc113
