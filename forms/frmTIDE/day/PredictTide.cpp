// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/day/PredictTide.h"

#include "app/reading/Format.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "navlib/sea/wind.h"

#include <cstdint>

namespace korvel
{
namespace
{

std::string timeText(NavFunc113::Hours time)
{
    // Hours and minutes are packed as degrees and minutes are.
    return Format(NavFunc113::DegToDegMin(NavFunc113::Degrees(time.value())), "00.-00: ");
}

TidePrediction predict(const TideStation& station, const DaysFactors& factors, double level,
                       std::int64_t serial, const TidePrediction& shown)
{
    TidePrediction prediction;
    prediction.title = station.title;
    prediction.station = station;
    prediction.serial = serial;
    prediction.factors = factors;
    prediction.level = level;
    prediction.lblTD = Format(station.zone, "0.0hE;0.0hW");
    prediction.day.emplace(station.constituents, factors.thisDay, factors.nextDay,
                           station.shallowWater);
    prediction.values = prediction.day->halfHourly(level);
    prediction.extremes = NavFunc113::SearchHighestLowest(prediction.values, shown.extremes);
    return prediction;
}

std::string info(const NavFunc113::TideExtremes& extremes, std::string_view highFormat,
                 std::string_view lowFormat)
{
    return timeText(extremes.timeHigh) + Format(extremes.highest, highFormat) +
           timeText(extremes.timeLow) + Format(extremes.lowest, lowFormat);
}

// The search starts at a highest of 0 and a lowest of 5, and keeps the times of the day before.
std::string remarkOn(const TidePrediction& prediction, const std::string& unit)
{
    std::string remark;
    if (prediction.extremes.highest <= 0)
        remark = prediction.kind == TideKind::Stream
                     ? "The stream never turns positive this day: the highest is not of this day."
                     : "No height above 0 this day: the highest is not of this day.";
    if (prediction.extremes.lowest >= 5)
        remark += std::string(remark.empty() ? "" : "  ") + "Nothing below 5" + unit +
                  " this day: the lowest is not of this day.";
    return remark;
}

} // namespace

TidePrediction predictTideDay(const TideStation& station, const DaysFactors& factors,
                              std::int64_t serial, const TidePrediction& shown)
{
    const int month = NavFunc113::DateOfSerial(serial).month;
    const double correction = station.monthlyCorrections[static_cast<std::size_t>(month - 1)];
    TidePrediction prediction =
        predict(station, factors, station.meanLevel + correction, serial, shown);
    prediction.kind = TideKind::Tide;
    prediction.lblTideInfo = info(prediction.extremes, "0.00m   ", "0.00m");
    prediction.remark = remarkOn(prediction, " m");
    return prediction;
}

TidePrediction predictStreamDay(const TideStation& station, const DaysFactors& factors,
                                std::int64_t serial, const TidePrediction& shown)
{
    TidePrediction prediction = predict(station, factors, station.meanLevel, serial, shown);
    prediction.kind = TideKind::Stream;
    prediction.floodDirection = station.floodDirection;
    // The ebb is passed on as it is, not reduced below 360: the name does that.
    NavFunc113::Degrees flood = station.floodDirection;
    NavFunc113::Degrees ebb = station.floodDirection + NavFunc113::halfTurn;
    prediction.lblCuDirection = {"+ : " + NavFunc113::CompassName(flood),
                                 "- : " + NavFunc113::CompassName(ebb)};
    prediction.lblTideInfo = info(prediction.extremes, "0.0kn   ", "0.0kn");
    prediction.remark = remarkOn(prediction, " kn");
    return prediction;
}

} // namespace korvel
