// SPDX-License-Identifier: MIT
#include "navlib/great_circle.h"

#include "navlib/angles.h"
#include "navlib/sailing.h"

#include <cmath>

namespace NavFunc113
{
namespace
{

// Below this sine (some micrometres on the earth) two points or a point and a circle are one.
constexpr double indistinguishable = 1e-12;

Degrees courseOf(double eastPart, double northPart)
{
    const Degrees course = RadToDeg(std::atan2(eastPart, northPart));
    if (course >= 0) return course;
    return course + 360 < 360 ? course + 360 : 0;
}

Degrees withinHalfTurn(Degrees lambda)
{
    if (lambda > 180) return lambda - 360;
    return lambda <= -180 ? lambda + 360 : lambda;
}

struct Departure {
    Radians phi1;
    double sinCourse;
    double cosCourse;
};

/// Longitudes are counted from the departure in the direction of travel.
std::optional<Vertex> vertexOf(const Departure& from, DegMin long1, Radians phi2, Degrees change)
{
    const double acrossMeridians = std::fabs(from.sinCourse);
    const Radians phi =
        std::atan2(std::hypot(from.cosCourse, acrossMeridians * std::sin(from.phi1)),
                   acrossMeridians * std::cos(from.phi1));
    if (phi < indistinguishable) return std::nullopt;
    Degrees run = RadToDeg(std::atan2(from.cosCourse, acrossMeridians * std::sin(from.phi1)));
    const Degrees whole = std::fabs(change);
    // run leads to the northern vertex; the southern one lies half a turn away.
    bool northern = std::fabs(from.phi1) > std::fabs(phi2) ? from.phi1 > 0 : phi2 > 0;
    const Degrees southernRun = run > 0 ? run - 180 : run + 180;
    const bool northernOnRoute = run > 0 && run < whole;
    const bool southernOnRoute = southernRun > 0 && southernRun < whole;
    if (northernOnRoute || southernOnRoute) northern = northernOnRoute;
    if (!northern) run = southernRun;

    const Degrees lat = RadToDeg(phi);
    const Degrees lambda = withinHalfTurn(DegMinToDeg(long1) + std::copysign(run, run * change));
    return Vertex{DegToDegMin(northern ? lat : -lat), DegToDegMin(lambda),
                  northernOnRoute || southernOnRoute};
}

} // namespace

std::optional<GreatCircleTrack> TrackOfGreatCircle(DegMin lat1, DegMin long1, DegMin lat2,
                                                   DegMin long2)
{
    const Radians phi1 = DegToRad(DegMinToDeg(lat1));
    const Radians phi2 = DegToRad(DegMinToDeg(lat2));
    const Degrees change = ChangeOfLongitude(long1, long2);
    const bool acrossPole = std::fabs(change) == 180;
    const double sinChange = acrossPole ? 0 : std::sin(DegToRad(change));
    const double cosChange = acrossPole ? -1 : std::cos(DegToRad(change));

    const double east = sinChange * std::cos(phi2);
    const double north =
        std::cos(phi1) * std::sin(phi2) - std::sin(phi1) * std::cos(phi2) * cosChange;
    const double sinDistance = std::hypot(east, north);
    if (sinDistance < indistinguishable) return std::nullopt;

    GreatCircleTrack track;
    track.initialCourse = courseOf(east, north);
    track.finalCourse =
        courseOf(sinChange * std::cos(phi1),
                 std::sin(phi2) * std::cos(phi1) * cosChange - std::cos(phi2) * std::sin(phi1));
    if (east == 0) {
        const bool northern = acrossPole                          ? north > 0
                              : std::fabs(phi1) > std::fabs(phi2) ? phi1 > 0
                                                                  : phi2 > 0;
        track.vertex = Vertex{northern ? 90.0 : -90.0, long1, acrossPole};
    } else {
        track.vertex =
            vertexOf({phi1, east / sinDistance, north / sinDistance}, long1, phi2, change);
    }
    return track;
}

} // namespace NavFunc113
