// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/PositionRecord.h"

#include "app/Format.h"
#include "app/NumberField.h"
#include "app/position_text.h"
#include "app/reading.h"
#include "forms/frmPositionRecord/FixTime.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "navlib/sailing.h"

#include <cmath>
#include <optional>
#include <vector>

namespace korvel
{
namespace
{

using NavFunc113::ArithmeticError;
using NavFunc113::DateTime;
using NavFunc113::DegMin;
using NavFunc113::Degrees;
using NavFunc113::Hours;
using NavFunc113::Knots;
using NavFunc113::Miles;

constexpr const char* distanceFormat = "0.'0";
constexpr const char* hoursFormat = "0.0#";
constexpr const char* speedFormat = "0.00";
constexpr Knots fastest(40);               ///< what is faster was hardly a ship
constexpr double clockLeeway = 2.0 / 1440; ///< days by which the ship's clock may be slow

constexpr NumberField timeDifference{"TD", -12, 12, "hours"};
constexpr NumberField latitudeOfFix{"latitude", -90, 90, "degrees", NumberField::Form::Latitude};
constexpr NumberField longitudeOfFix{"longitude", -180, 180, "degrees",
                                     NumberField::Form::Longitude};
constexpr NumberField courseSteered{"course steered", 0, 360, "degrees"};
constexpr NumberField speedSteered{"speed steered", 0, 999, "knots"};

struct Fix {
    std::size_t row;
    DateTime smt;
    DateTime utc;
    DegMin latitude;
    DegMin longitude;
};

struct Leg {
    Degrees course;
    Miles distance;
    Hours hours;
};

Hours hoursBetween(DateTime from, DateTime to)
{
    return Hours((to - from) * 24);
}

void say(std::string& text, const std::string& sentence)
{
    text = joined({text, sentence});
}

/// The number in a box. Empty and half-typed boxes give nothing and no word.
std::optional<double> numberIn(const std::string& box, const NumberField& field,
                               std::string& remark)
{
    Remarks remarks;
    const auto value = readIfTyped(box, field, remarks);
    say(remark, remarks.text());
    return value;
}

std::optional<DegMin> angleIn(const std::string& box, const NumberField& field, std::string& remark)
{
    const auto value = numberIn(box, field, remark);
    if (!value) return std::nullopt;
    const double minutes = (std::fabs(*value) - std::trunc(std::fabs(*value))) * 100;
    if (minutes > 60 - 1e-7) { // the last bits of 35.6 may fall short of 60 minutes
        say(remark, std::string(field.name) + ": minutes of " + Format(minutes, "0.####"));
        return std::nullopt;
    }
    return DegMin(*value);
}

/// "9 h 18 min".
std::string hoursAndMinutes(double hours)
{
    const double minutes = std::round(std::fabs(hours) * 60);
    return (hours < 0 ? "-" : "") + Format(std::floor(minutes / 60), "0") + " h " +
           Format(std::fmod(minutes, 60), "0") + " min";
}

std::optional<double> timeDifferenceIn(const std::string& box, std::string& remark)
{
    const auto value = numberIn(box, timeDifference, remark);
    const auto typed = readLeadingNumber(box);
    // Zones differ by whole quarters of an hour: 9.3 was hardly meant as 9 h 18 min.
    if (value && std::fabs(*value * 4 - std::round(*value * 4)) > 1e-9)
        say(remark, "TD of " + hoursAndMinutes(*value));
    // Clocks of +13 show the same time of day as those of -11, a day later.
    if (!value && typed && std::fabs(*typed) <= 15)
        say(remark, *typed > 0
                        ? "take " + Format(*typed - 24, "0.0#") + " and the date a day earlier"
                        : "take " + Format(*typed + 24, "0.0#") + " and the date a day later");
    return value;
}

/// The time difference of a row. @param above that of the rows above; replaced by the row's own
std::optional<double> timeDifferenceOf(const PositionRow& row, double& above,
                                       PositionRowResult& result)
{
    if (row.satelliteTD.find_first_not_of(" \t") == std::string::npos) {
        if (!row.isEmpty()) result.assumedTD = Format(above, "0.0#");
        return above;
    }
    const auto td = timeDifferenceIn(row.satelliteTD, result.remark);
    if (td) above = *td;
    return td;
}

/// Reads a row, writes its UTC and remarks. @return the fix when the row is complete
std::optional<Fix> fixOf(const PositionRecordInput& input, std::size_t index, double& tdAbove,
                         PositionRowResult& result)
{
    const PositionRow& row = input.rows[index];
    const auto smt = readFixTime(row.satelliteSMT);
    if (!smt && input.typingTimeIn != index) result.remark = faultOfFixTime(row.satelliteSMT);
    const auto td = timeDifferenceOf(row, tdAbove, result);
    const auto latitude = angleIn(row.latitude, latitudeOfFix, result.remark);
    const auto longitude = angleIn(row.longitude, longitudeOfFix, result.remark);
    if (!smt || !td) return std::nullopt;
    const DateTime utc = NavFunc113::NearestSecond(*smt - *td / 24);
    result.utc = Format(utc, "yyyy/mm/dd hh:mm");
    if (input.now && utc > *input.now + clockLeeway) say(result.remark, "lies in the future");
    if (!latitude || !longitude) return std::nullopt;
    return Fix{index, *smt, utc, *latitude, *longitude};
}

Leg legBetween(const Fix& from, const Fix& to, NavFunc113::Earth earth)
{
    return {
        NavFunc113::RhumbCourse(from.latitude, from.longitude, to.latitude, to.longitude),
        NavFunc113::RhumbDistance(from.latitude, from.longitude, to.latitude, to.longitude, earth),
        hoursBetween(from.utc, to.utc)};
}

void showLeg(const Leg& leg, PositionRowResult& row)
{
    row.course = courseText(leg.course);
    row.distance = Format(leg.distance, distanceFormat);
    row.hours = Format(leg.hours, hoursFormat);
    if (leg.hours > Hours(0)) row.speed = Format(leg.distance / leg.hours, speedFormat);
}

bool isTooFast(const Leg& leg)
{
    return leg.hours > Hours(0) ? leg.distance / leg.hours > fastest
                                : leg.hours == Hours(0) && leg.distance > Miles(1);
}

/// Sums of consecutive legs. Once a leg is missing or runs against time, nothing adds up any more.
class Run
{
public:
    void add(const std::optional<Leg>& leg)
    {
        m_valid = m_valid && leg && leg->hours >= Hours(0);
        if (!m_valid) return;
        m_distance += leg->distance;
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
/// @param legs legs[i] leads from fixes[i] to fixes[i + 1]
void showRuns(const std::vector<Fix>& fixes, const std::vector<std::optional<Leg>>& legs,
              PositionRecordResult& result)
{
    Run total;
    std::optional<Run> sinceNoon;
    for (std::size_t i = 0; i < fixes.size(); ++i) {
        if (i > 0) {
            total.add(legs[i - 1]);
            if (sinceNoon) sinceNoon->add(legs[i - 1]);
        }
        if (!isNoon(fixes[i].smt)) continue;
        if (sinceNoon && sinceNoon->isValid()) {
            result.dayRun = Format(sinceNoon->distance(), distanceFormat) + " in " +
                            Format(sinceNoon->hours(), hoursFormat) + " h";
            result.rows[fixes[i].row].dayRun = result.dayRun;
        }
        sinceNoon.emplace();
    }
    if (!total.isValid()) return;
    result.totalDistance = Format(total.distance(), distanceFormat);
    result.totalHours = Format(total.hours(), hoursFormat);
    result.averageSpeed = Format(total.distance() / total.hours(), speedFormat);
    result.totalMiles = total.distance().value();
    result.averageKnots = (total.distance() / total.hours()).value();
}

/// The current between the last two fixes: from where the ship should have been by course and
/// speed steered to where she was.
void showSetAndDrift(const PositionRecordInput& input, const Fix& from, const Fix& to,
                     PositionRecordResult& result)
{
    const auto course = numberIn(input.courseSteered, courseSteered, result.notice);
    const auto speed = numberIn(input.speedSteered, speedSteered, result.notice);
    if (!course || !speed) return;
    const Hours hours = hoursBetween(from.utc, to.utc);
    if (!(hours > Hours(0))) return;
    try {
        const Miles run = Knots(*speed) * hours;
        const Degrees steered(*course);
        const DegMin latitude = NavFunc113::DRLatitude(from.latitude, steered, run, input.earth);
        const DegMin longitude =
            NavFunc113::DRLongitude(from.latitude, from.longitude, steered, run, input.earth);
        const Fix reckoned{from.row, from.smt, from.utc, latitude, longitude};
        const Leg current = legBetween(reckoned, to, input.earth);
        result.drift = Format(current.distance, distanceFormat) + " = " +
                       Format(current.distance / hours, "0.00") + " kn";
        if (current.distance >= Miles(0.05)) result.set = courseText(current.course, "000");
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

std::string angleForCopy(const std::string& box, Axis axis)
{
    return isNumeric(box) ? positionForCopy(DegMin(readNumber(box)), axis) : box;
}

std::string timeDifferenceForCopy(const std::string& box, const std::string& assumed)
{
    const std::string& text = assumed.empty() ? box : assumed;
    return isNumeric(text) ? Format(readNumber(text), "+0.0#;-0.0#") : text;
}

std::string mileText(NavFunc113::Earth earth)
{
    return earth == NavFunc113::Earth::Spheroid ? "1nm=1852m (spheroid)"
                                                : "1nm=1' (of LATITUDE) (sphere)";
}

} // namespace

PositionRecordResult CalculatePositionRecord(const PositionRecordInput& input)
{
    PositionRecordResult result;
    std::vector<Fix> fixes;
    double td = input.shipsTD;
    for (std::size_t i = 0; i < input.rows.size(); ++i)
        if (const auto fix = fixOf(input, i, td, result.rows[i])) fixes.push_back(*fix);

    std::vector<std::optional<Leg>> legs;
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
    showRuns(fixes, legs, result);
    gatherRemarks(result);
    if (fixes.size() >= 2) showSetAndDrift(input, fixes[fixes.size() - 2], fixes.back(), result);
    return result;
}

std::string positionRecordText(const PositionRecordInput& input, const PositionRecordResult& result)
{
    std::string text = "No.\tSMT\tTD (east +)\tUTC\tLatitude\tLongitude\tCourse to next\t"
                       "Distance\tHours\tSpeed\tDay's run\tRemark\n";
    for (std::size_t i = 0; i < input.rows.size(); ++i) {
        const PositionRow& row = input.rows[i];
        const PositionRowResult& shown = result.rows[i];
        if (row.isEmpty()) continue;
        text += Format(static_cast<double>(i + 1), "0") + "\t" + row.satelliteSMT + "\t" +
                timeDifferenceForCopy(row.satelliteTD, shown.assumedTD) + "\t" + shown.utc + "\t" +
                angleForCopy(row.latitude, Axis::Latitude) + "\t" +
                angleForCopy(row.longitude, Axis::Longitude) + "\t" + shown.course + "\t" +
                shown.distance + "\t" + shown.hours + "\t" + shown.speed + "\t" + shown.dayRun +
                "\t" + shown.remark + "\n";
    }
    if (!result.totalDistance.empty())
        text += "Total\t\t\t\t\t\t\t" + result.totalDistance + "\t" + result.totalHours + "\t" +
                result.averageSpeed + "\n";
    if (!result.drift.empty()) text += "Set and drift\t" + result.set + "\t" + result.drift + "\n";
    return text + "Miles\t" + mileText(input.earth) + "\n";
}

} // namespace korvel
