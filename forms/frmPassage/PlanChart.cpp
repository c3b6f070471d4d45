// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanChart.h"

#include "app/reading/Format.h"
#include "navlib/angles.h"
#include "routes/route/LegPoints.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::DegMin;
using NavFunc113::DegMinToDeg;
using NavFunc113::Degrees;
using NavFunc113::GeoPoint;

constexpr Degrees highest(85);
constexpr double degreesInRadian = 180 / 3.14159265358979323846;
constexpr NavFunc113::Miles betweenPoints(60); // of a curve: it looks round
constexpr double leastHalfWidth = 0.005;       // a mile and a half on the equator
constexpr double mostHalfWidth = 200;
constexpr double around = 1.15; // room about the whole plan

// Degrees between the lines of a graticule, from 2 minutes up.
constexpr std::array steps{1 / 30.0, 1 / 12.0, 1 / 6.0, 0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 30.0, 60.0};

ChartSpot spotOf(const GeoPoint& point)
{
    return {DegMinToDeg(point.longitude).value(), mercatorY(DegMinToDeg(point.lat))};
}

/// The longitude of the same meridian that lies nearest to another.
double nearTo(double x, double other)
{
    return other + std::remainder(x - other, 360);
}

std::string degreesText(double degrees, char positive, char negative)
{
    const auto minutes = static_cast<long>(std::lround(std::fabs(degrees) * 60));
    std::string text = std::to_string(minutes / 60) + "°";
    if (minutes % 60) text += (minutes % 60 < 10 ? "0" : "") + std::to_string(minutes % 60) + "'";
    constexpr long halfTurn = 180L * 60L;
    if (minutes % halfTurn == 0) return text; // 0 and 180 have no side
    return text + (degrees < 0 ? negative : positive);
}

double stepFor(double span, std::size_t most)
{
    for (const double step : steps)
        if (span / step <= static_cast<double>(most)) return step;
    return steps.back();
}

} // namespace

double mercatorY(Degrees latitude)
{
    const double lat = std::clamp(latitude, -highest, highest).value() / degreesInRadian;
    return std::asinh(std::tan(lat)) * degreesInRadian;
}

Degrees latitudeAtY(double y)
{
    return Degrees(std::atan(std::sinh(y / degreesInRadian)) * degreesInRadian);
}

const PlanChartMaker::Curve& PlanChartMaker::curveTo(const PlanReckoning& plan, std::size_t from,
                                                     std::size_t row)
{
    const ReadPlanRow& start = plan.read(from);
    const ReadPlanRow& end = plan.read(row);
    Way way{*start.position, *end.position, plan.leg(row)->kind, {}};
    if (end.limit) way.limit = limitOfLeg(start, end);
    Curve& curve = m_curves[row];
    if (!curve.points.empty() && curve.way == way) return curve;
    curve = {way, {}};
    const CircleStep step{{}, betweenPoints};
    for (const LegPoint& point : pointsOfLeg(way.from, way.to, way.kind, step, way.limit))
        curve.points.push_back(spotOf(point.at));
    return curve;
}

PlanChart PlanChartMaker::chartOf(const PlanReckoning& plan)
{
    PlanChart chart;
    m_curves.resize(plan.size());
    std::optional<ChartSpot> last;
    std::optional<std::size_t> before; // the row before that is not empty
    for (std::size_t row = 0; row < plan.size(); ++row) {
        const ReadPlanRow& read = plan.read(row);
        if (read.isEmpty) continue;
        if (read.position) {
            ChartSpot at = spotOf(*read.position);
            if (last) at.x = nearTo(at.x, last->x);
            if (before && plan.read(*before).position && plan.leg(row)) {
                PlanChart::Leg leg{row, plan.leg(row)->kind, {*last}};
                for (ChartSpot point : curveTo(plan, *before, row).points) {
                    point.x = nearTo(point.x, leg.points.back().x);
                    leg.points.push_back(point);
                }
                at = leg.points.back();
                chart.legs.push_back(std::move(leg));
            }
            chart.marks.push_back({row, at});
            last = at;
        }
        before = row;
    }
    return chart;
}

ChartView ChartView::ofAll(const PlanChart& chart, double aspect)
{
    if (chart.isEmpty()) return {};
    ChartSpot low = chart.marks.front().at, high = low;
    const auto take = [&](const ChartSpot& spot) {
        low = {std::min(low.x, spot.x), std::min(low.y, spot.y)};
        high = {std::max(high.x, spot.x), std::max(high.y, spot.y)};
    };
    for (const PlanChart::Mark& mark : chart.marks)
        take(mark.at);
    for (const PlanChart::Leg& leg : chart.legs)
        std::ranges::for_each(leg.points, take);
    const double half = std::max((high.x - low.x) / 2, (high.y - low.y) / 2 / aspect) * around;
    return {{(low.x + high.x) / 2, (low.y + high.y) / 2},
            std::clamp(half, 10 * leastHalfWidth, mostHalfWidth)};
}

ChartView ChartView::zoomed(double by, ChartSpot at) const
{
    const double half = std::clamp(halfWidth * by, leastHalfWidth, mostHalfWidth);
    const double share = half / halfWidth;
    return {{at.x + (centre.x - at.x) * share, at.y + (centre.y - at.y) * share}, half};
}

std::vector<GraticuleLine> meridiansOf(double west, double east, std::size_t most)
{
    std::vector<GraticuleLine> lines;
    const double step = stepFor(east - west, most);
    for (double n = std::ceil(west / step); n * step <= east; ++n)
        lines.push_back({n * step, degreesText(std::remainder(n * step, 360), 'E', 'W')});
    return lines;
}

std::vector<GraticuleLine> parallelsOf(double low, double high, std::size_t most)
{
    std::vector<GraticuleLine> lines;
    const double south = latitudeAtY(low).value();
    const double north = latitudeAtY(high).value();
    const double step = stepFor(north - south, most);
    for (double n = std::ceil(south / step); n * step <= north; ++n) {
        if (std::fabs(n * step) > highest.value()) continue;
        lines.push_back({mercatorY(Degrees(n * step)), degreesText(n * step, 'N', 'S')});
    }
    return lines;
}

double milesOfScaleBar(double most)
{
    double miles = 0.1;
    for (const double round :
         {0.2, 0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 50.0, 100.0, 200.0, 500.0, 1000.0, 2000.0})
        if (round <= most) miles = round;
    return miles;
}

} // namespace korvel
