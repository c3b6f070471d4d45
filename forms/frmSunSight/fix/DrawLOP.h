// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/fix/SightFix.h"

#include <optional>
#include <string>
#include <vector>

/// Geometry of the plot in picSunSight: a plane chart around the DR position, x miles to the east,
/// y miles to the north of it.
namespace korvel
{

struct PlotPoint {
    double x{};
    double y{};
};

struct PlotGridLine {
    PlotPoint from, to;
    std::string label;
};

struct PlotLine {
    std::size_t index{}; ///< in the list of sights
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

/// The part of the chart that is shown: a square around a point.
struct PlotView {
    PlotPoint centre; ///< the DR position at first
    double half = 40; ///< miles each way

    bool shows(const PlotPoint& point) const;
};

struct SightPlot {
    PlotView view;
    std::optional<NavFunc113::Position> middle;
    std::string DRLabel;
    std::vector<PlotGridLine> grid;
    std::vector<PlotLine> lines;
    std::optional<PlotFix> fix;
    std::vector<PlotFix> without; ///< of lines that do not agree: the fixes without one of them
    std::string notice;           ///< what lies outside
};

/// The plot of the lines of a fix, around its DR position; empty when there is none.
SightPlot DrawLOP(const SightFixResult& fix, const PlotView& view = {});

/// The smallest view, of 2 miles at least, that shows the DR position, the feet of all intercepts
/// and the fix.
PlotView viewOfAll(const SightPlot& plot);

/// A view nearer to or farther from a point, which stays where it is on the screen.
/// @param factor below 1: nearer; the view has 2 to 200 miles each way
PlotView zoomed(const PlotView& view, double factor, const PlotPoint& around);

struct CursorTexts {
    std::string latitude;  ///< "  14.-06'0N"
    std::string longitude; ///< "052.-25'8W"
};
/// Position under the pointer; empty texts off the plot.
CursorTexts cursorTexts(const SightPlot& plot, PlotPoint at);

} // namespace korvel
