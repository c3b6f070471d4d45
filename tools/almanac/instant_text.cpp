// SPDX-License-Identifier: MIT
#include "tools/almanac/instant_text.h"
#include "navlib/datetime.h"

#include <algorithm>
#include <charconv>

namespace almanac
{
namespace
{

/// Takes digits, exactly as many, off the front.
std::optional<int> takeDigits(std::string_view& text, std::size_t count)
{
    int value = 0;
    const auto isDigit = [](char letter) { return letter >= '0' && letter <= '9'; };
    if (text.size() < count || !std::ranges::all_of(text.substr(0, count), isDigit))
        return std::nullopt;
    std::from_chars(text.data(), text.data() + count, value);
    text.remove_prefix(count);
    return value;
}

bool take(std::string_view& text, char letter)
{
    const bool isThere = text.starts_with(letter);
    if (isThere) text.remove_prefix(1);
    return isThere;
}

std::optional<NavFunc113::DateTime> takeDay(std::string_view& text)
{
    const auto year = takeDigits(text, 4);
    const bool first = take(text, '-');
    const auto month = takeDigits(text, 2);
    const bool second = take(text, '-');
    const auto day = takeDigits(text, 2);
    if (!year || !first || !month || !second || !day) return std::nullopt;
    const NavFunc113::CivilDate date{*year, *month, *day};
    if (!NavFunc113::IsCivilDate(date)) return std::nullopt;
    return NavFunc113::MakeDateTime(date);
}

/// Seconds of the minute, below 60; 0 when they are left out.
std::optional<double> takeSeconds(std::string_view& text)
{
    if (!take(text, ':')) return 0;
    double seconds = 0;
    const char* end = text.data() + text.size();
    const auto [rest, fault] = std::from_chars(text.data(), end, seconds, std::chars_format::fixed);
    const bool isDigit = !text.empty() && text[0] >= '0' && text[0] <= '9';
    if (!isDigit || fault != std::errc{} || seconds >= 60) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
    return seconds;
}

} // namespace

std::optional<NavFunc113::DateTime> readDay(std::string_view text)
{
    const auto day = takeDay(text);
    return text.empty() ? day : std::nullopt;
}

std::optional<NavFunc113::DateTime> readInstant(std::string_view text)
{
    const auto day = takeDay(text);
    if (!day || !(take(text, 'T') || take(text, ' '))) return std::nullopt;
    const auto hour = takeDigits(text, 2);
    const bool parted = take(text, ':');
    const auto minute = takeDigits(text, 2);
    const auto seconds = takeSeconds(text);
    take(text, 'Z');
    if (!hour || !parted || !minute || !seconds || !text.empty()) return std::nullopt;
    if (*hour > 23 || *minute > 59) return std::nullopt;
    return *day + (*hour * 3600 + *minute * 60 + *seconds) / 86400;
}

} // namespace almanac
