// SPDX-License-Identifier: MIT
#include "almanac/page_cells.h"
#include "navlib/datetime.h"

#include <array>
#include <cmath>

namespace almanac
{
namespace
{

/// Degrees and tenths of minutes of a count of tenths.
std::string degreesAndMinutes(long tenths, std::size_t degreesWidth)
{
    const auto minutes = static_cast<double>(tenths % 600) / 10;
    return padded(static_cast<int>(tenths / 600), degreesWidth) + " " +
           padded(tenthsCell(minutes, 0), 4, '0');
}

} // namespace

std::string padded(const std::string& text, std::size_t width, char filler)
{
    return text.size() < width ? std::string(width - text.size(), filler) + text : text;
}

std::string padded(int number, std::size_t width, char filler)
{
    return padded(std::to_string(number), width, filler);
}

std::string leftAligned(std::string_view text, std::size_t width)
{
    std::string cell(text);
    if (cell.size() < width) cell.resize(width, ' ');
    return cell;
}

std::string weekdayText(DateTime day)
{
    // Day 0 was a Saturday.
    constexpr std::array names{"Sat", "Sun", "Mon", "Tue", "Wed", "Thu", "Fri"};
    return names[static_cast<std::size_t>(std::floor(day)) % names.size()];
}

std::string datesText(DateTime first, int days)
{
    constexpr std::array months{"January",   "February", "March",    "April",
                                "May",       "June",     "July",     "August",
                                "September", "October",  "November", "December"};
    std::string dates, weekdays;
    int month = 0;
    for (int i = 0; i < days; ++i) {
        const auto date = NavFunc113::DateOf(first + i);
        dates += i > 0 ? ", " : "";
        if (i == 0 || (date.month != month && date.month == 1))
            dates += std::to_string(date.year) + " ";
        if (date.month != month)
            dates += months.at(static_cast<std::size_t>(date.month - 1)) + std::string(" ");
        month = date.month;
        dates += std::to_string(date.day);
        weekdays += (i > 0 ? ", " : "") + weekdayText(first + i);
    }
    return dates + " (" + weekdays + ")";
}

std::string tenthsCell(double value, std::size_t width)
{
    const long tenths = std::lround(std::fabs(value) * 10);
    const std::string sign = value < 0 && tenths > 0 ? "-" : "";
    return padded(sign + std::to_string(tenths / 10) + "." + std::to_string(tenths % 10), width);
}

std::string minutesCell(Degrees angle, std::size_t width)
{
    return tenthsCell(angle.value() * 60, width);
}

std::string turnCell(Degrees angle)
{
    constexpr long turn = 360L * 600;
    return degreesAndMinutes(std::lround(angle.value() * 600) % turn, 3);
}

std::string declinationCell(Degrees angle)
{
    const long tenths = std::lround(std::fabs(angle.value()) * 600);
    return (angle.value() < 0 && tenths > 0 ? "S " : "N ") + degreesAndMinutes(tenths, 2);
}

std::string equationCell(Degrees excess)
{
    const long seconds = std::lround(std::fabs(excess.value()) * 240);
    return (excess.value() < 0 ? "-" : "+") + padded(static_cast<int>(seconds / 60), 2, '0') + " " +
           padded(static_cast<int>(seconds % 60), 2, '0');
}

std::string clockCell(std::optional<DateTime> ut)
{
    if (!ut) return "-- --";
    const auto minutes = static_cast<int>(std::lround((*ut - std::floor(*ut)) * 1440));
    return padded(minutes / 60, 2, '0') + " " + padded(minutes % 60, 2, '0');
}

std::string clockCell(const PageTime& time)
{
    switch (time.kind) {
    case PageTime::Kind::At:
        return clockCell(std::optional(time.instant));
    case PageTime::Kind::Above:
        return "above";
    case PageTime::Kind::Below:
        return "below";
    case PageTime::Kind::Twilight:
        return "/////";
    default:
        return "-----";
    }
}

} // namespace almanac
