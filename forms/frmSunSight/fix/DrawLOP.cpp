// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/fix/DrawLOP.h"

#include "app/reading/Format.h"
#include "app/reading/Remarks.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

constexpr double nearestView = 2, farthestView = 200; // miles each way

double milesOfDegree(const Position& middle)
{
    return 60 * cos(middle.latitude);
}

PlotPoint inPlane(const Position& position, const Position& middle)
{
    const Degrees east = WithinHalfTurn(position.longitude - middle.longitude);
    return {east.value() * milesOfDegree(middle),
            MilesOfArc(position.latitude - middle.latitude).value()};
}

/// Ten lines at most, on round minutes.
int gridStep(double minutesWide)
{
    for (int step : {1, 2, 5, 10, 20, 30, 60, 120, 300})
        if (minutesWide / step <= 10) return step;
    return 600;
}

std::vector<PlotGridLine> gridAround(const Position& middle, const PlotView& view)
{
    std::vector<PlotGridLine> grid;
    const double left = view.centre.x - view.half, right = view.centre.x + view.half;
    const double foot = view.centre.y - view.half, top = view.centre.y + view.half;
    const double minutesOfMile = 60 / milesOfDegree(middle);
    const int meridians = gridStep(2 * view.half * minutesOfMile);
    const double east = middle.longitude.value() * 60;
    for (double minute = std::ceil((east + left * minutesOfMile) / meridians) * meridians;
         minute <= east + right * minutesOfMile; minute += meridians) {
        const double x = (minute - east) / minutesOfMile;
        grid.push_back({{x, foot}, {x, top}, longitudeText(WithinHalfTurn(Degrees(minute / 60)))});
    }
    const int parallels = gridStep(2 * view.half);
    const double north = middle.latitude.value() * 60;
    for (double minute = std::ceil((north + foot) / parallels) * parallels; minute <= north + top;
         minute += parallels) {
        if (std::fabs(minute) > 90 * 60) continue;
        const double y = minute - north;
        grid.push_back({{left, y}, {right, y}, latitudeText(Degrees(minute / 60))});
    }
    return grid;
}

/// The circle of position, every point of it run to the time of the fix. A straight line would be
/// off it by more than a mile at the rim: by the curve of a high Sun, and at high latitudes by the
/// chart, whose miles of longitude are those of its middle.
std::vector<std::vector<PlotPoint>> circleOf(const FixLine& line, const Position& middle,
                                             const Motion& motion)
{
    // Seen from the middle of the chart, its corners and what high latitudes add to them.
    constexpr Miles beyondTheCorners(200);
    constexpr int points = 201;
    constexpr double longestStep = 20; // two points that far apart lie on either side of a pole
    std::vector<std::vector<PlotPoint>> runs(1);
    for (const Position& point : CirclePoints(line.sight, line.DR, beyondTheCorners, points)) {
        const PlotPoint at = inPlane(Advanced(point, motion, -line.sight.sinceFix), middle);
        if (!runs.back().empty() &&
            std::hypot(at.x - runs.back().back().x, at.y - runs.back().back().y) > longestStep)
            runs.emplace_back();
        runs.back().push_back(at);
    }
    return runs;
}

std::string timeLabel(const FixLine& line, const SightFixResult& fix)
{
    const std::string taken = Format(line.UTC, "hhmm");
    const std::string advanced = Format(*fix.UTC, "hhmm");
    const bool moved = fix.motion.speed > Knots(0) && fabs(line.sight.sinceFix) > Hours(1.0 / 60);
    const std::string times = moved ? taken + "-" + advanced : taken;
    const std::string label = line.body.empty() ? times : line.body + " " + times;
    return line.shots > 1 ? label + " x" + std::to_string(line.shots) : label;
}

