// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/daily_page.h"

#include <string>
#include <string_view>

/// Figures as almanacs print them, each in a cell of fixed width.
namespace almanac
{

/// What every page says of itself: ASCII.
inline constexpr std::string_view notOfficial =
    "Worked by KORVEL2000. Not an official almanac: check it before you rely on it.";
/// How good its places are, measured against full theories.
inline constexpr std::string_view accuracyOfPage = "Within 0.02' of full theory, rounded to 0.1'";

std::string padded(const std::string& text, std::size_t width, char filler = ' ');
std::string padded(int number, std::size_t width, char filler = ' ');
std::string leftAligned(std::string_view text, std::size_t width);

std::string weekdayText(DateTime day);           ///< "Sun"
std::string datesText(DateTime first, int days); ///< "2026 November 22, 23, 24 (Sun, Mon, Tue)"

std::string tenthsCell(double value, std::size_t width);   ///< " 16.2", rounded half away from 0
std::string minutesCell(Degrees angle, std::size_t width); ///< minutes of arc and tenths
std::string turnCell(Degrees angle);                       ///< "123 45.6", 0 to 359 59.9
std::string declinationCell(Degrees angle);                ///< "N 12 34.5"
std::string equationCell(Degrees excess); ///< "+13 45": minutes and seconds of time

/// "04 10", to the minute; midnight at the end of a day is "24 00", nothing is "-- --".
/// @param ut of the page's day
std::string clockCell(std::optional<DateTime> ut);
std::string clockCell(const PageTime& time); ///< five letters, "above", "////" and the like too

} // namespace almanac
