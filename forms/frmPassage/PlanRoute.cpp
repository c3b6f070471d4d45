// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanRoute.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "navlib/angles.h"

#include <algorithm>

namespace korvel
{
namespace
{

using NavFunc113::DegMinToDeg;
using NavFunc113::Degrees;
using NavFunc113::Hours;

constexpr const char* numberFormat = "0.######";
// Files round their times, and speeds to a tenth: a passage of weeks comes out a few minutes apart.
constexpr Span sameTime = std::chrono::minutes(10);

RoutePoint pointOf(const PlanRow& row, const ReadPlanRow& read, const PlanFigures& figures)
{
    RoutePoint point;
    point.name = row.name;
    point.latitude = DegMinToDeg(read.position->lat);
    point.longitude = DegMinToDeg(read.position->longitude);
    point.leg = row.leg;
    point.step = read.step;
    point.speed = figures.speed;
    if (read.stop > Span(0)) point.stop = hoursOf(read.stop);
    if (read.zone) point.zone = hoursOf(*read.zone);
    point.remark = row.remark;
    point.eta = figures.eta;
    point.etd = figures.etd;
    point.kept = row.kept;
    return point;
}

PlanRow rowOf(const RoutePoint& point)
{
    PlanRow row;
    row.name = point.name;
    row.latitude = packedText(point.latitude);
    row.longitude = packedText(point.longitude);
    row.leg = point.leg;
    if (point.step.degrees) row.step = Format(*point.step.degrees, numberFormat);
    if (point.step.miles) row.step = Format(*point.step.miles, numberFormat);
    row.stepUnit = point.step.miles ? StepUnit::Miles : StepUnit::Degrees;
    if (point.leg == LegKind::Composite) {
        const bool isSouth = point.limit < Degrees(0);
        row.limit = packedText(fabs(point.limit)) + (isSouth ? "S" : "N");
    }
    if (point.speed) row.speed = Format(*point.speed, numberFormat);
    std::optional<Hours> stop = point.stop;
    if (!stop && point.eta && point.etd && *point.etd > *point.eta)
        stop = hoursOf(*point.etd - *point.eta);
    if (stop && *stop > Hours(0)) row.stop = Format(*stop, numberFormat);
    if (point.zone) row.zone = Format(*point.zone, numberFormat);
    row.remark = point.remark;
    row.kept = point.kept;
    return row;
}

/// A speed that is the one above needs no word of its own.
void leaveOutSameSpeeds(PassagePlan& plan)
{
    std::string above;
    for (PlanRow& row : plan.rows) {
        if (row.speed == above) row.speed.clear();
        if (!row.speed.empty()) above = row.speed;
    }
}

/// Speeds from the times between the points. @return whether there were any
bool workOutSpeeds(PassagePlan& plan, const Route& route, const PlanConditions& conditions)
{
    const PlanReckoning reckoning(plan, conditions);
    bool found = false;
    for (std::size_t i = 1; i < route.points.size(); ++i) {
        const RoutePoint& from = route.points[i - 1];
        const auto left = from.etd ? from.etd : from.eta;
        const PlanLeg* leg = reckoning.leg(i);
        if (!left || !route.points[i].eta || !leg || *route.points[i].eta <= *left) continue;
        const NavFunc113::Knots speed = leg->distance / hoursOf(*route.points[i].eta - *left);
        if (!(speed > NavFunc113::Knots(0)) || speed > NavFunc113::Knots(100)) continue;
        plan.rows[i].speed = Format(speed, numberFormat);
        found = true;
    }
    return found;
}

void compareArrivals(PlanOfRoute& result, const Route& route, const PlanConditions& conditions)
{
    const PlanReckoning reckoning(result.plan, conditions);
    const auto ofFile = route.points.back().eta;
    const auto ofPlan = reckoning.figures(result.plan.rows.size() - 1).eta;
    if (!ofFile || !ofPlan) return;
    const Span apart = *ofPlan - *ofFile;
    if (std::chrono::abs(apart) <= sameTime) return;
    result.remarks.push_back("the file has the arrival at " + minuteText(*ofFile) +
                             " UTC, the plan's speeds lead to " + minuteText(*ofPlan) + " UTC");
}

} // namespace

RouteOfPlan routeOfPlan(const PassagePlan& plan, const PlanReckoning& reckoning)
{
    RouteOfPlan result;
    result.route.name = plan.name;
    result.route.kept = plan.kept;
    for (std::size_t i = 0; i < plan.rows.size(); ++i) {
        const ReadPlanRow& read = reckoning.read(i);
        if (read.isEmpty) continue;
        if (!read.position) return {{}, "Row " + std::to_string(i + 1) + " has no position"};
        RoutePoint point = pointOf(plan.rows[i], read, reckoning.figures(i));
        const auto before = reckoning.rowBefore(i);
        if (before && read.limit)
            point.limit = DegMinToDeg(limitOfLeg(reckoning.read(*before), read));
        if (!before || (point.leg == LegKind::Composite && !read.limit)) point.leg = LegKind::Rhumb;
        result.route.points.push_back(std::move(point));
    }
    if (result.route.points.empty()) result.fault = "The plan has no rows";
    return result;
}

PlanOfRoute planOfRoute(const Route& route, const PlanConditions& conditions)
{
    PlanOfRoute result;
    PassagePlan& plan = result.plan;
    plan.name = route.name;
    plan.kept = route.kept;
    for (const RoutePoint& point : route.points)
        plan.rows.push_back(rowOf(point));
    if (route.points.empty()) return result;
    const RoutePoint& first = route.points.front();
    if (!first.stop) plan.rows.front().stop.clear(); // times before the departure are no stop
    if (const auto departure = first.etd ? first.etd : first.eta)
        plan.times.time = Format(dateTimeOf(*departure), "yyyy/m/d hh:mm:ss");
    const bool hasSpeeds = std::ranges::any_of(
        route.points, [](const RoutePoint& point) { return point.speed.has_value(); });
    if (!hasSpeeds && workOutSpeeds(plan, route, conditions))
        result.remarks.push_back("speeds were worked out from the times of the file");
    leaveOutSameSpeeds(plan);
    compareArrivals(result, route, conditions);
    return result;
}

} // namespace korvel
