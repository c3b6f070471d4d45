// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/DrawLOP.h"

#include "app/Format.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

constexpr double half = SightPlot::half;

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

bool isInside(const PlotPoint& point)
{
    return std::fabs(point.x) <= half && std::fabs(point.y) <= half;
}

std::string longitudeLabel(Degrees longitude)
{
    return Format(DegToDegMin(WithinHalfTurn(longitude)), "000-.00'0E;000-.00'0W");
}

/// Ten lines at most, on round minutes.
int gridStep(double minutesWide)
{
    for (int step : {10, 20, 30, 60, 120, 300})
        if (minutesWide / step <= 10) return step;
    return 600;
}

std::vector<PlotGridLine> gridAround(const Position& middle)
{
    std::vector<PlotGridLine> grid;
    const double wide = half / milesOfDegree(middle) * 60;
    const int step = gridStep(2 * wide);
    const double centre = middle.longitude.value() * 60;
    for (double minute = std::ceil((centre - wide) / step) * step; minute <= centre + wide;
         minute += step) {
        const double x = (minute - centre) / 60 * milesOfDegree(middle);
        grid.push_back({{x, -half}, {x, half}, longitudeLabel(Degrees(minute / 60))});
    }
    const double base = middle.latitude.value() * 60;
    for (double minute = std::ceil((base - half) / 10) * 10; minute <= base + half; minute += 10) {
        if (std::fabs(minute) > 90 * 60) continue;
        const double y = minute - base;
        grid.push_back({{-half, y},
                        {half, y},
                        Format(DegToDegMin(Degrees(minute / 60)), "00-.00'0N;00-.00'0S")});
    }
    return grid;
}

/// The part of the line foot + s x direction that lies on the plot.
std::optional<std::pair<double, double>> clipped(const PlotPoint& foot, const PlotPoint& direction)
{
    double first = -1e9, last = 1e9;
    for (const auto& [start, slope] : {std::pair(foot.x, direction.x), {foot.y, direction.y}}) {
        if (std::fabs(slope) < 1e-12) {
            if (std::fabs(start) > half) return std::nullopt;
            continue;
        }
        const double a = (-half - start) / slope, b = (half - start) / slope;
        first = std::max(first, std::min(a, b));
        last = std::min(last, std::max(a, b));
    }
    if (first >= last) return std::nullopt;
    return std::pair(first, last);
}

std::vector<PlotPoint> circleOf(const FixLine& line)
{
    std::vector<PlotPoint> points;
    // The plane of the sight's own DR position lies over that of the plot once the run is made.
    constexpr Miles beyondTheCorners(130);
    for (const Position& point : CirclePoints(line.sight, line.DR, beyondTheCorners, 131))
        points.push_back(inPlane(point, line.DR));
    return points;
}

std::string timeLabel(const FixLine& line, const SightFixResult& fix)
{
    const std::string taken = Format(line.UTC, "hhmm");
    const std::string advanced = Format(*fix.UTC, "hhmm");
    const bool moved = fix.motion.speed > Knots(0) && fabs(line.sight.sinceFix) > Hours(1.0 / 60);
    return moved ? taken + "-" + advanced : taken;
}

PlotLine plotLine(const FixLine& line, const SightFixResult& fix)
{
    // No straight line is drawn that is further off its circle than this.
    constexpr Miles tolerance(0.3);
    const double sinZ = sin(line.line.azimuth);
    const double cosZ = cos(line.line.azimuth);
    PlotLine plot;
    plot.index = line.index;
    plot.label = timeLabel(line, fix);
    const double intercept = line.line.intercept.value();
    plot.foot = {intercept * sinZ, intercept * cosZ};
    plot.arrowTo = {plot.foot.x + 6 * sinZ, plot.foot.y + 6 * cosZ};
    const PlotPoint along{cosZ, -sinZ};
    const auto at = [&](double s) {
        return PlotPoint{plot.foot.x + s * along.x, plot.foot.y + s * along.y};
    };
    const auto ends = clipped(plot.foot, along);
    const Degrees altitude = std::min(line.sight.observedAltitude, Degrees(89.9));
    const double reach = ends ? std::max(std::fabs(ends->first), std::fabs(ends->second)) : half;
    plot.circle = LineBend(Miles(reach), altitude) > tolerance;
    if (plot.circle)
        plot.points = circleOf(line);
    else if (ends)
        plot.points = {at(ends->first), at(ends->second)};
    const auto label = std::find_if(plot.points.begin(), plot.points.end(), isInside);
    plot.visible = plot.circle ? label != plot.points.end() : ends.has_value();
    if (plot.circle && plot.visible) plot.labelAt = *label;
    // A little inside, so that the time does not lie on the frame.
    if (!plot.circle && ends)
        plot.labelAt = at(ends->first + std::min(4.0, (ends->second - ends->first) / 2));
    return plot;
}

void drawFix(const SightFixResult& fix, SightPlot& plot)
{
    plot.fix = inPlane(*fix.fix, *plot.middle);
    plot.fixLabel = fix.time.substr(0, fix.time.find(' ', fix.time.find("FIX"))) + " " +
                    Format(*fix.UTC, "hhmm");
    const Radians axis = DegToRad(fix.ellipse.majorAxis);
    for (int i = 0; i <= 72; ++i) {
        const Radians angle = DegToRad(Degrees(5.0 * i));
        const double major = fix.ellipse.semiMajor.value() * cos(angle);
        const double minor = fix.ellipse.semiMinor.value() * sin(angle);
        plot.ellipse.push_back({plot.fix->x + major * sin(axis) + minor * cos(axis),
                                plot.fix->y + major * cos(axis) - minor * sin(axis)});
    }
    if (!isInside(*plot.fix)) plot.notice = "The fix lies outside the plot";
}

} // namespace

SightPlot DrawLOP(const SightFixResult& fix)
{
    SightPlot plot;
    plot.middle = fix.DR;
    if (!plot.middle) return plot;
    plot.DRLabel = fix.UTC ? "DR " + Format(*fix.UTC, "hhmm") : "DR";
    plot.grid = gridAround(*plot.middle);
    for (const FixLine& line : fix.lines)
        plot.lines.push_back(plotLine(line, fix));
    if (fix.fix) drawFix(fix, plot);
    for (const PlotLine& line : plot.lines)
        if (!line.visible)
            plot.notice += (plot.notice.empty() ? "" : "; ") + ("Line " + line.label) +
                           " lies outside the plot";
    return plot;
}

CursorTexts cursorTexts(const SightPlot& plot, PlotPoint at)
{
    if (!plot.middle || !isInside(at)) return {};
    const Degrees latitude = plot.middle->latitude + Degrees(at.y / 60);
    if (fabs(latitude) > quarterTurn) return {};
    const Degrees longitude =
        WithinHalfTurn(plot.middle->longitude + Degrees(at.x / milesOfDegree(*plot.middle)));
    return {Format(DegToDegMin(latitude), "  00.-00'0N;  00.-00'0S"),
            Format(DegToDegMin(longitude), "000.-00'0E;000.-00'0W")};
}

} // namespace korvel
