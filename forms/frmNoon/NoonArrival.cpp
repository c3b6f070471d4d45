// SPDX-License-Identifier: MIT
#include "forms/frmNoon/NoonArrival.h"

#include "app/reading/Format.h"
#include "app/reading/TypedTime.h"
#include "forms/frmPassage/PlanTexts.h"

namespace korvel
{
namespace
{

using NavFunc113::Hours;
using NavFunc113::Knots;
using NavFunc113::Miles;

std::string momentWithDay(Instant moment)
{
    const Instant shown = nearestMinute(moment);
    std::string text = minuteText(shown);
    if (!text.empty()) text.insert(0, weekdayOf(shown) + " ");
    return text;
}

/// The row that comes next: as typed, else the first that the plan reaches after the fix.
std::optional<std::size_t> nextRow(NoonReader& boxes, Instant fix, const PlanReckoning& plan)
{
    if (const auto row = boxes.number(NoonBox::Next)) {
        const auto next = static_cast<std::size_t>(*row) - 1;
        if (next < plan.size()) return next;
        boxes.remarks.fault("Next waypoint: the plan has no such row");
        return std::nullopt;
    }
    for (std::size_t i = 0; i < plan.size(); ++i)
        if (plan.figures(i).eta && *plan.figures(i).eta > fix) return i;
    return std::nullopt;
}

std::optional<NoonWay> wayByPlan(NoonReader& boxes, const NoonFix& fix, const PassagePlan& plan,
                                 const PlanReckoning& reckoning)
{
    const auto next = nextRow(boxes, fix.utc, reckoning);
    if (!next) return std::nullopt;
    const auto& rest = reckoning.figures(*next).toGo;
    if (!reckoning.read(*next).position || !rest) {
        boxes.remarks.fault("the plan has no way to go from its row " + std::to_string(*next + 1));
        return std::nullopt;
    }
    // Where the ship is off the line of her leg, it is the same kind of line from where she is.
    ReadPlanRow here;
    here.isEmpty = false;
    here.position = fix.position;
    const LegKind kind = reckoning.rowBefore(*next) ? plan.rows[*next].leg : LegKind::Rhumb;
    const PlannedLeg leg = legBetween(here, reckoning.read(*next), kind, reckoning.earth());
    if (!leg.leg) {
        boxes.remarks.fault("no leg leads to the next waypoint: " + leg.fault);
        return std::nullopt;
    }
    NoonWay way{leg.leg->distance + *rest, NoonWay::ByPlan{*next, *leg.leg, *rest, {}}};
    for (std::size_t i = *next; i < *reckoning.lastRow(); ++i)
        way.byPlan->stops += reckoning.read(i).stop;
    return way;
}

Span portZone(NoonReader& boxes, const PlanReckoning& plan, Hours shipsTD)
{
    if (const auto typed = boxes.number(NoonBox::PortTD))
        return spanOf(Hours(*typed)).value_or(Span(0));
    if (const auto last = plan.lastRow()) return plan.figures(*last).zone;
    return spanOf(shipsTD).value_or(Span(0));
}

void findSpeedNeeded(NoonReader& boxes, const NoonFix& fix, const NoonWay& way,
                     NoonArrivals& arrivals)
{
    if (boxes.isBlank(NoonBox::Wanted)) return;
    const TypedTime typed = readTypedTime(boxes.text(NoonBox::Wanted), Due::DateAndTime);
    if (!typed.value) return; // said already
    arrivals.wanted = instantOf(*typed.value) - arrivals.zone;
    const Span left = *arrivals.wanted - fix.utc - way.stops();
    if (left > Span(0))
        arrivals.needed = way.distance / hoursOf(left);
    else if (*arrivals.wanted <= fix.utc)
        boxes.remarks.fault("Wanted arrival: it lies before the fix");
    else
        boxes.remarks.fault("Wanted arrival: the stops on the way take longer");
}

} // namespace

std::string NoonWay::inWords() const
{
    if (!byPlan) return "as typed";
    const char* const line = byPlan->leg.kind == LegKind::Rhumb         ? "rhumb line"
                             : byPlan->leg.kind == LegKind::GreatCircle ? "great circle"
                                                                        : "composite";
    std::string words = line + (" to row " + std::to_string(byPlan->row + 1));
    words += ", then by the plan";
    if (byPlan->stops > Span(0)) words += "; stops " + spanText(byPlan->stops);
    return words;
}

std::optional<NoonWay> noonWay(NoonReader& boxes, const std::optional<NoonFix>& fix,
                               const PassagePlan& plan, const PlanReckoning& reckoning)
{
    if (const auto typed = boxes.number(NoonBox::ToGo)) return NoonWay{Miles(*typed), {}};
    if (!fix) return std::nullopt;
    return wayByPlan(boxes, *fix, plan, reckoning);
}

NoonArrivals noonArrivals(NoonReader& boxes, const NoonFix& fix, const NoonWay& way,
                          const std::optional<Knots>& average, const PlanReckoning& reckoning,
                          Hours shipsTD)
{
    NoonArrivals arrivals;
    arrivals.zone = portZone(boxes, reckoning, shipsTD);
    for (std::size_t i = 0; i < arrivals.at.size(); ++i) {
        const auto typed = boxes.number(NoonBox::Speed, i);
        const std::optional<Knots> usual = i == 0 ? average : std::nullopt;
        const auto speed = typed ? std::optional(Knots(*typed)) : usual;
        if (!speed || !(*speed > Knots(0))) continue;
        if (const auto hours = spanOf(way.distance / *speed))
            arrivals.at[i] = {*speed, fix.utc + *hours + way.stops()};
    }
    findSpeedNeeded(boxes, fix, way, arrivals);
    return arrivals;
}

std::string arrivalText(const NoonArrivals::Arrival& arrival, Span zone)
{
    const std::string utc = momentWithDay(arrival.utc);
    const std::string port = zoneText(zone);
    std::string text = Format(arrival.speed, "0.00");
    text += " kn: " + momentWithDay(arrival.utc + zone) + " " + port.substr(0, port.find(" ("));
    return text + "; UTC " + utc.substr(0, 4) + utc.substr(utc.rfind(' ') + 1);
}

} // namespace korvel
