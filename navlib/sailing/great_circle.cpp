// SPDX-License-Identifier: MIT
#include "navlib/sailing/great_circle.h"

#include "navlib/angles.h"
#include "navlib/sailing/sailing.h"

#include <cmath>

namespace NavFunc113
{
namespace
{

// Below this sine (some micrometres on the earth) two points or a point and a circle are one.
constexpr double indistinguishable = 1e-12;

// Minutes that are no exact binary fractions let opposite meridians miss half a turn by this.
constexpr Degrees sameMeridian(1e-9);

Degrees withinHalfTurn(Degrees lambda)
{
    if (lambda > halfTurn) return lambda - fullTurn;
    return lambda <= -halfTurn ? lambda + fullTurn : lambda;
}

/// Whether the end that is farther from the equator lies north of it.
bool isNorthern(Radians phi1, Radians phi2)
{
    return (fabs(phi1) > fabs(phi2) ? phi1 : phi2) > Radians(0);
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
    const Radians phi(std::atan2(std::hypot(from.cosCourse, acrossMeridians * sin(from.phi1)),
                                 acrossMeridians * cos(from.phi1)));
    if (phi < Radians(indistinguishable)) return std::nullopt;
    Degrees run = RadToDeg(Radians(std::atan2(from.cosCourse, acrossMeridians * sin(from.phi1))));
    const Degrees whole = fabs(change);
    // run leads to the northern vertex; the southern one lies half a turn away.
    const bool northern = isNorthern(from.phi1, phi2);
    const Degrees southernRun = run > Degrees(0) ? run - halfTurn : run + halfTurn;
    const auto isOnRoute = [whole](Degrees at) { return at > Degrees(0) && at < whole; };
    const bool northernOnRoute = isOnRoute(run);
    const bool southernOnRoute = isOnRoute(southernRun);
    if (!northern) run = southernRun;

    const Degrees lat = RadToDeg(phi);
    const bool eastward = change > Degrees(0);
    const Degrees lambda = withinHalfTurn(DegMinToDeg(long1) + (eastward ? run : -run));
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
    const bool acrossPole = fabs(fabs(change) - halfTurn) < sameMeridian;
    const double sinChange = acrossPole ? 0 : sin(change);
    const double cosChange = acrossPole ? -1 : cos(change);

    const double east = sinChange * cos(phi2);
    const double north = cos(phi1) * sin(phi2) - sin(phi1) * cos(phi2) * cosChange;
    const double sinDistance = std::hypot(east, north);
    if (sinDistance < indistinguishable) return std::nullopt;

    GreatCircleTrack track;
    track.initialCourse = CourseOfParts(east, north);
    track.finalCourse = CourseOfParts(sinChange * cos(phi1),
                                      sin(phi2) * cos(phi1) * cosChange - cos(phi2) * sin(phi1));
    if (east == 0) {
        const bool northern = acrossPole ? north > 0 : isNorthern(phi1, phi2);
        track.vertex = Vertex{DegMin(northern ? 90 : -90), long1, acrossPole};
    } else {
        track.vertex =
            vertexOf({phi1, east / sinDistance, north / sinDistance}, long1, phi2, change);
    }
    return track;
}

} // namespace NavFunc113
