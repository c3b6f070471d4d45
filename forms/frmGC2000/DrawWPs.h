// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/UserScale.h"
#include "forms/frmGC2000/CalculateGC.h"

#include <string>
#include <vector>

namespace korvel
{

struct ChartPoint {
    double longitude{}; ///< decimal degrees in the frame of the chart, -180 .. 540
    double lat{};       ///< decimal degrees
};

struct ChartLine {
    ChartPoint from;
    ChartPoint to;
};

struct ChartLabel {
    double at{};      ///< decimal degrees along its edge, in the frame of the chart
    std::string text; ///< "140°E", "40°N"
};

/// Everything that the picture of a route shows, in decimal degrees. West is always left.
struct GCChart {
    UserScale scale;
    std::vector<ChartLine> grid;   ///< meridians and parallels every ten degrees, in grey
    ChartLine equator;             ///< in red, over the grid
    std::vector<ChartPoint> route; ///< departure, waypoints, arrival: straight legs between them
    std::vector<ChartPoint> rhumbLine;      ///< from departure to arrival, a curve on this chart
    std::vector<ChartLabel> meridianLabels; ///< those within the scale, on the grid where it has
                                            ///< enough lines there, on finer ticks otherwise
    std::vector<ChartLabel> parallelLabels;
};

/// Chart of a route. The frame is -180 .. 180 when a waypoint lies on the meridian of Greenwich and
/// 0 .. 360 otherwise, so that a route is never torn.
/// @param route as CalculateGC leaves it; an empty one gives a chart without route and labels
GCChart DrawWPs(const GCRoute& route);

} // namespace korvel
