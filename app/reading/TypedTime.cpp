// SPDX-License-Identifier: MIT
#include "app/reading/TypedTime.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "app/reading/Remarks.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace korvel
{
namespace
{

using NavFunc113::DateTime;

constexpr const char* dateForm = "yyyy/m/d";

/// The runs of digits of a text, in order.
std::vector<std::string> numbersIn(std::string_view text)
{
    std::vector<std::string> numbers;
    bool within = false;
    for (const char c : text) {
        const bool digit = c >= '0' && c <= '9';
        if (digit && !within) numbers.emplace_back();
        if (digit) numbers.back() += c;
        within = digit;
    }
    return numbers;
}

/// A date in another notation: 2005-3-14, 14.3.2005, 20050314.
std::optional<DateTime> meantDate(std::string_view text)
{
    std::vector<std::string> numbers = numbersIn(text);
    if (numbers.size() == 1 && numbers[0].size() == 8)
        numbers = {numbers[0].substr(0, 4), numbers[0].substr(4, 2), numbers[0].substr(6)};
    if (numbers.size() != 3) return std::nullopt;
    if (numbers[2].size() == 4) std::swap(numbers[0], numbers[2]);
    if (numbers[0].size() != 4) return std::nullopt;
    return readDateTime(numbers[0] + "/" + numbers[1] + "/" + numbers[2]);
}

/// A time in another notation: 0800, 800, 8, 8.30, 8h30.
std::optional<DateTime> meantTime(std::string_view text)
{
    const std::vector<std::string> numbers = numbersIn(text);
    if (text.find('/') != std::string_view::npos || numbers.empty() || numbers.size() > 2)
        return std::nullopt;
    const std::string& first = numbers[0];
    if (numbers.size() == 2) return readDateTime(first + ":" + numbers[1]);
    if (first.size() < 3) return readDateTime(first + ":00");
    return readDateTime(first.substr(0, first.size() - 2) + ":" + first.substr(first.size() - 2));
}

bool isBefore1900(const std::string& typed)
{
    return typed.find('/') == 4 && typed.find_first_not_of("0123456789") == 4 && typed < "1900";
}

std::string dateRemark(const std::string& typed)
{
    if (typed.find(':') != std::string::npos && typed.find('/') == std::string::npos)
        return std::string("a time where a date is due, write ") + dateForm;
    const auto meant = meantDate(typed);
    return quotation(typed) + " is no date, write " + (meant ? Format(*meant, dateForm) : dateForm);
}

std::string timeRemark(const std::string& typed)
{
    if (readDateTime(typed)) return "a date where a time is due, write hh:mm";
    const auto meant = meantTime(typed);
    return quotation(typed) + " is no time, write " + (meant ? Format(*meant, "hh:mm") : "hh:mm");
}

std::string remarkOnTyped(std::string typed, Due due)
{
    typed.erase(0, typed.find_first_not_of(" \t\r\n"));
    typed.erase(typed.find_last_not_of(" \t\r\n") + 1);
    if (typed.empty()) return "empty";
    if (due == Due::TimeOfDay) return timeRemark(typed);
    if (isBefore1900(typed)) return "dates before 1900 cannot be computed";
    if (due == Due::Date) return dateRemark(typed);
    return quotation(typed) + " is no date and time, write yyyy/m/d hh:mm";
}

} // namespace

TypedTime readTypedTime(std::string_view text, Due due)
{
    const std::string typed = asciiForms(text);
    const auto value = readDateTime(typed);
    const bool date = typed.find('/') != std::string::npos;
    const bool time = typed.find(':') != std::string::npos;
    const bool serves = due == Due::Date ? date : due == Due::TimeOfDay ? time : date && time;
    if (!value || !serves) return {std::nullopt, remarkOnTyped(typed, due)};
    if (due == Due::Date) return {std::floor(*value), {}};
    if (due == Due::TimeOfDay) return {*value - std::floor(*value), {}};
    return {value, {}};
}

} // namespace korvel
