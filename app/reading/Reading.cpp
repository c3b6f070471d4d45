// SPDX-License-Identifier: MIT
#include "app/reading/Reading.h"

#include "app/reading/Ascii.h"
#include "navlib/datetime.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::CivilDate;

constexpr int firstYear = 1900; // before it dates and their times of day run in opposite directions

struct OtherSign {
    std::string_view bytes; ///< in UTF-8
    std::string_view ascii; ///< empty for what nobody sees
};

constexpr OtherSign otherSigns[] = {
    {"\xE3\x80\x80", " "}, // U+3000 ideographic space
    {"\xE2\x88\x92", "-"}, // U+2212 minus sign
    {"\xC2\xA0", " "},     // U+00A0 no-break space, as spreadsheets write it
    {"\xE2\x80\x87", " "}, // U+2007 figure space
    {"\xE2\x80\x89", " "}, // U+2009 thin space
    {"\xE2\x80\xAF", " "}, // U+202F narrow no-break space
    {"\xC2\xAD", ""},      // U+00AD soft hyphen
    {"\xE2\x80\x8B", ""},  // U+200B to U+200F: no width, joiners, marks of direction
    {"\xE2\x80\x8C", ""},  {"\xE2\x80\x8D", ""}, {"\xE2\x80\x8E", ""},
    {"\xE2\x80\x8F", ""},  {"\xE2\x80\xAA", ""}, // U+202A to U+202E: embeddings and overrides
    {"\xE2\x80\xAB", ""},  {"\xE2\x80\xAC", ""}, {"\xE2\x80\xAD", ""},
    {"\xE2\x80\xAE", ""},  {"\xE2\x81\xA0", ""}, // U+2060 word joiner
    {"\xE2\x81\xA6", ""},                        // U+2066 to U+2069: isolates
    {"\xE2\x81\xA7", ""},  {"\xE2\x81\xA8", ""}, {"\xE2\x81\xA9", ""},
    {"\xEF\xBB\xBF", ""}, // U+FEFF byte-order mark
};

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

void skipBlanks(std::string_view& text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
}

void trim(std::string_view& text)
{
    skipBlanks(text);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
}

struct Leading {
    double value;
    std::size_t length; ///< characters that the number took
};

std::optional<Leading> leadingNumber(std::string_view text)
{
    const std::size_t before = text.size();
    skipBlanks(text);
    bool negative = false;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    std::size_t end = 0;
    bool point = false;
    bool digits = false;
    for (; end < text.size(); ++end) {
        if (isDigit(text[end]))
            digits = true;
        else if (text[end] == '.' && !point)
            point = true;
        else
            break;
    }
    if (!digits) return std::nullopt;
    double value = 0;
    const auto read =
        std::from_chars(text.data(), text.data() + end, value, std::chars_format::fixed);
    // More digits than a double can hold: the greatest value keeps every range check honest.
    if (read.ec == std::errc::result_out_of_range)
        value = text.find_first_of("123456789") < text.find('.') ? HUGE_VAL : 0;
    return Leading{negative ? -value : value, before - text.size() + end};
}

std::optional<int> digitsOfNumber(std::string_view& text, std::size_t fewest, std::size_t most)
{
    std::size_t length = 0;
    while (length < text.size() && isDigit(text[length]))
        ++length;
    if (length < fewest || length > most) return std::nullopt;
    int value = 0;
    std::from_chars(text.data(), text.data() + length, value);
    text.remove_prefix(length);
    return value;
}

bool take(std::string_view& text, char expected)
{
    if (text.empty() || text.front() != expected) return false;
    text.remove_prefix(1);
    return true;
}

std::optional<double> readDate(std::string_view text)
{
    const std::size_t yearDigits = text.find('/');
    if (yearDigits != 2 && yearDigits != 4) return std::nullopt;
    const auto year = digitsOfNumber(text, 2, 4);
    if (!year || !take(text, '/')) return std::nullopt;
    const auto month = digitsOfNumber(text, 1, 2);
    if (!month || !take(text, '/')) return std::nullopt;
    const auto day = digitsOfNumber(text, 1, 2);
    if (!day || !text.empty()) return std::nullopt;
    const CivilDate date{yearDigits == 2 ? 2000 + *year : *year, *month, *day};
    if (date.year < firstYear || !NavFunc113::IsCivilDate(date)) return std::nullopt;
    return NavFunc113::MakeDateTime(date);
}

std::optional<double> readTimeOfDay(std::string_view text)
{
    const auto hour = digitsOfNumber(text, 1, 2);
    if (!hour || !take(text, ':')) return std::nullopt;
    const auto minute = digitsOfNumber(text, 1, 2);
    if (!minute) return std::nullopt;
    std::optional<int> second = 0;
    if (take(text, ':')) second = digitsOfNumber(text, 1, 2);
    if (!second || !text.empty()) return std::nullopt;
    if (*hour > 23 || *minute > 59 || *second > 59) return std::nullopt;
    return (*hour * 3600 + *minute * 60 + *second) / 86400.0;
}

} // namespace

std::string asciiForms(std::string_view text)
{
    const auto isAscii = [](char each) { return static_cast<unsigned char>(each) < 0x80; };
    if (std::ranges::all_of(text, isAscii)) return std::string(text);
    // U+FF01 to U+FF5E stand in UTF-8 as EF BC 81 .. EF BD 9E, in the order of ASCII 21 to 7E.
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[i + k]); };
        if (i + 2 < text.size() && byte(0) == 0xEF && (byte(1) == 0xBC || byte(1) == 0xBD)) {
            const int code = (byte(1) - 0xBC) * 0x40 + byte(2) - 0x81 + 0x21;
            if (code >= 0x21 && code <= 0x7E) {
                result += static_cast<char>(code);
                i += 3;
                continue;
            }
        }
        const auto sign = std::ranges::find_if(otherSigns, [&](const OtherSign& each) {
            return text.substr(i).starts_with(each.bytes);
        });
        if (sign != std::end(otherSigns)) {
            result += sign->ascii;
            i += sign->bytes.size();
            continue;
        }
        result += text[i++];
    }
    return result;
}

std::optional<double> readLeadingNumber(std::string_view text)
{
    const auto number = leadingNumber(asciiForms(text));
    return number ? std::optional(number->value) : std::nullopt;
}

double readNumber(std::string_view text)
{
    return readLeadingNumber(text).value_or(0);
}

bool isNumeric(std::string_view text)
{
    const std::string ascii = asciiForms(text);
    std::string_view rest = ascii;
    const auto number = leadingNumber(rest);
    if (!number) return false;
    rest.remove_prefix(number->length);
    trim(rest);
    return rest.empty();
}

bool isBlank(std::string_view text)
{
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

bool IsInRange(std::string_view value, std::string_view low, std::string_view high)
{
    const bool empty = isBlank(value);
    const auto number = empty ? std::optional<double>(0) : readLeadingNumber(value);
    return number && *number >= readNumber(low) && *number <= readNumber(high);
}

std::optional<NavFunc113::DateTime> readDateTime(std::string_view text)
{
    const std::string ascii = asciiForms(text);
    std::string_view rest = ascii;
    trim(rest);
    const std::size_t blank = rest.find_first_of(" \t");
    if (blank == std::string_view::npos) {
        const auto date = readDate(rest);
        return date ? date : readTimeOfDay(rest);
    }
    const auto date = readDate(rest.substr(0, blank));
    std::string_view timeText = rest.substr(blank);
    skipBlanks(timeText);
    const auto time = readTimeOfDay(timeText);
    if (!date || !time) return std::nullopt;
    return *date + *time;
}

} // namespace korvel
