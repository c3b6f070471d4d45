// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/PositionRecord.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "forms/frmPositionRecord/RecordMemory.h"
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

std::string distanceText(double miles)
{
    return Format(miles, distanceFormat);
}

std::string hoursText(double hours)
{
    return Format(hours, hoursFormat);
}

std::string speedText(double knots)
{
    return Format(knots, speedFormat);
}

void showLeg(const RecordLeg& leg, PositionRowResult& row, RecordMemory::Figures& before)
{
    const auto shownCourse = [](double course) { return courseText(Degrees(course)); };
    row.course = before.course.text(leg.sailed.course.value(), shownCourse);
    row.distance = before.distance.text(leg.sailed.distance.value(), distanceText);
    row.hours = before.hours.text(leg.hours.value(), hoursText);
    if (leg.hours > Hours(0))
        row.speed = before.speed.text((leg.sailed.distance / leg.hours).value(), speedText);
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
void showRuns(PositionRecordResult& result, RecordMemory& memory)
{
    const std::vector<RecordedFix>& fixes = result.fixes;
    Run total;
    std::optional<Run> sinceNoon;
    std::size_t noon{};
    for (std::size_t i = 0; i < fixes.size(); ++i) {
        if (i > 0) {
            total.add(result.legs[i - 1]);
            if (sinceNoon) sinceNoon->add(result.legs[i - 1]);
        }
        if (!isNoon(fixes[i].smt)) continue;
        if (sinceNoon && sinceNoon->isValid()) {
            RecordMemory::Figures& before = memory.figures[fixes[i].row];
            result.dayRun = before.dayRun.text(sinceNoon->distance().value(), distanceText);
            result.dayRun += " in ";
            result.dayRun += before.dayHours.text(sinceNoon->hours().value(), hoursText);
            result.dayRun += " h";
            result.rows[fixes[i].row].dayRun = result.dayRun;
            result.dayRuns.push_back({noon, i, sinceNoon->distance(), sinceNoon->hours()});
        }
        sinceNoon.emplace();
        noon = i;
    }
    if (!total.isValid()) return;
    result.total = RecordRun{0, fixes.size() - 1, total.distance(), total.hours()};
    result.totalMiles = total.distance().value();
    result.averageKnots = (total.distance() / total.hours()).value();
    result.totalDistance = distanceText(*result.totalMiles);
    result.totalHours = hoursText(total.hours().value());
    result.averageSpeed = speedText(*result.averageKnots);
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

/// What comes to a row's remark from the leg that leads there.
void remarkOnLeg(const std::optional<RecordLeg>& leg, const RecordedFix& from,
                 PositionRowResult& next, bool isEarlier)
{
    next.outOfOrder = isEarlier;
    const bool tooFast = leg && isTooFast(*leg);
    const auto row = [&from] { return "row " + Format(static_cast<double>(from.row + 1), "0"); };
    if (isEarlier) say(next.remark, "earlier than " + row());
    if (tooFast) say(next.remark, "more than " + Format(fastest, "0") + " knots from " + row());
}

} // namespace

PositionRecordResult CalculatePositionRecord(const PositionRecordInput& input)
{
    RecordMemory nothing;
    return CalculatePositionRecord(input, nothing);
}

PositionRecordResult CalculatePositionRecord(const PositionRecordInput& input, RecordMemory& memory)
{
    PositionRecordResult result;
    std::vector<RecordedFix>& fixes = result.fixes;
    double td = input.shipsTD;
    for (std::size_t i = 0; i < input.rows.size(); ++i)
        if (const auto fix = readRow(input, i, td, result.rows[i], memory.rows[i]))
            fixes.push_back(*fix);

    auto& legs = result.legs;
    for (std::size_t i = 1; i < fixes.size(); ++i) {
        const RecordedFix& from = fixes[i - 1];
        PositionRowResult& next = result.rows[fixes[i].row];
        try {
            legs.emplace_back(legBetween(from, fixes[i], input.earth));
            showLeg(*legs.back(), result.rows[from.row], memory.figures[from.row]);
        } catch (const ArithmeticError&) {
            legs.emplace_back(std::nullopt);
            say(next.remark, "no rhumb line leads here");
        }
        remarkOnLeg(legs.back(), from, next, fixes[i].utc < from.utc);
    }
    showRuns(result, memory);
    gatherRemarks(result);
    if (fixes.size() >= 2) showSetAndDrift(input, result);
    return result;
}

} // namespace korvel
