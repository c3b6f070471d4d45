// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/SightFix.h"

#include <optional>
#include <string>
#include <vector>

/// Geometry of the plot in picSunSight: a plane chart around the DR position, x miles to the east,
/// y miles to the north of it.
namespace korvel
{

struct PlotPoint {
    double x = 0;
    double y = 0;
};

struct PlotGridLine {
    PlotPoint from, to;
    std::string label;
};

struct PlotLine {
    std::size_t index = 0; ///< in the list of sights
    /// Runs of points on the circle of position, more than one where it leaves the chart's world
    /// near a pole; not clipped.
    std::vector<std::vector<PlotPoint>> runs;
    std::string label; ///< "1145", advanced "1145-1530", UTC
    PlotPoint labelAt;
    PlotPoint foot;       ///< of the intercept, which is drawn from the DR position
    PlotPoint arrowTo;    ///< azimuth arrow, from the foot
    bool visible = false; ///< some of it lies on the plot
};

struct PlotFix {
    PlotPoint at;
    std::vector<PlotPoint> ellipse; ///< closed; empty when there is none
    std::string label;
};

struct SightPlot {
    static constexpr double half = 40; ///< miles each way
    std::optional<NavFunc113::Position> middle;
    std::string DRLabel;
    std::vector<PlotGridLine> grid;
    std::vector<PlotLine> lines;
    std::optional<PlotFix> fix;
    std::vector<PlotFix> without; ///< of lines that do not agree: the fixes without one of them
    std::string notice;           ///< what lies outside
};

/// The plot of the lines of a fix, around its DR position; empty when there is none.
SightPlot DrawLOP(const SightFixResult& fix);

struct CursorTexts {
    std::string latitude;  ///< "  14.-06'0N"
    std::string longitude; ///< "052.-25'8W"
};
/// Position under the pointer; empty texts off the plot.
CursorTexts cursorTexts(const SightPlot& plot, PlotPoint at);

} // namespace korvel
