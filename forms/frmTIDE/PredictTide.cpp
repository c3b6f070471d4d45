// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/PredictTide.h"

#include "app/Format.h"
#include "forms/frmTIDE/TideData.h"
#include "forms/frmTIDE/TideDates.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "navlib/wind.h"

#include <cstdint>

namespace korvel
{
namespace
{

std::optional<std::int64_t> chosenDate(const std::string& lblPlace, std::string_view lblDate)
{
    if (lblPlace == noPlace || lblPlace.empty()) return std::nullopt;
    return TideDates::dateIn(lblDate);
}

std::string timeText(NavFunc113::Hours time)
{
    // Hours and minutes are packed as degrees and minutes are.
    return Format(NavFunc113::DegToDegMin(NavFunc113::Degrees(time.value())), "00.-00: ");
}

TidePrediction predict(const TideStation& station, const DaysFactors& factors, double level,
                       const TidePrediction& shown)
{
    TidePrediction prediction;
    prediction.title = station.title;
    prediction.lblTD = Format(station.zone, "0.0hE;0.0hW");
    const NavFunc113::TideDay day(station.constituents, factors.thisDay, factors.nextDay,
                                  station.shallowWater);
    prediction.values = day.halfHourly(level);
    prediction.extremes = NavFunc113::SearchHighestLowest(prediction.values, shown.extremes);
    return prediction;
}

std::string info(const NavFunc113::TideExtremes& extremes, std::string_view highFormat,
                 std::string_view lowFormat)
{
    return timeText(extremes.timeHigh) + Format(extremes.highest, highFormat) +
           timeText(extremes.timeLow) + Format(extremes.lowest, lowFormat);
}

} // namespace

std::optional<TidePrediction> PredictTide(const std::filesystem::path& programFolder,
                                          const std::string& lblPlace, std::string_view lblDate,
                                          const TidePrediction& shown)
{
    const std::optional<std::int64_t> date = chosenDate(lblPlace, lblDate);
    if (!date) return std::nullopt;
    const DaysFactors factors = readDaysFactors(programFolder, *date - firstFactorsSerial);
    const TideStation station = readTideStation(programFolder, lblPlace);
    const int month = NavFunc113::DateOfSerial(*date).month;
    const double correction = station.monthlyCorrections[static_cast<std::size_t>(month - 1)];

    TidePrediction prediction = predict(station, factors, station.meanLevel + correction, shown);
    prediction.kind = TideKind::Tide;
    prediction.lblTideInfo = info(prediction.extremes, "0.00m   ", "0.00m");
    return prediction;
}

std::optional<TidePrediction> PredictCurrent(const std::filesystem::path& programFolder,
                                             const std::string& lblPlace, std::string_view lblDate,
                                             const TidePrediction& shown)
{
    const std::optional<std::int64_t> date = chosenDate(lblPlace, lblDate);
    if (!date) return std::nullopt;
    const DaysFactors factors = readDaysFactors(programFolder, *date - firstFactorsSerial);
    const TideStation station = readStreamStation(programFolder, lblPlace);

    TidePrediction prediction = predict(station, factors, station.meanLevel, shown);
    prediction.kind = TideKind::Stream;
    prediction.floodDirection = station.floodDirection;
    // The ebb is passed on as it is, not reduced below 360: the name does that.
    NavFunc113::Degrees flood = station.floodDirection;
    NavFunc113::Degrees ebb = station.floodDirection + NavFunc113::halfTurn;
    prediction.lblCuDirection = {"+ : " + NavFunc113::CompassName(flood),
                                 "- : " + NavFunc113::CompassName(ebb)};
    prediction.lblTideInfo = info(prediction.extremes, "0.0kn   ", "0.0kn");
    return prediction;
}

} // namespace korvel
