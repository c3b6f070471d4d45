// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/sailing/great_circle.h"
#include "navlib/sailing/sailing.h"
#include "navlib/units.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace korvel
{

struct GCInput {
    std::array<std::string, 4> txtGC; ///< lat1, long1, lat2, long2, packed
    NavFunc113::Earth earth = NavFunc113::Earth::Sphere;
};

struct GCWaypoint {
    NavFunc113::DegMin lat;
    NavFunc113::DegMin longitude;
};

/// Working data of one calculation, from which the picture is drawn.
struct GCRoute {
    std::vector<GCWaypoint> waypoints;      ///< departure first, 2 to 20; empty: nothing to draw
    std::vector<NavFunc113::RhumbLeg> legs; ///< leg i runs from waypoint i to waypoint i + 1
    bool eastward = false;
    NavFunc113::Radians initialAngle; ///< of the circle on which the waypoints lie
};

struct GCRow {             ///< texts of one row of the table; an empty text blanks the label
    std::string lat;       ///< lblWpLat
    std::string longitude; ///< lblWpLong
    std::string course;    ///< lblWpCo
    std::string distance;  ///< lblWpDist
};

/// What the results beside the table were calculated from.
struct GCFigures {
    std::array<NavFunc113::DegMin, 4> ends; ///< lat1, long1, lat2, long2
    NavFunc113::RhumbLeg rhumbLine;
    NavFunc113::Miles rhumbLineOnSphere;
    NavFunc113::Miles greatCircle;
    NavFunc113::Miles sumOfLegs;
    std::optional<NavFunc113::GreatCircleTrack> track;
};

struct GCResult {
    static constexpr int rowCount = 20;
    std::array<GCRow, rowCount> rows;
    std::array<std::string, 3> lblGC2000; ///< miles by rhumb line, by great circle, sum of the legs

    // What the officer gets beyond the table; empty where there is no such thing.
    std::string initialCourse; ///< of the great circle, "<054.3>"
    std::string finalCourse;
    std::string vertexLat;
    std::string vertexLong;
    std::string vertexRemark; ///< "on the route" or "beyond the route"
    std::optional<GCWaypoint> vertex;
    std::string saving; ///< miles by which the great circle is shorter than the rhumb line

    GCRoute route;
    std::optional<GCFigures> figures; ///< of the results with full precision
    std::string notice;               ///< why everything is blank
};

/// Great-circle route with a waypoint on every tenth meridian. An input out of range blanks
/// everything, the picture too.
/// @throws ArithmeticError from the library; the window base shows it.
GCResult CalculateGC(const GCInput& input);

} // namespace korvel
