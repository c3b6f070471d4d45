// SPDX-License-Identifier: MIT
#include "forms/frmETA/Steps.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmETA/PassageTimes.h"
#include "navlib/datetime.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

constexpr double stepsPerKnot = 4;

double wholeHours(NavFunc113::DateTime value)
{
    // To the nearest second first, or 09:00 could be a hair below the hour.
    return std::floor(std::round(value * 86400) / 3600);
}

} // namespace

std::optional<TimeTexts> steppedTime(std::string_view date, std::string_view time, int hours)
{
    const auto from = passageTime(date, time);
    if (!from) return std::nullopt;
    const double reached = wholeHours(*from) + hours;
    const double day = std::floor(reached / 24);
    TimeTexts texts{Format(day, "yyyy/m/d"), Format(reached - day * 24, "0") + ":00"};
    if (texts.date.empty()) return std::nullopt;
    return texts;
}

TimeTexts EnterPresent(NavFunc113::DateTime now)
{
    const double present = wholeHours(now) / 24;
    return {Format(present, "yyyy/M/d"), Format(present, "hh:00")};
}

TimeTexts EnterPresent(NavFunc113::DateTime utc, std::string_view box, double shipTD)
{
    return EnterPresent(utc + (isTD(box) ? readNumber(box) : shipTD) / 24);
}

std::string speedOfStep(int quarterKnots)
{
    return Format(quarterKnots / stepsPerKnot, "0.00");
}

int stepOfSpeed(std::string_view box)
{
    const double steps = std::round(readNumber(box) * stepsPerKnot);
    return static_cast<int>(std::clamp(steps, 0.0, static_cast<double>(speedStepLimit)));
}

std::optional<std::string> speedOnLeaving(std::string_view box)
{
    const auto speed = readLeadingNumber(box);
    if (!speed || *speed < 0 || *speed * stepsPerKnot > speedStepLimit) return std::nullopt;
    // Slower than half a step is still under way.
    if (*speed > 0 && stepOfSpeed(box) == 0) return std::nullopt;
    return speedOfStep(stepOfSpeed(box));
}

} // namespace korvel
