// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/day/TideTables.h"
#include "tests/forms/frmTIDE/TideFolder.h"

#include <string>

/// Days that tests of several files look at.
namespace korvel::testing
{

inline StationDays shippedStation(const std::string& place)
{
    static const StationList list(TideFolder::shipped());
    static const FullConstants constants(TideFolder::shipped());
    return {TideFolder::shipped(), TideKind::Tide, place, list, constants};
}

/// A day of one wave of twelve hours about a level, its crest at an hour; the sum of all
/// constituents is the same wave later and higher when asked for.
inline TideDayShown plainDay(double crest, double amplitude, double level,
                             TideKind kind = TideKind::Tide)
{
    TideDayShown day;
    day.four.kind = kind;
    day.four.serial = 37817; // 2003-07-15, the day after full Moon
    day.four.level = level;
    NavFunc113::TideConstituents constituents{};
    constituents[1] = {NavFunc113::Degrees(30 * crest), amplitude};
    NavFunc113::DailyFactors factors{};
    for (auto& factor : factors)
        factor.factor = 1;
    day.four.day.emplace(constituents, factors, factors, NavFunc113::ShallowWaterTerms{});
    day.four.values = day.four.day->halfHourly(level);
    return day;
}

} // namespace korvel::testing
