// SPDX-License-Identifier: MIT
#include "navlib/datetime.h"

#include "navlib/arithmetic_error.h"

#include <chrono>
#include <cmath>

namespace NavFunc113
{
namespace
{

constexpr std::int64_t secondsPerDay = 86400;
constexpr std::chrono::sys_days serialZero =
    std::chrono::year(1899) / std::chrono::December / std::chrono::day(30);

std::chrono::year_month_day calendarDate(const CivilDate& date)
{
    return {std::chrono::year(date.year), std::chrono::month(static_cast<unsigned>(date.month)),
            std::chrono::day(static_cast<unsigned>(date.day))};
}

std::int64_t wholeSeconds(DateTime value)
{
    constexpr double firstDay = -657434;     // 100-01-01
    constexpr double dayAfterLast = 2958466; // 10000-01-01
    if (!(value >= firstDay && value < dayAfterLast))
        throw ArithmeticError(ArithmeticError::Condition::Overflow);
    return std::llround(value * secondsPerDay);
}

std::int64_t floorDays(std::int64_t seconds)
{
    const std::int64_t days = seconds / secondsPerDay;
    return seconds % secondsPerDay < 0 ? days - 1 : days;
}

} // namespace

std::int64_t DaySerial(const CivilDate& date)
{
    return (std::chrono::sys_days(calendarDate(date)) - serialZero).count();
}

CivilDate DateOfSerial(std::int64_t day)
{
    const std::chrono::year_month_day date(
        serialZero + std::chrono::days(static_cast<std::chrono::days::rep>(day)));
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

bool IsCivilDate(const CivilDate& date)
{
    return date.year >= 100 && date.year <= 9999 && date.month >= 1 && date.month <= 12 &&
           date.day >= 1 && calendarDate(date).ok();
}

DateTime MakeDateTime(const CivilDate& date, double secondsOfDay)
{
    return static_cast<double>(DaySerial(date)) + secondsOfDay / secondsPerDay;
}

DateTime NearestSecond(DateTime value)
{
    return static_cast<double>(wholeSeconds(value)) / secondsPerDay;
}

CivilDate DateOf(DateTime value)
{
    return DateOfSerial(floorDays(wholeSeconds(value)));
}

TimeOfDay TimeOf(DateTime value)
{
    const std::int64_t seconds = wholeSeconds(value);
    const int ofDay = static_cast<int>(seconds - floorDays(seconds) * secondsPerDay);
    return {ofDay / 3600, ofDay / 60 % 60, ofDay % 60};
}

} // namespace NavFunc113
