// SPDX-License-Identifier: MIT
#include "forms/frmGC2000/CalculateGC.h"

#include "app/Format.h"
#include "app/reading.h"
#include "navlib/great_circle.h"

#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::ChangeOfLongitude;
using NavFunc113::DegMin;

constexpr const char* latFormat = "0.00'0N;0.00'0S";
constexpr const char* longFormat = "0.00'0E;0.00'0W";
// The apostrophe stands after the point here and before it in frmCDDR: both on purpose.
constexpr const char* milesFormat = "0.'0";
constexpr std::size_t mostWaypoints = GCResult::rowCount - 1; // after the departure

struct Ends {
    DegMin lat1, long1, lat2, long2;
};

bool allInRange(const std::array<std::string, 4>& boxes)
{
    // The chart ends at 75 degrees; great circles between higher latitudes would leave it.
    return IsInRange(boxes[0], "-65", "65") && IsInRange(boxes[1], "-180", "180") &&
           IsInRange(boxes[2], "-65", "65") && IsInRange(boxes[3], "-180", "180");
}

/// The first whole ten degrees beyond a longitude in the direction of the route.
DegMin firstMeridian(DegMin long1, bool eastward)
{
    const double tens = std::floor(long1 / 10) * 10;
    if (eastward) return tens + 10;
    return tens == long1 ? tens - 10 : tens;
}

/// Keeps a meridian within half a turn; the one opposite Greenwich is -180 on the way east and 180
/// on the way west.
DegMin wrapped(DegMin meridian, bool eastward)
{
    if (eastward) return meridian >= 180 ? meridian - 360 : meridian;
    return meridian <= -180 ? meridian + 360 : meridian;
}

std::vector<DegMin> meridiansOfRoute(const Ends& ends, bool eastward)
{
    const std::string beyond = eastward ? "West" : "East";
    std::vector<DegMin> meridians;
    DegMin meridian = wrapped(firstMeridian(ends.long1, eastward), eastward);
    while (meridians.size() < mostWaypoints) {
        // 180 and -180 are one meridian: a route that has come there has arrived.
        const bool arrived = ChangeOfLongitude(meridian, ends.long2) == 0;
        const bool passed = NavFunc113::EastWest(meridian, ends.long2) == beyond;
        meridians.push_back(passed ? ends.long2 : meridian);
        if (arrived || passed) break;
        meridian = wrapped(meridian + (eastward ? 10 : -10), eastward);
    }
    return meridians;
}

GCRoute routeBetween(const Ends& ends, int spheroid)
{
    GCRoute route;
    route.eastward = NavFunc113::EastWest(ends.long1, ends.long2) == "East";
    route.waypoints.push_back({ends.lat1, ends.long1});
    const NavFunc113::GreatCircle circle(ends.lat1, ends.long1, ends.lat2, ends.long2);
    for (const DegMin meridian : meridiansOfRoute(ends, route.eastward))
        route.waypoints.push_back({circle.latitudeAt(meridian), meridian});
    // Along a meridian every latitude lies on it: the last waypoint is the arrival itself.
    const double change = std::fabs(ChangeOfLongitude(ends.long1, ends.long2));
    if (change == 0 || change == 180) route.waypoints.back().lat = ends.lat2;

    for (std::size_t i = 0; i + 1 < route.waypoints.size(); ++i) {
        const GCWaypoint& from = route.waypoints[i];
        const GCWaypoint& to = route.waypoints[i + 1];
        route.legs.push_back(NavFunc113::RhumbCourseAndDistance(from.lat, from.longitude, to.lat,
                                                                to.longitude, spheroid));
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

void fillTrack(GCResult& result, const Ends& ends)
{
    const auto track = NavFunc113::TrackOfGreatCircle(ends.lat1, ends.long1, ends.lat2, ends.long2);
    if (!track) return;
    result.initialCourse = courseText(track->initialCourse);
    result.finalCourse = courseText(track->finalCourse);
    if (!track->vertex) return;
    result.vertex = GCWaypoint{track->vertex->lat, track->vertex->longitude};
    result.vertexLat = Format(track->vertex->lat, latFormat);
    result.vertexLong = Format(track->vertex->longitude, longFormat);
    result.vertexRemark = track->vertex->onRoute ? "on the route" : "beyond the route";
}

} // namespace

GCResult CalculateGC(const GCInput& input)
{
    GCResult result;
    if (!allInRange(input.txtGC)) return result;
    const Ends ends{readNumber(input.txtGC[0]), readNumber(input.txtGC[1]),
                    readNumber(input.txtGC[2]), readNumber(input.txtGC[3])};
    const auto rhumbLine = [&](int spheroid) {
        return NavFunc113::RhumbDistance(ends.lat1, ends.long1, ends.lat2, ends.long2, spheroid);
    };
    const double greatCircle = NavFunc113::GCDistance(ends.lat1, ends.long1, ends.lat2, ends.long2);
    const double rhumb = rhumbLine(input.spheroid);
    result.route = routeBetween(ends, input.spheroid);
    double sumOfLegs = 0;
    for (const auto& leg : result.route.legs)
        sumOfLegs += leg.distance;

    fillTable(result);
    result.lblGC2000 = {Format(rhumb, milesFormat), Format(greatCircle, milesFormat),
                        Format(sumOfLegs, milesFormat)};
    fillTrack(result, ends);
    // The great circle is measured on the sphere, so the line it is compared with is too.
    result.saving = Format(std::fmax(0, rhumbLine(0) - greatCircle), milesFormat);
    return result;
}

} // namespace korvel
