// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"

#include "app/reading/Ascii.h"
#include "navlib/arithmetic_error.h"
#include "navlib/datetime.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace korvel
{
namespace
{

bool isPlaceholder(char c)
{
    return c == '0' || c == '#';
}

/// A magnitude in decimal digits, rounded for display.
struct Decimal {
    std::string whole;    ///< digits before the point, without leading zeros; may be empty
    std::string decimals; ///< exactly as many as were asked for
};

/// The 15 significant digits of a magnitude with the place of the point: 0.d1 d2 ... x 10^point.
struct Significant {
    std::string digits;
    int point;
};

Significant significantDigits(double magnitude)
{
    constexpr int significant = 15;
    std::array<char, 40> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                   std::chars_format::scientific, significant - 1);
    const std::string_view written(text.data(), static_cast<std::size_t>(end.ptr - text.data()));
    const std::size_t e = written.find('e');
    std::string_view exponentText = written.substr(e + 1);
    if (exponentText.front() == '+') exponentText.remove_prefix(1);
    int exponent = 0;
    std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
    std::string digits(written.substr(0, e));
    digits.erase(1, 1);
    return {std::move(digits), exponent + 1};
}

Decimal roundedDecimal(double magnitude, int places)
{
    auto [digits, point] = significantDigits(magnitude);
    // One leading zero takes the carry of 9.99.
    int keep = point + places;
    if (keep < 0)
        digits.clear();
    else {
        if (point < 0) digits.insert(0, static_cast<std::size_t>(-point), '0');
        digits.insert(0, 1, '0');
        const std::size_t cut =
            static_cast<std::size_t>(keep) + 1 + static_cast<std::size_t>(std::max(-point, 0));
        const bool up = cut < digits.size() && digits[cut] >= '5';
        digits.resize(cut, '0');
        for (std::size_t i = digits.size(); up && i-- > 0;) {
            if (digits[i] != '9') {
                ++digits[i];
                break;
            }
            digits[i] = '0';
        }
    }
    const std::size_t decimals = static_cast<std::size_t>(places);
    if (digits.size() < decimals) digits.insert(0, decimals - digits.size(), '0');
    std::string whole = digits.substr(0, digits.size() - decimals);
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
    return {std::move(whole), digits.substr(digits.size() - decimals)};
}

int decimalPlaces(std::string_view section)
{
    const std::size_t point = section.find('.');
    if (point == std::string_view::npos) return 0;
    return static_cast<int>(std::count_if(section.begin() + static_cast<std::ptrdiff_t>(point),
                                          section.end(), isPlaceholder));
}

/// True for a comma that stands between digit placeholders before the point.
bool groupsThousands(std::string_view whole, std::size_t i)
{
    return whole[i] == ',' &&
           std::any_of(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(i),
                       isPlaceholder) &&
           std::any_of(whole.begin() + static_cast<std::ptrdiff_t>(i), whole.end(), isPlaceholder);
}

/// Lays the whole digits out from the right; the first placeholder takes all that are left over.
std::string layOutWhole(std::string_view section, const std::string& digits)
{
    const auto isFirstPlaceholder = [&](std::size_t i) {
        return std::none_of(section.begin(), section.begin() + static_cast<std::ptrdiff_t>(i),
                            isPlaceholder);
    };
    bool grouped = false;
    for (std::size_t i = 0; i < section.size(); ++i)
        grouped = grouped || groupsThousands(section, i);

    std::string reversed;
    std::size_t used = 0;
    const auto put = [&](char digit) {
        if (grouped && used > 0 && used % 3 == 0) reversed += ',';
        reversed += digit;
        ++used;
    };
    for (std::size_t i = section.size(); i-- > 0;) {
        if (!isPlaceholder(section[i])) {
            if (!groupsThousands(section, i)) reversed += section[i];
            continue;
        }
        if (used < digits.size())
            put(digits[digits.size() - 1 - used]);
        else if (section[i] == '0')
            put('0');
        while (isFirstPlaceholder(i) && used < digits.size())
            put(digits[digits.size() - 1 - used]);
    }
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

std::string layOutDecimals(std::string_view section, const std::string& digits)
{
    std::size_t shown = digits.find_last_not_of('0') + 1;
    std::size_t place = 0;
    for (char c : section) {
        if (isPlaceholder(c)) ++place;
        if (c == '0') shown = std::max(shown, place);
    }
    std::string text;
    if (shown > 0) text += '.';
    place = 0;
    for (char c : section) {
        if (!isPlaceholder(c))
            text += c;
        else if (place++ < shown)
            text += digits[place - 1];
    }
    return text;
}

std::string formatNumber(double value, std::string_view format)
{
    const std::size_t semicolon = format.find(';');
    std::string_view section = format.substr(0, semicolon);
    std::string text;
    if (value < 0) {
        if (semicolon != std::string_view::npos)
            section = format.substr(semicolon + 1);
        else
            text = '-';
    }
    const Decimal decimal = roundedDecimal(std::fabs(value), decimalPlaces(section));
    const std::size_t point = section.find('.');
    text += layOutWhole(section.substr(0, point), decimal.whole);
    if (point != std::string_view::npos)
        text += layOutDecimals(section.substr(point + 1), decimal.decimals);
    return text;
}

std::string padded(std::int64_t number, std::size_t width)
{
    std::string digits = std::to_string(number);
    if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
    return digits;
}

std::string formatDateTime(double value, std::string_view format)
{
    const NavFunc113::CivilDate date = NavFunc113::DateOf(value);
    const NavFunc113::TimeOfDay time = NavFunc113::TimeOf(value);
    const bool elapsed = format.starts_with("d-h");
    std::string text;
    char fieldBefore = ' ';
    for (std::size_t i = 0; i < format.size();) {
        const char field = lower(format[i]);
        std::size_t width = 1;
        while (i + width < format.size() && lower(format[i + width]) == field)
            ++width;
        if (field == 'y')
            text += width > 2 ? padded(date.year, 4) : padded(date.year % 100, 2);
        else if (field == 'm')
            text += padded(fieldBefore == 'h' ? time.minute : date.month, width);
        else if (field == 'd')
            text += elapsed ? std::to_string(NavFunc113::DaySerial(date)) : padded(date.day, width);
        else if (field == 'h')
            text += padded(time.hour, width);
        else if (field == 's')
            text += padded(time.second, width);
        else
            text += format.substr(i, width);
        if (field >= 'a' && field <= 'z') fieldBefore = field;
        i += width;
    }
    return text;
}

} // namespace

std::string Format(double value, std::string_view format)
{
    if (!std::isfinite(value)) return {};
    const std::size_t first = format.find_first_of("0#yYmMdDhH");
    if (first == std::string_view::npos || isPlaceholder(format[first]))
        return formatNumber(value, format);
    try {
        return formatDateTime(value, format);
    } catch (const NavFunc113::ArithmeticError&) {
        return {};
    }
}

std::string courseText(NavFunc113::Degrees course, std::string_view format)
{
    const std::string text = Format(course, format);
    return text == Format(360, format) ? Format(0, format) : text;
}

} // namespace korvel
