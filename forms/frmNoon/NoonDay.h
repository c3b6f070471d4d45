// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Instant.h"
#include "forms/frmNoon/NoonBoxes.h"
#include "forms/frmPositionRecord/PositionRecord.h"

namespace korvel
{

/// Miles and hours between two fixes of the record.
struct NoonRun {
    NavFunc113::Miles miles;
    NavFunc113::Hours hours;
};

/// The day between two fixes of the record.
struct NoonDay {
    std::size_t from{}; ///< places among the fixes of the record
    std::size_t to{};
    std::optional<NoonRun> run; ///< stoppages in its hours; nothing: a leg cannot be calculated
    NavFunc113::Hours stopped;
    NavFunc113::Hours underWay;               ///< without the stoppages
    std::optional<NavFunc113::Knots> average; ///< nothing: no time is left under way
    std::optional<std::size_t> away;          ///< the fix at which the passage began
    std::optional<NoonRun> sinceAway;
};

/// The day that the boxes name: the last two fixes at 12:00 ship's time, where there are none the
/// last two, where rows are typed those.
/// @param boxes its remarks say why there is none, or no run
std::optional<NoonDay> noonDay(NoonReader& boxes, const PositionRecordResult& record);

/// Time difference of a fix, east positive: its SMT less its UTC.
Span zoneOfFix(const RecordedFix& fix);

/// "rows 1-2, TD +9 to +10: clocks 1 h 00 m forward".
std::string clocksBetween(const RecordedFix& from, const RecordedFix& to);

} // namespace korvel