PlotLine plotLine(const FixLine& line, const SightFixResult& fix, const PlotView& view)
{
    const double sinZ = sin(line.line.azimuth), cosZ = cos(line.line.azimuth);
    const double intercept = line.line.intercept.value();
    PlotLine plot;
    plot.index = line.index;
    plot.label = timeLabel(line, fix);
    plot.foot = {intercept * sinZ, intercept * cosZ};
    plot.arrowTo = {plot.foot.x + 6 * sinZ, plot.foot.y + 6 * cosZ};
    plot.runs = circleOf(line, *fix.DR, fix.motion);
    for (const std::vector<PlotPoint>& run : plot.runs) {
        const auto inside = std::ranges::find_if(
            run, [&view](const PlotPoint& point) { return view.shows(point); });
        if (inside == run.end()) continue;
        plot.visible = true;
        // A little further on, so that the time does not lie on the frame.
        plot.labelAt = std::next(inside) != run.end() ? *std::next(inside) : *inside;
        break;
    }
    return plot;
}

PlotFix plotFix(const FixPoint& fix, const Position& middle)
{
    PlotFix plot{inPlane(fix.position, middle), {}, fix.label};
    if (!fix.ellipse) return plot;
    const double major = fix.ellipse->semiMajor.value(), minor = fix.ellipse->semiMinor.value();
    const double sinAxis = sin(fix.ellipse->majorAxis), cosAxis = cos(fix.ellipse->majorAxis);
    for (int i = 0; i <= 72; ++i) {
        const Degrees angle(5.0 * i);
        const double along = major * cos(angle), across = minor * sin(angle);
        plot.ellipse.push_back({plot.at.x + along * sinAxis + across * cosAxis,
                                plot.at.y + along * cosAxis - across * sinAxis});
    }
    return plot;
}

} // namespace

bool PlotView::shows(const PlotPoint& point) const
{
    return std::fabs(point.x - centre.x) <= half && std::fabs(point.y - centre.y) <= half;
}

PlotView viewOfAll(const SightPlot& plot)
{
    PlotPoint least, most;
    const auto take = [&](const PlotPoint& point) {
        least = {std::min(least.x, point.x), std::min(least.y, point.y)};
        most = {std::max(most.x, point.x), std::max(most.y, point.y)};
    };
    for (const PlotLine& line : plot.lines) {
        take(line.foot);
        take(line.arrowTo);
    }
    if (plot.fix) take(plot.fix->at);
    constexpr double rim = 1.2;
    const double half = rim * std::max(most.x - least.x, most.y - least.y) / 2;
    return {{(least.x + most.x) / 2, (least.y + most.y) / 2},
            std::clamp(half, nearestView, farthestView)};
}

PlotView zoomed(const PlotView& view, double factor, const PlotPoint& around)
{
    const double half = std::clamp(view.half * factor, nearestView, farthestView);
    const double taken = half / view.half;
    return {{around.x + (view.centre.x - around.x) * taken,
             around.y + (view.centre.y - around.y) * taken},
            half};
}

SightPlot DrawLOP(const SightFixResult& fix, const PlotView& view)
{
    SightPlot plot;
    plot.view = view;
    plot.middle = fix.DR;
    if (!plot.middle) return plot;
    plot.DRLabel = fix.UTC ? "DR " + Format(*fix.UTC, "hhmm") : "DR";
    plot.grid = gridAround(*plot.middle, view);
    Remarks outside;
    if (fix.fix) {
        plot.fix = plotFix(*fix.fix, *plot.middle);
        if (!view.shows(plot.fix->at)) outside.warn("The fix lies outside the plot");
    }
    for (const FixPoint& other : fix.without)
        plot.without.push_back(plotFix(other, *plot.middle));
    for (const FixLine& line : fix.lines) {
        plot.lines.push_back(plotLine(line, fix, view));
        if (!plot.lines.back().visible)
            outside.warn("Line " + plot.lines.back().label + " lies outside the plot");
    }
    plot.notice = outside.text();
    return plot;
}

CursorTexts cursorTexts(const SightPlot& plot, PlotPoint at)
{
    if (!plot.middle || !plot.view.shows(at)) return {};
    const Degrees latitude = plot.middle->latitude + ArcOfMiles(Miles(at.y));
    if (fabs(latitude) > quarterTurn) return {};
    const Degrees longitude =
        WithinHalfTurn(plot.middle->longitude + Degrees(at.x / milesOfDegree(*plot.middle)));
    return {Format(DegToDegMin(latitude), "  00.-00'0N;  00.-00'0S"),
            Format(DegToDegMin(longitude), "000.-00'0E;000.-00'0W")};
}

} // namespace korvel
