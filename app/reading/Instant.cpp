// SPDX-License-Identifier: MIT
#include "app/reading/Instant.h"

#include "app/reading/Ascii.h"
#include "app/reading/Format.h"
#include "navlib/datetime.h"

#include <array>
#include <charconv>
#include <cmath>

namespace korvel
{
namespace
{

using namespace std::chrono;

// Day 0 of the program's date-times.
constexpr sys_days dayZero = year(1899) / December / 30;
constexpr double microsecondsOfHour = 3.6e9;
constexpr double longestHours = 200 * 365.25 * 24;

/// Takes a number of so many digits, and what stands behind it.
std::optional<int> takeDigits(std::string_view& text, std::size_t count, std::string_view behind)
{
    if (text.size() < count) return std::nullopt;
    int value = 0;
    for (const char c : text.substr(0, count)) {
        if (!isDigit(c)) return std::nullopt;
        value = 10 * value + (c - '0');
    }
    text.remove_prefix(count);
    if (!text.starts_with(behind)) return std::nullopt;
    text.remove_prefix(behind.size());
    return value;
}

/// Decimals of a second, if any stand there.
std::optional<Span> takeDecimals(std::string_view& text)
{
    if (!text.starts_with('.')) return Span(0);
    std::size_t end = 1;
    Span::rep value = 0;
    Span::rep unit = 100000;
    for (; end < text.size() && isDigit(text[end]); ++end, unit /= 10)
        value += (text[end] - '0') * unit;
    if (end == 1) return std::nullopt;
    text.remove_prefix(end);
    return Span(value);
}

/// What is left of a time: Z, an offset or nothing.
std::optional<minutes> readOffset(std::string_view text)
{
    if (text.empty() || text == "Z" || text == "z") return minutes(0);
    const bool isWest = text.front() == '-';
    if (!isWest && text.front() != '+') return std::nullopt;
    text.remove_prefix(1);
    const auto hour = takeDigits(text, 2, ":");
    const auto minute = hour ? takeDigits(text, 2, "") : std::nullopt;
    if (!minute || !text.empty() || *hour > 14 || *minute > 59) return std::nullopt;
    const minutes offset = hours(*hour) + minutes(*minute);
    return isWest ? -offset : offset;
}

} // namespace

Instant instantOf(NavFunc113::DateTime typed)
{
    const double whole = NavFunc113::NearestSecond(typed);
    const double day = std::floor(whole);
    return dayZero + days(static_cast<days::rep>(day)) +
           seconds(std::llround((whole - day) * 86400));
}

NavFunc113::DateTime dateTimeOf(Instant instant)
{
    const sys_days day = floor<days>(instant);
    return static_cast<double>((day - dayZero).count()) +
           duration<double, days::period>(instant - day).count();
}

std::optional<Span> spanOf(NavFunc113::Hours hours)
{
    if (!(std::fabs(hours.value()) <= longestHours)) return std::nullopt;
    return Span(std::llround(hours.value() * microsecondsOfHour));
}

NavFunc113::Hours hoursOf(Span span)
{
    return NavFunc113::Hours(static_cast<double>(span.count()) / microsecondsOfHour);
}

Instant nearestMinute(Instant instant)
{
    return floor<minutes>(instant + seconds(30));
}

std::string weekdayOf(Instant instant)
{
    constexpr std::array names{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    return names[weekday(floor<days>(instant)).c_encoding()];
}

std::string minuteText(Instant instant)
{
    return Format(dateTimeOf(nearestMinute(instant)), "yyyy/mm/dd hh:mm");
}

std::string spanText(Span span)
{
    auto left = floor<minutes>((span < Span(0) ? -span : span) + seconds(30)).count();
    const auto twoDigits = [](auto number) {
        return (number < 10 ? "0" : "") + std::to_string(number);
    };
    std::string text = span < Span(0) && left > 0 ? "-" : "";
    if (left >= 1440) text += std::to_string(left / 1440) + " d ";
    left %= 1440;
    return text + twoDigits(left / 60) + " h " + twoDigits(left % 60) + " m";
}

std::string isoText(Instant utc)
{
    return Format(dateTimeOf(floor<seconds>(utc + milliseconds(500))), "yyyy-mm-ddThh:mm:ss") + "Z";
}

std::optional<Instant> readIso(std::string_view text)
{
    const auto yearNumber = takeDigits(text, 4, "-");
    const auto monthNumber = yearNumber ? takeDigits(text, 2, "-") : std::nullopt;
    const auto dayNumber = monthNumber ? takeDigits(text, 2, "T") : std::nullopt;
    const auto hour = dayNumber ? takeDigits(text, 2, ":") : std::nullopt;
    const auto minute = hour ? takeDigits(text, 2, ":") : std::nullopt;
    const auto second = minute ? takeDigits(text, 2, "") : std::nullopt;
    const auto decimals = second ? takeDecimals(text) : std::nullopt;
    const auto offset = decimals ? readOffset(text) : std::nullopt;
    if (!offset || !NavFunc113::IsCivilDate({*yearNumber, *monthNumber, *dayNumber}))
        return std::nullopt;
    const Span ofDay = hours(*hour) + minutes(*minute) + seconds(*second) + *decimals;
    if (*minute > 59 || *second > 59 || ofDay > Span(days(1))) return std::nullopt;
    const sys_days date =
        dayZero + days(NavFunc113::DaySerial({*yearNumber, *monthNumber, *dayNumber}));
    return date + ofDay - *offset;
}

} // namespace korvel
