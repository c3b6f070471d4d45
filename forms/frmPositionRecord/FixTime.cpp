// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/FixTime.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "app/reading/TypedTime.h"
#include "navlib/datetime.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace korvel
{
namespace
{

using NavFunc113::CivilDate;

/// A typed time of fix in its pieces; what was not typed is absent.
struct Pieces {
    std::optional<int> year, month, day;
    int seconds = 0; ///< since midnight
    std::string fault;
};

/// A number of at most four digits and nothing else; nothing for anything else.
std::optional<int> digitsOnly(std::string_view text)
{
    if (text.size() > 4) return std::nullopt;
    unsigned value{}; // takes no sign
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool all = error == std::errc() && end == text.data() + text.size();
    return all ? std::optional(static_cast<int>(value)) : std::nullopt;
}

/// Cuts the text before the first of the marks off.
std::string_view takeUntil(std::string_view& text, char mark)
{
    const std::size_t at = std::min(text.find(mark), text.size());
    const std::string_view head = text.substr(0, at);
    text.remove_prefix(std::min(at + 1, text.size()));
    return head;
}

void readClock(std::string_view text, Pieces& pieces)
{
    const std::string typed(text);
    std::optional<int> hour, minute, second = 0;
    if (text.find(':') == std::string_view::npos) {
        if (text.size() == 3 || text.size() == 4) {
            hour = digitsOnly(text.substr(0, text.size() - 2));
            minute = digitsOnly(text.substr(text.size() - 2));
        }
    } else {
        hour = digitsOnly(takeUntil(text, ':'));
        const bool withSeconds = text.find(':') != std::string_view::npos;
        minute = digitsOnly(takeUntil(text, ':'));
        if (withSeconds) second = digitsOnly(text);
    }
    if (!hour || !minute || !second)
        pieces.fault = "\"" + typed + "\" is no time; type 0930 or 09:30";
    else if (*hour > 23)
        pieces.fault = typed + ": hours go from 00 to 23";
    else if (*minute > 59)
        pieces.fault = typed + ": minutes go from 00 to 59";
    else if (*second > 59)
        pieces.fault = typed + ": seconds go from 00 to 59";
    else
        pieces.seconds = *hour * 3600 + *minute * 60 + *second;
}

void readDate(std::string_view text, Pieces& pieces)
{
    const std::string typed(text);
    const auto marks = std::ranges::count(text, '/');
    if (marks == 2) {
        const auto date = readTypedTime(text, Due::Date);
        pieces.fault = date.remark;
        if (!date.value) return;
        const CivilDate civil = NavFunc113::DateOf(*date.value);
        // A slip of the finger; and a few hours of TD must not lead out of the calendar.
        if (civil.year > 2199) pieces.fault = typed + ": years from 1900 to 2199";
        pieces.year = civil.year;
        pieces.month = civil.month;
        pieces.day = civil.day;
        return;
    }
    if (marks == 1) pieces.month = digitsOnly(takeUntil(text, '/'));
    pieces.day = digitsOnly(text);
    // 2000 is a leap year: 2/29 is a date of some year.
    if (!pieces.day || (marks == 1 && !pieces.month) ||
        !NavFunc113::IsCivilDate({2000, pieces.month.value_or(1), *pieces.day}))
        pieces.fault = typed + (marks == 0 ? " is no day of a month" : " is no date");
}

Pieces piecesOf(std::string_view typed)
{
    const std::string ascii = asciiForms(typed);
    std::string_view text = ascii;
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);

    Pieces pieces;
    const std::size_t parting = text.find_last_of(" -\t");
    if (parting == std::string_view::npos && text.find('/') != std::string_view::npos) {
        pieces.fault = std::string(text) + ": the time is missing";
        return pieces;
    }
    if (parting == std::string_view::npos) {
        readClock(text, pieces);
        return pieces;
    }
    std::string_view date = text.substr(0, parting);
    while (!date.empty() && (isBlank(date.back()) || date.back() == '-'))
        date.remove_suffix(1);
    readDate(date, pieces);
    if (pieces.fault.empty()) readClock(text.substr(parting + 1), pieces);
    return pieces;
}

/// The most recent day of the pieces that are there: of a time alone the one on which it was last,
/// of others no more than a day after today.
std::int64_t dayOf(const Pieces& pieces, NavFunc113::DateTime now)
{
    const std::int64_t today = NavFunc113::DaySerial(NavFunc113::DateOf(now));
    if (pieces.year) return NavFunc113::DaySerial({*pieces.year, *pieces.month, *pieces.day});
    if (!pieces.day) {
        constexpr double watchAhead = 5.0 / (24 * 60); // days; no two watches agree to the minute
        const double clock = NavFunc113::MakeDateTime(NavFunc113::DateOf(now), pieces.seconds);
        return clock > now + watchAhead ? today - 1 : today;
    }
    // It ends: the longest wait is that of eight years for a 29th of February.
    for (std::int64_t day = today + 1;; --day) {
        const CivilDate date = NavFunc113::DateOfSerial(day);
        if (date.day == *pieces.day && date.month == pieces.month.value_or(date.month)) return day;
    }
}

} // namespace

NormalisedSMT NormaliseSMT(std::string_view typed, NavFunc113::DateTime now)
{
    const std::string asTyped(typed);
    if (isBlank(typed)) return {asTyped, {}};
    const Pieces pieces = piecesOf(typed);
    if (!pieces.fault.empty()) return {asTyped, pieces.fault};
    const CivilDate date = NavFunc113::DateOfSerial(dayOf(pieces, now));
    return {fixTimeText(NavFunc113::MakeDateTime(date, pieces.seconds)), {}};
}

std::string fixTimeText(NavFunc113::DateTime time)
{
    const bool isWholeMinute = NavFunc113::TimeOf(time).second == 0;
    return Format(time, isWholeMinute ? "yyyy/mm/dd hh:mm" : "yyyy/mm/dd hh:mm:ss");
}

std::optional<NavFunc113::DateTime> readFixTime(std::string_view text)
{
    const Pieces pieces = piecesOf(text);
    if (!pieces.fault.empty() || !pieces.year) return std::nullopt;
    return NavFunc113::MakeDateTime({*pieces.year, *pieces.month, *pieces.day}, pieces.seconds);
}

std::string faultOfFixTime(std::string_view text)
{
    if (isBlank(text)) return {};
    const Pieces pieces = piecesOf(text);
    if (!pieces.fault.empty()) return pieces.fault;
    return pieces.year ? std::string() : std::string(text) + ": the date is missing";
}

} // namespace korvel
