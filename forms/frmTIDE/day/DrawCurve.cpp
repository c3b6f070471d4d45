// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/day/DrawCurve.h"

#include "app/reading/Format.h"
#include "navlib/sea/wind.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

CurveScale scaleOf(const NavFunc113::TideExtremes& extremes)
{
    const double base = extremes.lowest > 0 ? 0 : extremes.lowest;
    return {0, 24, extremes.highest + 1.5, base - 0.6};
}

CurveLine across(const CurveScale& scale, double y)
{
    return {{scale.left, y}, {scale.right, y}};
}

// Fifths of a unit, counted in whole numbers so that 1.0 is met exactly. Beyond 10 units the lines
// would merge into a grey field.
void addLevelLines(CurvePicture& picture, const std::string& unit)
{
    const double highest = std::min(picture.scale.top, 10.0);
    const double lowest = std::max(picture.scale.bottom, -10.0);
    const int end = static_cast<int>(std::floor(highest * 5));
    for (int fifth = static_cast<int>(std::ceil(lowest * 5)); fifth <= end; ++fifth) {
        if (fifth == 0) continue;
        auto& lines = fifth % 5 == 0 ? picture.levelLines : picture.fineLevelLines;
        lines.push_back(across(picture.scale, fifth / 5.0));
        // Below datum, and where the tides are great, the six labels do not reach.
        const int level = fifth / 5;
        if (fifth % 5 == 0 && (level < 0 || level > 5))
            picture.furtherLevels.push_back(
                {static_cast<double>(level), std::to_string(level) + unit});
    }
}

void addTicks(CurvePicture& picture)
{
    const double half = (picture.scale.top - picture.scale.bottom) / 100;
    for (std::size_t i = 1; i + 1 < picture.curve.size(); ++i) {
        const auto [x, y] = picture.curve[i];
        picture.ticks.push_back({{x, y - half}, {x, y + half}});
    }
}

// The direction a stream sets to; none at slack water or when the direction is no direction.
std::string setOf(const TidePrediction& prediction, double rate)
{
    if (std::fabs(rate) < 0.05) return " slack";
    const double towards = prediction.floodDirection.value() + (rate > 0 ? 0 : 180);
    NavFunc113::Degrees direction(std::fmod(towards, 360));
    if (direction < NavFunc113::Degrees(0)) direction += NavFunc113::fullTurn;
    return " " + NavFunc113::CompassName(direction);
}

} // namespace

CurvePicture DrawCurve(const TidePrediction& prediction)
{
    CurvePicture picture;
    picture.scale = scaleOf(prediction.extremes);
    for (int i = 0; i < 11; ++i) {
        const int hour = 2 * (i + 1);
        picture.lblTime[static_cast<std::size_t>(i)] = {1.7 + 2 * i, -0.1, hour,
                                                        std::to_string(hour)};
        const double x = hour;
        picture.hourLines.push_back({{x, picture.scale.bottom}, {x, picture.scale.top}});
    }
    const std::string unit = prediction.kind == TideKind::Tide ? " m" : " kn.";
    for (int i = 0; i < 6; ++i)
        picture.lblHeight[static_cast<std::size_t>(i)] = {static_cast<double>(i),
                                                          std::to_string(i) + unit};
    addLevelLines(picture, unit);
    picture.zeroLine = across(picture.scale, 0);
    for (std::size_t i = 0; i < picture.curve.size(); ++i)
        picture.curve[i] = {static_cast<double>(i) / 2, prediction.values[i]};
    addTicks(picture);
    return picture;
}

std::optional<CurveReading> readCurve(const TidePrediction& prediction, double hour,
                                      const std::string& mark)
{
    if (!(hour >= 0 && hour <= 24)) return std::nullopt;
    // The whole minute that is shown is the one that is read.
    const int minute = static_cast<int>(std::lround(hour * 60));
    const double x = minute / 60.0;
    const std::size_t before =
        std::min(static_cast<std::size_t>(minute / 30), prediction.values.size() - 2);
    const double share = (minute - 30.0 * static_cast<double>(before)) / 30;
    const double y = prediction.values[before] +
                     share * (prediction.values[before + 1] - prediction.values[before]);
    // By hand, because 24:00 is a time of this curve and of no clock.
    const int hours = minute / 60;
    const std::string time = Format(hours, "00") + ":" + Format(minute % 60, "00") + "  " + mark;
    if (prediction.kind == TideKind::Tide) return CurveReading{{x, y}, time + Format(y, "0.00m")};
    return CurveReading{{x, y}, time + Format(std::fabs(y), "0.0kn") + setOf(prediction, y)};
}

} // namespace korvel
