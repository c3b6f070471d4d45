// SPDX-License-Identifier: MIT
#include "forms/frmETA/ETAWorking.h"

#include "app/reading/Format.h"
#include "app/records/KORVEL2000Actions.h"

namespace korvel
{
namespace
{

constexpr const char* inFull = "yyyy-mm-dd hh:mm";

NavFunc113::DateTime arrivalOf(const Passage& passage, std::size_t speed)
{
    return passage.departure + passage.TDChange() / 24 + passage.hours[speed] / 24;
}

/// A number as typed, as a term of a formula.
std::string memoTerm(double value)
{
    return value < 0 ? '(' + memoText(value) + ')' : memoText(value);
}

} // namespace

Working arrivalsWorking(const ETAResult& result)
{
    Working working{"Arrival at five speeds",
                    {"Local time at arrival = local time at departure + change of TD + distance / "
                     "speed; TD = local time - UTC, east positive"},
                    {}};
    if (!result.passage) {
        working.whyNone = "Nothing was entered, or the remarks say why there is no arrival.";
        return working;
    }
    const Passage& passage = *result.passage;
    working.step("Local time at departure", "date and time as typed",
                 Format(passage.departure, inFull), Format(passage.departure, inFull), "LT");
    working.step("Change of TD", "ΔTD = TD at arrival - TD at departure",
                 memoTerm(passage.TD[1]) + " - " + memoTerm(passage.TD[0]),
                 memoText(passage.TDChange()), "h");
    PaperTable table{
        "Hours = distance / speed; arrival = departure + ΔTD + hours, rounded to the "
        "nearest second, then cut to the minute",
        {"Knots", "Distance, miles", "Hours", "ΔTD, h", "Arrival, local time", "In the window"},
        {}};
    for (std::size_t i = 0; i < passage.hours.size(); ++i)
        table.rows.push_back({result.labels->lblSPD[i], memoText(passage.distance),
                              figure(passage.hours[i], 5), memoText(passage.TDChange()),
                              Format(arrivalOf(passage, i), "yyyy-mm-dd hh:mm:ss"),
                              result.labels->lblETA[i]});
    working.tables = {table};
    return working;
}

PaperTable arrivalsTable(const ETAResult& result)
{
    PaperTable table{"Arrivals",
                     {"Speed, knots",
                      "Local time at arrival, TD " + Format(result.passage->TD[1], "+0.0##;-0.0##"),
                      "In the window"},
                     {}};
    for (std::size_t i = 0; i < result.passage->hours.size(); ++i)
        table.rows.push_back({result.labels->lblSPD[i],
                              Format(arrivalOf(*result.passage, i), inFull),
                              result.labels->lblETA[i]});
    return table;
}

Working requiredSpeedWorking(const ReqSpdResult& result)
{
    Working working{"Required speed",
                    {"Speed = distance / hours between departure and arrival, both by UTC"},
                    {}};
    if (!result.speed) {
        working.whyNone =
            "No arrival wanted was entered, or the remarks say why there is no speed.";
        return working;
    }
    const auto addUTC = [&](const char* name, NavFunc113::DateTime UTC, double TD) {
        working.step(name, "UTC = local time - TD",
                     Format(UTC + TD / 24, inFull) + " - " + memoTerm(TD) + " h",
                     Format(UTC, inFull), "UTC");
    };
    addUTC("Departure", result.departure, result.TD[0]);
    addUTC("Arrival wanted", result.arrival, result.TD[1]);
    working.step("Hours", "arrival - departure, both by UTC",
                 Format(result.arrival, inFull) + " - " + Format(result.departure, inFull),
                 figure(result.hours, 5), "h");
    working.step("Required speed", "distance / hours",
                 memoText(result.distance) + " / " + figure(result.hours, 5), *result.speed,
                 "knots");
    return working;
}

} // namespace korvel
