// SPDX-License-Identifier: MIT
#include "forms/frmNoon/NoonWorking.h"

#include "app/reading/Format.h"
#include "app/working/SailingWorking.h"

#include <algorithm>
#include <utility>

namespace korvel
{
namespace
{

using NavFunc113::Miles;

constexpr int milesInFull = 4;
constexpr int hoursInFull = 5;

std::string hours(Span span)
{
    return figure(hoursOf(span), hoursInFull);
}

/// What the run is the sum of.
PaperTable legsOf(const NoonResult& noon, std::size_t from, std::size_t to)
{
    PaperTable table{"Legs of the record from fix to fix", {"Rows", "UTC", "Miles", "Hours"}, {}};
    for (std::size_t i = from; i < to; ++i) {
        const RecordedFix& left = noon.record.fixes[i];
        const RecordedFix& reached = noon.record.fixes[i + 1];
        table.rows.push_back(
            {std::to_string(left.row + 1) + " - " + std::to_string(reached.row + 1),
             isoText(instantOf(reached.utc)),
             figure(noon.record.legs[i]->sailed.distance, milesInFull),
             figure(noon.record.legs[i]->hours, hoursInFull)});
    }
    return table;
}

/// The terms of a sum over legs of the record.
template <typename Part>
std::string sumOf(const NoonResult& noon, std::size_t from, std::size_t to, int decimals, Part part)
{
    std::string terms;
    for (std::size_t i = from; i < to; ++i) {
        if (!terms.empty()) terms += " + ";
        terms += figure(part(*noon.record.legs[i]), decimals);
    }
    return terms;
}

const auto milesOf = [](const RecordLeg& leg) { return leg.sailed.distance; };
const auto hoursOfLeg = [](const RecordLeg& leg) { return leg.hours; };

void addRun(Working& working, const NoonResult& noon)
{
    const NoonDay& day = *noon.day;
    const NoonRun& run = *day.run;
    working.resultStep("Between the fixes", "TD = SMT - UTC of both fixes", noon.between);
    working.resultStep("Position", "that of the last fix", noon.position);
    working.step("Miles", "ΣD", sumOf(noon, day.from, day.to, milesInFull, milesOf),
                 figure(run.miles, milesInFull), "nautical miles");
    working.resultStep("Day's run", "rounded to 0.1", noon.run, "nautical miles");
    working.step("Hours", "Σt less the stoppages",
                 sumOf(noon, day.from, day.to, hoursInFull, hoursOfLeg) + " - " +
                     figure(day.stopped, hoursInFull),
                 figure(day.underWay, hoursInFull), "h");
    working.resultStep("Steaming time", "to the minute", noon.hours);
    if (!day.average) return;
    working.step("Average speed", "V = miles / hours",
                 figure(run.miles, milesInFull) + " / " + figure(day.underWay, hoursInFull),
                 noon.average, "knots");
    if (noon.sinceAway.empty()) return;
    working.step("Miles since full away", "ΣD",
                 sumOf(noon, *day.away, day.to, milesInFull, milesOf),
                 figure(day.sinceAway->miles, milesInFull), "nautical miles");
    working.step("Hours since full away", "Σt",
                 sumOf(noon, *day.away, day.to, hoursInFull, hoursOfLeg),
                 figure(day.sinceAway->hours, hoursInFull), "h");
    working.resultStep("Since full away", "miles, hours, miles / hours", noon.sinceAway);
}

Working dayWorking(const NoonInput& input, const NoonResult& noon)
{
    Working working{"The day between the fixes", sailingMethod(input.record.earth), {}};
    working.method.emplace_back("Hours are those of UTC: changed clocks and the date line do not "
                                "enter");
    if (!noon.day || !noon.day->run) {
        working.whyNone = "There is no run: the remarks say why.";
        return working;
    }
    const NoonDay& day = *noon.day;
    working.tables = {legsOf(noon, std::min(day.from, day.away.value_or(day.from)), day.to)};
    addRun(working, noon);
    if (!noon.setAndDrift.empty())
        working.resultStep("Set and drift",
                           "of the position record between its last two fixes: from the position "
                           "by course and speed steered to the fix",
                           noon.setAndDrift);
    return working;
}

void addArrivals(Working& working, const NoonInput& input, const NoonResult& noon)
{
    const NoonArrivals& arrivals = *noon.arrivals;
    const RecordedFix& fix = noon.record.fixes[noon.day->to];
    const std::string distance = figure(noon.way->distance, milesInFull);
    const std::string stops = hours(noon.way->stops());
    const std::string from = isoText(instantOf(fix.utc)) + " and these hours; port time with TD " +
                             figure(hoursOf(arrivals.zone), 2);
    for (std::size_t i = 0; i < arrivals.at.size(); ++i) {
        if (!arrivals.at[i]) continue;
        const auto& [speed, utc] = *arrivals.at[i];
        std::string name = "Hours at ";
        name.append(Format(speed, "0.00")).append(" kn");
        std::string terms = distance;
        terms.append(" / ").append(figure(speed, 6)).append(" + ").append(stops);
        working.step(std::move(name), "miles / speed + stops", std::move(terms),
                     hours(utc - instantOf(fix.utc)), "h");
        working.resultStep("ETA", from, noon.eta[i]);
    }
    if (!arrivals.needed) return;
    const Span left = *arrivals.wanted - instantOf(fix.utc);
    working.step("Hours to the wanted arrival",
                 "wanted arrival, port time " + input.boxes.wanted +
                     ", in UTC less that of the fix",
                 isoText(*arrivals.wanted) + " - " + isoText(instantOf(fix.utc)), hours(left), "h");
    working.step("Speed for the wanted arrival", "miles / (hours - stops)",
                 distance + " / (" + hours(left) + " - " + stops + ")", noon.speedNeeded, "knots");
}

Working arrivalWorking(const NoonInput& input, const NoonResult& noon)
{
    Working working{"The way to go and the arrival", {}, {}};
    if (!noon.way) {
        working.whyNone = "There is no distance to go: no plan, none typed.";
        return working;
    }
    if (const auto& plan = noon.way->byPlan) {
        working.step("From the fix to row " + std::to_string(plan->row + 1),
                     "as the leg of the plan, from the fix", "the plan's row",
                     figure(plan->leg.distance, milesInFull), "nautical miles");
        working.step("Miles to go", "to that row and from there by the plan",
                     figure(plan->leg.distance, milesInFull) + " + " +
                         figure(plan->rest, milesInFull),
                     figure(noon.way->distance, milesInFull), "nautical miles");
    }
    working.resultStep("How the distance to go is known", "boxes and plan", noon.by);
    working.resultStep("Distance to go",
                       figure(noon.way->distance, milesInFull) + " rounded to 0.1", noon.toGo,
                       "nautical miles");
    if (noon.arrivals) addArrivals(working, input, noon);
    return working;
}

Working engineWorking(const NoonResult& noon)
{
    Working working{"Propeller", {"A mile of the engine has 1852 m"}, {}};
    const NoonEngine& engine = *noon.propeller;
    const std::string miles = figure(engine.miles, milesInFull);
    const std::string run = figure(noon.day->run->miles, milesInFull);
    working.step("Engine miles", "pitch × revolutions / 1852",
                 figure(engine.pitch, 3) + " × (" + figure(engine.last, 0) + " - " +
                     figure(engine.first, 0) + ") / 1852",
                 miles, "nautical miles");
    working.resultStep("Engine miles", "rounded to 0.1", noon.engine);
    working.step("Apparent slip", "100 (engine miles - run) / engine miles",
                 "100 × (" + miles + " - " + run + ") / " + miles, noon.apparentSlip, "%");
    if (engine.wake)
        working.step("Real slip", "100 (engine miles - run (1 - wake fraction)) / engine miles",
                     "100 × (" + miles + " - " + run + " × (1 - " + figure(*engine.wake, 4) +
                         ")) / " + miles,
                     noon.realSlip, "%");
    return working;
}

Working fuelWorking(const NoonResult& noon)
{
    Working working{"Fuel", {}, {}};
    for (std::size_t i = 0; i < noon.tons.size(); ++i) {
        if (!noon.tons[i]) continue;
        const std::string name = "Fuel " + std::to_string(i + 1);
        const auto& [before, onBoard, received] = *noon.tons[i];
        const double used = before + received - onBoard;
        const bool tookOil = received > 0;
        working.step(name + ", tons",
                     tookOil ? "the day before and received, less on board"
                             : "the day before less on board",
                     figure(before, 3) + (tookOil ? " + " + figure(received, 3) : "") + " - " +
                         figure(onBoard, 3),
                     figure(used, 3), "t");
        if (noon.day && noon.day->run && noon.day->run->miles > Miles(0))
            working.step(name + ", tons a mile", "tons / run",
                         term(used, 3) + " / " + figure(noon.day->run->miles, milesInFull),
                         figure(used / noon.day->run->miles.value(), 6), "t per nm");
        working.resultStep("Consumption of fuel " + std::to_string(i + 1), "both, rounded",
                           noon.fuel[i]);
    }
    return working;
}

Working weatherTermsWorking(const NoonBoxes& boxes, const NoonResult& noon)
{
    Working working{"Weather", {"The terms of the log, as the weather window has them"}, {}};
    if (!noon.sea.empty())
        working.resultStep("Sea and swell",
                           "wave height " + (boxes.wave.empty() ? "-" : boxes.wave) +
                               " m, swell height " + (boxes.swell.empty() ? "-" : boxes.swell) +
                               " m",
                           noon.sea);
    if (!noon.visibility.empty())
        working.resultStep("Visibility in the log's terms",
                           boxes.visibility + " km, and / 1.852 in miles", noon.visibility);
    if (!noon.weather.empty())
        working.resultStep("Weather in the log's terms", boxes.letters, noon.weather);
    return working;
}

} // namespace

std::vector<Working> noonWorkings(const NoonInput& input, const NoonResult& noon)
{
    std::vector<Working> workings{dayWorking(input, noon), arrivalWorking(input, noon)};
    if (noon.propeller) workings.push_back(engineWorking(noon));
    if (Working fuel = fuelWorking(noon); !fuel.steps.empty()) workings.push_back(std::move(fuel));
    if (Working sky = weatherTermsWorking(input.boxes, noon); !sky.steps.empty())
        workings.push_back(std::move(sky));
    return workings;
}

} // namespace korvel
