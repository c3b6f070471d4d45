// SPDX-License-Identifier: MIT
#include "forms/frmGC2000/CalculateGC.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "forms/frmGC2000/GCFields.h"
#include "navlib/sailing/great_circle.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::ChangeOfLongitude;
using NavFunc113::DegMin;
using NavFunc113::Degrees;
using NavFunc113::Earth;
using NavFunc113::EastOrWest;
using NavFunc113::EastWest;
using NavFunc113::Miles;

constexpr const char* latFormat = "0.00'0N;0.00'0S";
constexpr const char* longFormat = "0.00'0E;0.00'0W";
// The apostrophe stands after the point here and before it in frmCDDR: both on purpose.
constexpr const char* milesFormat = "0.'0";
constexpr std::size_t mostWaypoints = GCResult::rowCount - 1; // after the departure

struct Ends {
    DegMin lat1, long1, lat2, long2;
};

/// The first whole ten degrees beyond a longitude in the direction of the route.
DegMin firstMeridian(DegMin long1, bool eastward)
{
    const double tens = std::floor(long1.packed() / 10) * 10;
    if (eastward) return DegMin(tens + 10);
    return DegMin(tens == long1.packed() ? tens - 10 : tens);
}

/// Keeps a meridian within half a turn; the one opposite Greenwich is -180 on the way east and 180
/// on the way west.
DegMin wrapped(double meridian, bool eastward)
{
    if (eastward) return DegMin(meridian >= 180 ? meridian - 360 : meridian);
    return DegMin(meridian <= -180 ? meridian + 360 : meridian);
}

std::vector<DegMin> meridiansOfRoute(const Ends& ends, bool eastward)
{
    const EastOrWest beyond = eastward ? EastOrWest::West : EastOrWest::East;
    std::vector<DegMin> meridians;
    DegMin meridian = wrapped(firstMeridian(ends.long1, eastward).packed(), eastward);
    while (meridians.size() < mostWaypoints) {
        // 180 and -180 are one meridian: a route that has come there has arrived.
        const bool arrived = ChangeOfLongitude(meridian, ends.long2) == Degrees(0);
        const bool passed = EastWest(meridian, ends.long2) == beyond;
        meridians.push_back(passed ? ends.long2 : meridian);
        if (arrived || passed) break;
        meridian = wrapped(meridian.packed() + (eastward ? 10 : -10), eastward);
    }
    return meridians;
}

GCRoute routeBetween(const Ends& ends, Earth earth)
{
    GCRoute route;
    route.eastward = EastWest(ends.long1, ends.long2) == EastOrWest::East;
    route.waypoints.push_back({ends.lat1, ends.long1});
    const NavFunc113::GreatCircle circle(ends.lat1, ends.long1, ends.lat2, ends.long2);
    route.initialAngle = circle.initialAngle();
    for (const DegMin meridian : meridiansOfRoute(ends, route.eastward))
        route.waypoints.push_back({circle.latitudeAt(meridian), meridian});
    // As it was typed: along a meridian every latitude lies on the circle, and elsewhere its last
    // bits would show as 34.60'0.
    route.waypoints.back().lat = ends.lat2;

    for (std::size_t i = 0; i + 1 < route.waypoints.size(); ++i) {
        const GCWaypoint& from = route.waypoints[i];
        const GCWaypoint& to = route.waypoints[i + 1];
        route.legs.push_back(NavFunc113::RhumbCourseAndDistance(from.lat, from.longitude, to.lat,
                                                                to.longitude, earth));
    }
    return route;
}

void fillTable(GCResult& result)
{
    const GCRoute& route = result.route;
    for (std::size_t i = 0; i < route.waypoints.size(); ++i) {
        GCRow& row = result.rows[i];
        row.lat = Format(route.waypoints[i].lat, latFormat);
        row.longitude = Format(route.waypoints[i].longitude, longFormat);
        if (i == route.legs.size()) break;
        row.course = courseText(route.legs[i].course);
        row.distance = Format(route.legs[i].distance, milesFormat);
    }
}

void fillTrack(GCResult& result, const std::optional<NavFunc113::GreatCircleTrack>& track)
{
    if (!track) return;
    result.initialCourse = courseText(track->initialCourse);
    result.finalCourse = courseText(track->finalCourse);
    if (!track->vertex) return;
    result.vertex = GCWaypoint{track->vertex->lat, track->vertex->longitude};
    result.vertexLat = positionInFull(track->vertex->lat, Axis::Latitude);
    result.vertexLong = positionInFull(track->vertex->longitude, Axis::Longitude);
    result.vertexRemark = track->vertex->onRoute ? "on the route" : "beyond the route";
}

} // namespace

GCResult CalculateGC(const GCInput& input)
{
    GCResult result;
    Remarks remarks;
    const auto read = readFields(input.txtGC, std::span(GCFields), remarks);
    result.notice = remarks.text();
    if (!read) return result;
    const Ends ends{DegMin((*read)[0]), DegMin((*read)[1]), DegMin((*read)[2]), DegMin((*read)[3])};
    GCFigures figures;
    figures.ends = {ends.lat1, ends.long1, ends.lat2, ends.long2};
    figures.greatCircle = NavFunc113::GCDistance(ends.lat1, ends.long1, ends.lat2, ends.long2);
    figures.rhumbLine = NavFunc113::RhumbCourseAndDistance(ends.lat1, ends.long1, ends.lat2,
                                                           ends.long2, input.earth);
    result.route = routeBetween(ends, input.earth);
    for (const auto& leg : result.route.legs)
        figures.sumOfLegs += leg.distance;
    figures.track = NavFunc113::TrackOfGreatCircle(ends.lat1, ends.long1, ends.lat2, ends.long2);
    // The great circle is measured on the sphere, so the line it is compared with is too.
    figures.rhumbLineOnSphere =
        NavFunc113::RhumbDistance(ends.lat1, ends.long1, ends.lat2, ends.long2, Earth::Sphere);

    fillTable(result);
    result.lblGC2000 = {Format(figures.rhumbLine.distance, milesFormat),
                        Format(figures.greatCircle, milesFormat),
                        Format(figures.sumOfLegs, milesFormat)};
    fillTrack(result, figures.track);
    result.saving =
        Format(std::max(Miles(0), figures.rhumbLineOnSphere - figures.greatCircle), milesFormat);
    result.figures = figures;
    return result;
}

} // namespace korvel
