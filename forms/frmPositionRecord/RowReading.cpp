// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/RowReading.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/Reading.h"
#include "forms/frmPositionRecord/FixTime.h"
#include "navlib/datetime.h"

#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::DateTime;
using NavFunc113::DegMin;

/// Days by which the ship's clock may be slow.
constexpr double clockLeeway = NavFunc113::DaysOfHours(NavFunc113::Hours(2.0 / 60));

std::optional<DegMin> angleIn(const std::string& box, const NumberField& field, std::string& remark)
{
    Remarks remarks;
    const auto angle = readAngleIfTyped(box, field, remarks);
    say(remark, remarks.text());
    return angle;
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
    const auto value = numberIn(box, RowField::timeDifference, remark);
    const auto typed = readLeadingNumber(box);
    // Zones differ by whole quarters of an hour: 9.3 was hardly meant as 9 h 18 min.
    if (value && std::fmod(*value, 0.25) != 0) say(remark, "TD of " + hoursAndMinutes(*value));
    // Clocks of +13 show the same time of day as those of -11, a day later.
    if (!value && typed && std::fabs(*typed) <= 15)
        say(remark, "take " + Format(*typed - std::copysign(24, *typed), "0.0#") +
                        " and the date a day " + (std::signbit(*typed) ? "later" : "earlier"));
    return value;
}

/// The time difference of a row. @param above that of the rows above; replaced by the row's own
std::optional<double> timeDifferenceOf(const PositionRow& row, double& above,
                                       PositionRowResult& result)
{
    if (isBlank(row.satelliteTD)) {
        if (!row.isEmpty()) result.assumedTD = Format(above, "0.0#");
        return above;
    }
    const auto td = timeDifferenceIn(row.satelliteTD, result.remark);
    if (td) above = *td;
    return td;
}

} // namespace

void say(std::string& text, const std::string& sentence)
{
    text = joined({text, sentence});
}

std::optional<double> numberIn(const std::string& box, const NumberField& field,
                               std::string& remark)
{
    Remarks remarks;
    const auto value = readIfTyped(box, field, remarks);
    say(remark, remarks.text());
    return value;
}

namespace
{

RecordMemory::ReadBefore readAnew(const PositionRow& row, double tdAbove, bool isTypingTime,
                                  std::size_t index)
{
    RecordMemory::ReadBefore read{row, tdAbove, isTypingTime, {}, {}, tdAbove};
    PositionRowResult& result = read.result;
    const auto smt = readFixTime(row.satelliteSMT);
    if (!smt && !isTypingTime) result.remark = faultOfFixTime(row.satelliteSMT);
    const auto td = timeDifferenceOf(row, read.tdBelow, result);
    const auto latitude = angleIn(row.latitude, RowField::latitude, result.remark);
    const auto longitude = angleIn(row.longitude, RowField::longitude, result.remark);
    result.read = {smt, td, {}, latitude, longitude};
    if (!smt || !td) return read;
    const DateTime utc = NavFunc113::NearestSecond(*smt - *td / 24);
    result.read.utc = utc;
    result.utc = Format(utc, "yyyy/mm/dd hh:mm");
    if (latitude && longitude) read.fix = RecordedFix{index, *smt, utc, *latitude, *longitude};
    return read;
}

} // namespace

std::optional<RecordedFix> readRow(const PositionRecordInput& input, std::size_t index,
                                   double& tdAbove, PositionRowResult& result,
                                   std::optional<RecordMemory::ReadBefore>& before)
{
    const PositionRow& row = input.rows[index];
    const bool isTyping = input.typingTimeIn == index;
    const bool holds = before && before->typed == row && before->tdAbove == tdAbove &&
                       before->isTypingTime == isTyping;
    if (!holds) before = readAnew(row, tdAbove, isTyping, index);
    result = before->result;
    tdAbove = before->tdBelow;
    // The clock goes on while a row stays as it is.
    const auto& utc = result.read.utc;
    if (utc && input.now && *utc > *input.now + clockLeeway)
        say(result.remark, "lies in the future");
    return before->fix;
}

} // namespace korvel
