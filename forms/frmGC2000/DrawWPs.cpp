// SPDX-License-Identifier: MIT
#include "forms/frmGC2000/DrawWPs.h"

#include "app/reading/Format.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;

constexpr double westernmost = -180;
constexpr double easternmost = 540; // both frames find their lines
constexpr double beyondRoute = 12;  // degrees of longitude at either side
constexpr double aboveRoute = 2;
constexpr double belowRoute = 3; // the meridians are labelled there

std::vector<double> drawingLongitudes(const std::vector<GCWaypoint>& waypoints)
{
    const bool atGreenwich =
        std::any_of(waypoints.begin(), waypoints.end(), [](const GCWaypoint& waypoint) {
            return waypoint.longitude == NavFunc113::DegMin(0);
        });
    std::vector<double> drawn;
    for (const GCWaypoint& waypoint : waypoints) {
        const double lambda = NavFunc113::DegMinToDeg(waypoint.longitude).value();
        drawn.push_back(!atGreenwich && lambda <= 0 ? lambda + 360 : lambda);
    }
    // The meridian opposite Greenwich is both edges of a frame: it goes where its neighbour is.
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        if (std::fabs(drawn[i]) != 180 || drawn.size() < 2) continue;
        const double apart = drawn[i] - drawn[i > 0 ? i - 1 : 1];
        if (std::fabs(apart) > 180) drawn[i] -= std::copysign(360, apart);
    }
    return drawn;
}

UserScale scaleOf(const std::vector<ChartPoint>& route, bool eastward)
{
    const auto [lowest, highest] =
        std::minmax_element(route.begin(), route.end(),
                            [](const ChartPoint& a, const ChartPoint& b) { return a.lat < b.lat; });
    const double west = eastward ? route.front().longitude : route.back().longitude;
    const double east = eastward ? route.back().longitude : route.front().longitude;
    return {west - beyondRoute, highest->lat + aboveRoute, east + beyondRoute,
            lowest->lat - belowRoute};
}

std::vector<ChartLine> gridLines()
{
    std::vector<ChartLine> grid;
    for (double longitude = westernmost; longitude <= easternmost; longitude += 10)
        grid.push_back({{longitude, 75}, {longitude, -75}});
    for (double lat = 70; lat >= -70; lat -= 10)
        grid.push_back({{westernmost, lat}, {easternmost, lat}});
    return grid;
}

/// Longitude grows with the meridional parts, not with the latitude: on this chart a curve.
std::vector<ChartPoint> rhumbLineBetween(const ChartPoint& from, const ChartPoint& to)
{
    constexpr int pieces = 48;
    const double partsLeft = NavFunc113::MeridionalParts(Degrees(from.lat));
    const double parts = NavFunc113::MeridionalParts(Degrees(to.lat)) - partsLeft;
    if (parts == 0 || from.longitude == to.longitude) return {from, to};
    std::vector<ChartPoint> line{from};
    for (int i = 1; i < pieces; ++i) {
        const double lat = from.lat + (to.lat - from.lat) * i / pieces;
        const double share = (NavFunc113::MeridionalParts(Degrees(lat)) - partsLeft) / parts;
        line.push_back({from.longitude + (to.longitude - from.longitude) * share, lat});
    }
    line.push_back(to);
    return line;
}

std::vector<ChartLabel> labelsBetween(double low, double high, std::string (*text)(double))
{
    // A short route may lie between two lines of the grid: then finer ticks are labelled.
    double step = 10;
    for (const double finer : {5.0, 2.0, 1.0})
        if (high - low < 3 * step) step = finer;
    std::vector<ChartLabel> labels;
    for (double at = std::ceil(low / step) * step; at <= high; at += step)
        labels.push_back({at, text(at)});
    return labels;
}

std::string meridianText(double longitude)
{
    const double lambda = std::remainder(longitude, 360);
    if (lambda == 0 || std::fabs(lambda) == 180) return Format(std::fabs(lambda), "0°");
    return Format(lambda, "0°E;0°W");
}

std::string parallelText(double lat)
{
    return lat == 0 ? "0°" : Format(lat, "0°N;0°S");
}

} // namespace

GCChart DrawWPs(const GCRoute& route)
{
    GCChart chart;
    chart.grid = gridLines();
    chart.equator = {{-180, 0}, {360, 0}};
    if (route.waypoints.empty()) return chart;

    const std::vector<double> longitudes = drawingLongitudes(route.waypoints);
    for (std::size_t i = 0; i < longitudes.size(); ++i)
        chart.route.push_back(
            {longitudes[i], NavFunc113::DegMinToDeg(route.waypoints[i].lat).value()});
    chart.scale = scaleOf(chart.route, route.eastward);
    chart.rhumbLine = rhumbLineBetween(chart.route.front(), chart.route.back());
    chart.meridianLabels = labelsBetween(chart.scale.left, chart.scale.right, meridianText);
    chart.parallelLabels = labelsBetween(chart.scale.bottom, chart.scale.top, parallelText);
    return chart;
}

} // namespace korvel
