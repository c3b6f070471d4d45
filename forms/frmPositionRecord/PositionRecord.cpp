// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/PositionRecord.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "forms/frmPositionRecord/RowReading.h"
#include "navlib/arithmetic_error.h"
#include "navlib/datetime.h"

namespace korvel
{
namespace
{

using NavFunc113::ArithmeticError;
using NavFunc113::DateTime;
using NavFunc113::Degrees;
using NavFunc113::Hours;
using NavFunc113::Knots;
using NavFunc113::Miles;

constexpr const char* distanceFormat = "0.'0";
constexpr const char* hoursFormat = "0.0#";
constexpr const char* speedFormat = "0.00";
constexpr Knots fastest(40); ///< what is faster was hardly a ship

Hours hoursBetween(DateTime from, DateTime to)
{
    return Hours((to - from) * 24);
}

RecordLeg legBetween(const RecordedFix& from, const RecordedFix& to, NavFunc113::Earth earth)
{
    return {NavFunc113::RhumbCourseAndDistance(from.latitude, from.longitude, to.latitude,
                                               to.longitude, earth),
            hoursBetween(from.utc, to.utc)};
}

void showLeg(const RecordLeg& leg, PositionRowResult& row)
{
    row.course = courseText(leg.sailed.course);
    row.distance = Format(leg.sailed.distance, distanceFormat);
    row.hours = Format(leg.hours, hoursFormat);
    if (leg.hours > Hours(0)) row.speed = Format(leg.sailed.distance / leg.hours, speedFormat);
}

bool isTooFast(const RecordLeg& leg)
{
    return leg.hours > Hours(0) ? leg.sailed.distance / leg.hours > fastest
                                : leg.hours == Hours(0) && leg.sailed.distance > Miles(1);
}

/// Sums of consecutive legs. Once a leg is missing or runs against time, nothing adds up any more.
class Run
{
public:
    void add(const std::optional<RecordLeg>& leg)
    {
        m_valid = m_valid && leg && leg->hours >= Hours(0);
        if (!m_valid) return;
        m_distance += leg->sailed.distance;
        m_hours += leg->hours;
    }
    bool isValid() const { return m_valid && m_hours > Hours(0); }
    Miles distance() const { return m_distance; }
    Hours hours() const { return m_hours; }

private:
    bool m_valid = true;
    Miles m_distance;
    Hours m_hours;
};

bool isNoon(DateTime smt)
{
    const NavFunc113::TimeOfDay time = NavFunc113::TimeOf(smt);
    return time.hour == 12 && time.minute == 0;
}

/// Totals over all fixes, and at every noon the run since the noon before.
void showRuns(PositionRecordResult& result)
{
    const std::vector<RecordedFix>& fixes = result.fixes;
    Run total;
    std::optional<Run> sinceNoon;
    std::size_t noon = 0;
    for (std::size_t i = 0; i < fixes.size(); ++i) {
        if (i > 0) {
            total.add(result.legs[i - 1]);
            if (sinceNoon) sinceNoon->add(result.legs[i - 1]);
        }
        if (!isNoon(fixes[i].smt)) continue;
        if (sinceNoon && sinceNoon->isValid()) {
            result.dayRun = Format(sinceNoon->distance(), distanceFormat) + " in " +
                            Format(sinceNoon->hours(), hoursFormat) + " h";
            result.rows[fixes[i].row].dayRun = result.dayRun;
            result.dayRuns.push_back({noon, i, sinceNoon->distance(), sinceNoon->hours()});
        }
        sinceNoon.emplace();
        noon = i;
    }
    if (!total.isValid()) return;
    result.total = RecordRun{0, fixes.size() - 1, total.distance(), total.hours()};
    result.totalDistance = Format(total.distance(), distanceFormat);
    result.totalHours = Format(total.hours(), hoursFormat);
    result.averageSpeed = Format(total.distance() / total.hours(), speedFormat);
    result.totalMiles = total.distance().value();
    result.averageKnots = (total.distance() / total.hours()).value();
}

/// The current between the last two fixes: from where the ship should have been by course and
/// speed steered to where she was.
void showSetAndDrift(const PositionRecordInput& input, PositionRecordResult& result)
{
    const RecordedFix& from = result.fixes[result.fixes.size() - 2];
    const RecordedFix& to = result.fixes.back();
    const auto course = numberIn(input.courseSteered, SteeredField::course, result.notice);
    const auto speed = numberIn(input.speedSteered, SteeredField::speed, result.notice);
    if (!course || !speed) return;
    const Hours hours = hoursBetween(from.utc, to.utc);
    if (!(hours > Hours(0))) return;
    try {
        RecordCurrent current;
        current.courseSteered = Degrees(*course);
        current.speedSteered = Knots(*speed);
        current.run = current.speedSteered * hours;
        current.latitude = NavFunc113::RunInLatitude(from.latitude, current.courseSteered,
                                                     current.run, input.earth);
        current.longitude =
            NavFunc113::RunInLongitude(from.latitude, from.longitude, current.courseSteered,
                                       current.run, input.earth, current.latitude.reached);
        const RecordedFix reckoned{from.row, from.smt, from.utc, current.latitude.reached,
                                   current.longitude.reached};
        current.leg = legBetween(reckoned, to, input.earth);
        current.leg.hours = hours;
        const Miles drift = current.leg.sailed.distance;
        result.drift =
            Format(drift, distanceFormat) + " = " + Format(drift / hours, "0.00") + " kn";
        if (drift >= Miles(0.05)) result.set = courseText(current.leg.sailed.course, "000");
        result.current = current;
    } catch (const ArithmeticError&) {
        say(result.notice, "course and speed steered lead across a pole");
    }
}

/// Remarks in one line, the rows counted from 1. The line is short: the first rows in words, of the
/// others how many there are.
void gatherRemarks(PositionRecordResult& result)
{
    constexpr int inWords = 3;
    int remarks = 0;
    for (std::size_t i = 0; i < result.rows.size(); ++i) {
        if (result.rows[i].remark.empty() || ++remarks > inWords) continue;
        say(result.notice,
            "row " + Format(static_cast<double>(i + 1), "0") + ": " + result.rows[i].remark);
    }
    if (remarks > inWords) say(result.notice, "and " + Format(remarks - inWords, "0") + " more");
}

} // namespace

PositionRecordResult CalculatePositionRecord(const PositionRecordInput& input)
{
    PositionRecordResult result;
    std::vector<RecordedFix>& fixes = result.fixes;
    double td = input.shipsTD;
    for (std::size_t i = 0; i < input.rows.size(); ++i)
        if (const auto fix = readRow(input, i, td, result.rows[i])) fixes.push_back(*fix);

    auto& legs = result.legs;
    for (std::size_t i = 1; i < fixes.size(); ++i) {
        PositionRowResult& next = result.rows[fixes[i].row];
        try {
            legs.emplace_back(legBetween(fixes[i - 1], fixes[i], input.earth));
            showLeg(*legs.back(), result.rows[fixes[i - 1].row]);
        } catch (const ArithmeticError&) {
            legs.emplace_back(std::nullopt);
            say(next.remark, "no rhumb line leads here");
        }
        const std::string from = "row " + Format(static_cast<double>(fixes[i - 1].row + 1), "0");
        next.outOfOrder = fixes[i].utc < fixes[i - 1].utc;
        if (next.outOfOrder) say(next.remark, "earlier than " + from);
        if (legs.back() && isTooFast(*legs.back()))
            say(next.remark, "more than " + Format(fastest, "0") + " knots from " + from);
    }
    showRuns(result);
    gatherRemarks(result);
    if (fixes.size() >= 2) showSetAndDrift(input, result);
    return result;
}

} // namespace korvel
