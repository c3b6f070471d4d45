// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/RecordText.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"

namespace korvel
{
namespace
{

std::string mileText(NavFunc113::Earth earth)
{
    return earth == NavFunc113::Earth::Spheroid ? "1nm=1852m (spheroid)"
                                                : "1nm=1' (of LATITUDE) (sphere)";
}

} // namespace

std::string positionOfBox(const std::string& box, Axis axis)
{
    return isNumeric(box) ? positionForCopy(NavFunc113::DegMin(readNumber(box)), axis) : box;
}

std::string timeDifferenceOf(const PositionRow& row, const PositionRowResult& shown)
{
    const std::string& text = shown.assumedTD.empty() ? row.satelliteTD : shown.assumedTD;
    return isNumeric(text) ? Format(readNumber(text), "+0.0#;-0.0#") : text;
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
                timeDifferenceOf(row, shown) + "\t" + shown.utc + "\t" +
                positionOfBox(row.latitude, Axis::Latitude) + "\t" +
                positionOfBox(row.longitude, Axis::Longitude) + "\t" + shown.course + "\t" +
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
