// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/RecordWorking.h"

#include "app/reading/Format.h"
#include "app/records/KORVEL2000Actions.h"
#include "app/working/SailingWorking.h"
#include "navlib/angles.h"

namespace korvel
{
namespace
{

using NavFunc113::Earth;

constexpr int angleDecimals = 6; // of a degree
constexpr int partsDecimals = 5;
constexpr int factorDecimals = 7;
constexpr int milesDecimals = 5;
constexpr int hoursDecimals = 6;
constexpr int knotsDecimals = 5;
constexpr const char* instantFormat = "yyyy-mm-dd hh:mm:ss";
constexpr const char* tooFewRows = "Fewer than two rows have a time, a latitude and a longitude.";

std::string rowNumber(std::size_t row)
{
    return std::to_string(row + 1);
}

PaperTable times(const PositionRecordInput& input, const PositionRecordResult& result)
{
    PaperTable table{"UTC = SMT - TD; φ and λ = degrees + minutes / 60, north and east positive",
                     {"Row", "SMT", "TD h", "UTC shown", "φ °", "λ °"},
                     {}};
    const auto degrees = [](const std::optional<NavFunc113::DegMin>& angle) {
        return angle ? figure(NavFunc113::DegMinToDeg(*angle), angleDecimals) : std::string();
    };
    for (std::size_t i = 0; i < input.rows.size(); ++i) {
        const ReadRow& read = result.rows[i].read;
        if (!read.utc) continue;
        table.rows.push_back({rowNumber(i), Format(*read.smt, instantFormat), memoText(*read.td),
                              result.rows[i].utc, degrees(read.latitude), degrees(read.longitude)});
    }
    return table;
}

/// A row for every leg that there is.
template <typename Cells>
void addLegs(PaperTable& table, const PositionRecordResult& result, const Cells& cells)
{
    for (std::size_t i = 0; i < result.legs.size(); ++i) {
        if (!result.legs[i]) continue;
        const std::size_t row = result.fixes[i].row;
        std::vector<std::string> line = {rowNumber(row) + " - " +
                                         rowNumber(result.fixes[i + 1].row)};
        for (std::string& each : cells(*result.legs[i], result.rows[row]))
            line.push_back(std::move(each));
        table.rows.push_back(std::move(line));
    }
}

PaperTable courses(const PositionRecordResult& result)
{
    PaperTable table{"Courses: tan C = 60 Δλ / (M2 - M1), C in the quadrant of both; on one "
                     "parallel 090° or 270°. Δλ by the shorter way",
                     {"Rows", "Δλ °", "M1 '", "M2 '", "C °", "Shown"},
                     {}};
    addLegs(table, result, [](const RecordLeg& leg, const PositionRowResult& shown) {
        const NavFunc113::RhumbSteps& steps = leg.sailed.steps;
        return std::vector{figure(steps.changeOfLongitude, angleDecimals),
                           figure(steps.parts1, partsDecimals), figure(steps.parts2, partsDecimals),
                           figure(leg.sailed.course, angleDecimals), shown.course};
    });
    return table;
}

PaperTable distances(const PositionRecordResult& result, Earth earth)
{
    const bool isSpheroid = earth == Earth::Spheroid;
    PaperTable table =
        isSpheroid
            ? PaperTable{"Distances: D = |60 Δφ / cos C|, Δφ = (φ2 - φ1) m, m that of |φ1 + φ2| / "
                         "2.05; along a parallel D = 60 |Δλ| cos φ1 p, p that of φ1 as it is "
                         "written",
                         {"Rows", "Latitude for m °", "m", "p", "Δφ °", "D miles", "Shown"},
                         {}}
            : PaperTable{"Distances: D = |60 Δφ / cos C|, Δφ = φ2 - φ1; along a parallel D = 60 "
                         "|Δλ| cos φ1",
                         {"Rows", "Δφ °", "D miles", "Shown"},
                         {}};
    addLegs(table, result, [&](const RecordLeg& leg, const PositionRowResult& shown) {
        const NavFunc113::RhumbSteps& steps = leg.sailed.steps;
        std::vector<std::string> cells;
        if (isSpheroid)
            cells = {figure(steps.lookup, angleDecimals),
                     figure(steps.latitudeFactor, factorDecimals),
                     steps.alongParallel ? figure(steps.parallelFactor, factorDecimals) : ""};
        cells.push_back(steps.alongParallel ? "parallel"
                                            : figure(steps.changeOfLatitude, angleDecimals));
        cells.push_back(figure(leg.sailed.distance, milesDecimals));
        cells.push_back(shown.distance);
        return cells;
    });
    return table;
}

PaperTable speeds(const PositionRecordResult& result)
{
    PaperTable table{"Hours and speeds: t = UTC2 - UTC1, V = D / t",
                     {"Rows", "t h", "Hours shown", "V knots", "Knots shown"},
                     {}};
    addLegs(table, result, [](const RecordLeg& leg, const PositionRowResult& shown) {
        const bool isForward = !shown.speed.empty();
        return std::vector{figure(leg.hours, hoursDecimals), shown.hours,
                           isForward ? figure(leg.sailed.distance / leg.hours, knotsDecimals)
                                     : std::string(),
                           shown.speed};
    });
    return table;
}

/// The sums of a run of legs.
void addSums(Working& working, const std::string& name, const PositionRecordResult& result,
             const RecordRun& run)
{
    std::string miles;
    std::string hours;
    for (std::size_t i = run.from; i < run.to; ++i) {
        miles += (miles.empty() ? "" : " + ") + figure(result.legs[i]->sailed.distance, 5);
        hours += (hours.empty() ? "" : " + ") + figure(result.legs[i]->hours, hoursDecimals);
    }
    const std::string rows = " of rows " + rowNumber(result.fixes[run.from].row) + " to " +
                             rowNumber(result.fixes[run.to].row);
    working.step(name + ", miles", "ΣD" + rows, miles, figure(run.distance, milesDecimals),
                 "miles");
    working.step(name + ", hours", "Σt" + rows, hours, figure(run.hours, hoursDecimals), "h");
}

} // namespace

Working legsWorking(const PositionRecordInput& input, const PositionRecordResult& result)
{
    Working working{"Courses, distances, hours and speeds", sailingMethod(input.earth), {}};
    working.method.push_back(
        "The hours are those of UTC: changed clocks and the date line do not enter. A row without "
        "TD has that of the row above it, the first rows the ship's");
    if (input.earth == Earth::Spheroid) {
        working.method.push_back(
            "Length m of the minute of latitude in miles by Lagrange's formula from " +
            factorNodes(NavFunc113::LatitudeFactorTable()));
        working.method.push_back(
            "Length p of the minute of longitude divided by cos φ by Lagrange's formula from " +
            factorNodes(NavFunc113::ParallelFactorTable()));
    }
    PaperTable first = times(input, result);
    if (!first.rows.empty()) working.tables.push_back(std::move(first));
    if (result.fixes.size() < 2)
        working.whyNone = tooFewRows;
    else
        for (PaperTable& each :
             std::array{courses(result), distances(result, input.earth), speeds(result)})
            working.tables.push_back(std::move(each));
    return working;
}

Working runsWorking(const PositionRecordResult& result)
{
    Working working{"Day's runs and totals",
                    {"Day's run: from the row at 12:00 SMT before to that at 12:00 SMT"},
                    {}};
    for (const RecordRun& run : result.dayRuns) {
        const std::size_t row = result.fixes[run.to].row;
        const std::string name = "Day's run to row " + rowNumber(row);
        addSums(working, name, result, run);
        working.resultStep(name, "miles rounded to 0.1 in hours rounded to 0.01",
                           result.rows[row].dayRun);
    }
    if (!result.total) {
        working.whyNone = result.fixes.size() < 2
                              ? tooFewRows
                              : "No totals: a row is earlier than the one before it, no time "
                                "passed, or no rhumb line leads to it.";
        return working;
    }
    addSums(working, "Total", result, *result.total);
    working.resultStep("Total distance", "ΣD rounded to 0.1", result.totalDistance, "miles");
    working.resultStep("Hours", "Σt rounded to 0.01", result.totalHours, "h");
    working.step("Average speed", "V = ΣD / Σt",
                 figure(result.total->distance, milesDecimals) + " / " +
                     figure(result.total->hours, hoursDecimals),
                 figure(*result.averageKnots, knotsDecimals), "knots");
    working.resultStep("Average speed", "V rounded to 0.01", result.averageSpeed, "knots");
    return working;
}

std::vector<Working> currentWorkings(const PositionRecordInput& input,
                                     const PositionRecordResult& result)
{
    if (!result.current) return {};
    const RecordCurrent& current = *result.current;
    const RecordedFix& from = result.fixes[result.fixes.size() - 2];
    const RecordedFix& to = result.fixes.back();
    Working reckoned{"Position reckoned by course and speed steered, from row " +
                         rowNumber(from.row),
                     sailingMethod(input.earth),
                     {}};
    const ReckonedRun run{{from.latitude, from.longitude}, current.courseSteered, current.run};
    reckoned.angleStep("Latitude of row " + rowNumber(from.row), "φ1", from.latitude);
    reckoned.angleStep("Longitude of row " + rowNumber(from.row), "λ1", from.longitude);
    reckoned.step("Hours between the fixes", "t = UTC2 - UTC1",
                  Format(to.utc, instantFormat) + " - " + Format(from.utc, instantFormat),
                  figure(current.leg.hours, hoursDecimals), "h");
    reckoned.step("Run by speed steered", "D = V t",
                  memoText(current.speedSteered) + " × " + figure(current.leg.hours, hoursDecimals),
                  Format(current.run.value(), "0.#####"), "miles");
    addRunInLatitude(reckoned, run, current.latitude, input.earth);
    addRunInLongitude(reckoned, run, current.latitude, current.longitude, input.earth);

    Working drift{"Set and drift: from the position reckoned to row " + rowNumber(to.row), {}, {}};
    addRhumbLeg(drift,
                {current.latitude.reached, current.longitude.reached, to.latitude, to.longitude},
                current.leg.sailed, input.earth);
    if (result.set.empty())
        drift.step("Set", "none below 0.05 miles",
                   figure(current.leg.sailed.distance, milesDecimals) + " miles", "none");
    else
        drift.resultStep("Set", "C rounded to 1°", result.set, "degrees true");
    drift.step("Drift, knots", "v = D / t",
               figure(current.leg.sailed.distance, milesDecimals) + " / " +
                   figure(current.leg.hours, hoursDecimals),
               figure(current.leg.sailed.distance / current.leg.hours, knotsDecimals), "knots");
    drift.resultStep("Drift", "D rounded to 0.1 miles, v to 0.01 knots", result.drift);
    return {reckoned, drift};
}

} // namespace korvel
