// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanWorking.h"

#include "app/reading/PositionText.h"
#include "app/working/SailingWorking.h"
#include "navlib/angles.h"
#include "routes/route/LegWords.h"

namespace korvel
{
namespace
{

constexpr int milesInFull = 4;
constexpr int hoursInFull = 5;

std::string hoursText(const std::optional<Span>& span)
{
    return span ? figure(hoursOf(*span), hoursInFull) : "";
}

/// What the sums are made of, with full precision.
PaperTable legsInFull(const PlanReckoning& plan)
{
    PaperTable table{"Hours = miles / knots; times are added in UTC",
                     {"Row", "Leg", "Miles", "Miles from departure", "Knots", "Hours", "Stop h",
                      "ETA UTC", "TD h"},
                     {}};
    for (std::size_t i = 0; i < plan.size(); ++i) {
        const ReadPlanRow& read = plan.read(i);
        if (read.isEmpty) continue;
        const PlanLeg* leg = plan.leg(i);
        const PlanFigures& figures = plan.figures(i);
        table.rows.push_back(
            {std::to_string(i + 1),
             leg ? legWords(leg->kind, read.step, read.limit.value_or(NavFunc113::DegMin())) : "",
             leg ? figure(leg->distance, milesInFull) : "",
             figures.run ? figure(*figures.run, milesInFull) : "",
             figures.speed ? figure(*figures.speed, 3) : "", hoursText(figures.underWay),
             figure(hoursOf(read.stop), 3), figures.eta ? isoText(*figures.eta) : "",
             figure(hoursOf(figures.zone), 2)});
    }
    return table;
}

void addTimes(Working& working, const PlanReckoning& plan, const PassageShown& shown)
{
    const PlanTotals& totals = plan.totals();
    if (totals.elapsed) {
        working.resultStep("Under way", "sum of the hours " + hoursText(totals.underWay),
                           shown.underWay);
        working.resultStep("Stops",
                           "sum " + hoursText(totals.stopped) +
                               " h, that at the last row "
                               "not among them",
                           shown.stopped);
        working.resultStep("In all", "under way and stops " + hoursText(totals.elapsed) + " h",
                           shown.elapsed);
    }
    if (!shown.clocks.empty()) working.resultStep("Clocks", "last TD less the first", shown.clocks);
    if (const auto departure = plan.departure())
        working.resultStep("Departure", isoText(*departure) + ", and with the TD of the first row",
                           shown.departure);
    if (shown.arrival.empty()) return;
    const PlanFigures& last = plan.figures(*plan.lastRow());
    working.resultStep("Arrival in UTC", "departure and all hours: " + isoText(*last.eta),
                       shown.arrivalUTC);
    working.resultStep("Arrival", "the same with TD " + figure(hoursOf(last.zone), 2),
                       shown.arrival);
}

/// A tangent point and the circle to it, from one end.
void addTangent(Working& working, const char* number, NavFunc113::DegMin latitude,
                NavFunc113::DegMin limit, NavFunc113::Degrees change)
{
    const std::string phi = figure(fabs(DegMinToDeg(latitude)), milesInFull);
    const std::string most = figure(fabs(DegMinToDeg(limit)), milesInFull);
    working.step(std::string("Change of longitude to tangent point ") + number,
                 std::string("dLo") + number + " = arccos(tan φ" + number + " / tan φmax)",
                 "arccos(tan " + phi + "° / tan " + most + "°)", figure(change, milesInFull), "°");
}

Working compositeWorking(std::size_t row, const ReadPlanRow& from, const ReadPlanRow& to,
                         const NavFunc113::CompositeTrack& track)
{
    Working working{"Composite leg to row " + std::to_string(row + 1),
                    {"Great circles touch the limiting parallel and the ship runs along it between "
                     "them; an arc d = arccos(sin φ / sin φmax)"},
                    {}};
    const NavFunc113::DegMin limit = limitOfLeg(from, to);
    working.step("Limiting latitude", "φmax", "as understood",
                 positionInFull(limit, Axis::Latitude));
    if (track.kind == NavFunc113::CompositeKind::TwoTangents) {
        addTangent(working, "1", from.position->lat, limit, track.firstChange);
        addTangent(working, "2", to.position->lat, limit, track.secondChange);
    }
    const auto miles = [](NavFunc113::Miles each) { return figure(each, milesInFull); };
    working.step("Full great circle", "without the limit", "as a great circle of the sphere",
                 miles(track.fullCircle), "nautical miles");
    working.step("Distance", "first circle + along the parallel + second circle",
                 miles(track.firstCircle) + " + " + miles(track.alongParallel) + " + " +
                     miles(track.secondCircle),
                 miles(track.distance), "nautical miles");
    return working;
}

} // namespace

Working planWorking(const PassagePlan& plan, const PlanReckoning& reckoning,
                    const PassageShown& shown)
{
    Working working{"The whole plan", sailingMethod(reckoning.earth()), {}};
    working.method.emplace_back("Great circles by vector algebra on the sphere; nothing is rounded "
                                "before it is shown");
    if (!reckoning.totals().distance) {
        working.whyNone = "Nothing was entered, or the remarks say what is missing.";
        return working;
    }
    working.tables = {legsInFull(reckoning)};
    working.resultStep("Distance",
                       "sum of the legs " + figure(*reckoning.totals().distance, milesInFull),
                       shown.distance, "nautical miles");
    if (reckoning.totals().saving)
        working.resultStep("Circles save",
                           "rhumb lines less circles, summed " +
                               figure(*reckoning.totals().saving, milesInFull),
                           shown.saving, "nautical miles");
    addTimes(working, reckoning, shown);
    if (!shown.speed.empty()) {
        working.step("Speed needed", "miles between the rows / hours left without the stops",
                     "by " + plan.wish.time, shown.speed, "knots");
        working.resultStep("What it leads to", "rows and wanted time", shown.speedFor);
    }
    return working;
}

std::vector<Working> compositeWorkings(const PlanReckoning& plan)
{
    std::vector<Working> workings;
    for (std::size_t i = 0; i < plan.size(); ++i) {
        const PlanLeg* leg = plan.leg(i);
        if (leg && leg->composite)
            workings.push_back(
                compositeWorking(i, plan.read(*plan.rowBefore(i)), plan.read(i), *leg->composite));
    }
    return workings;
}

Working rowWorking(const PlanInHand& work, const PassageShown& shown)
{
    const std::string number = std::to_string(work.row() + 1);
    Working working{"Row " + number + ", which was in hand", {}, {}};
    const auto add = [&](const char* name, const char* from, const std::string& text) {
        if (!text.empty()) working.resultStep(name, from, text);
    };
    add("Run", "miles from the departure", shown.run);
    add("To go", "miles of the plan less the run", shown.toGo);
    add("Leaves", "arrival and stop", shown.leaves);
    add("Circle", "rhumb line less circle", shown.circle);
    add("Sun", "upper limb on the horizon, by the almanac of the program", shown.sun);
    add("Twilight", "Sun 6° and 12° below the horizon", shown.twilight);
    add("Tide", "height at the ETA in the station's own zone, as the tide window has it",
        shown.tide);
    if (working.steps.empty()) working.whyNone = "The row holds nothing.";
    return working;
}

} // namespace korvel
