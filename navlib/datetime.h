// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <cstdint>

namespace NavFunc113
{

/// A date of the proleptic Gregorian calendar.
struct CivilDate {
    int year = 1899;
    int month = 12; ///< 1 to 12
    int day = 30;   ///< 1 to 31
};

/// A time of day, cut to the whole second.
struct TimeOfDay {
    int hour{};   ///< 0 to 23
    int minute{}; ///< 0 to 59
    int second{}; ///< 0 to 59
};

/// Day number of a date: 0 is 1899-12-30. Months and days beyond the calendar are not checked.
std::int64_t DaySerial(const CivilDate& date);

/// Date of a day number (the whole part of a date-time).
/// @param day day number, years 1 to 9999
CivilDate DateOfSerial(std::int64_t day);

/// True when the date exists in the calendar and its year lies in 100 .. 9999.
bool IsCivilDate(const CivilDate& date);

/// Date-time of a date and a time of day in seconds.
DateTime MakeDateTime(const CivilDate& date, double secondsOfDay = 0);

/// The date-time rounded to the nearest whole second, so that 09:30 stays 09:30 whatever the last
/// bits of its day fraction are.
/// @throws ArithmeticError Overflow when the value is not within years 100 .. 9999
DateTime NearestSecond(DateTime value);

/// Date and time of day of a date-time, rounded to the nearest second before it is taken apart.
/// @throws ArithmeticError Overflow when the value is not within years 100 .. 9999
CivilDate DateOf(DateTime value);
TimeOfDay TimeOf(DateTime value);

} // namespace NavFunc113
