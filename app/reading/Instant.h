// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <chrono>
#include <optional>
#include <string>

/// Times that are added up: counts of microseconds in 64 bits, so that a sum is the same in
/// whatever order it is formed and nothing is rounded before it is shown.
namespace korvel
{

using Span = std::chrono::microseconds;
/// UTC, or the time of a zone where a name says so.
using Instant = std::chrono::sys_time<Span>;

/// A typed date-time, which is one of whole seconds.
/// @throws NavFunc113::ArithmeticError Overflow when it is not within years 100 .. 9999
Instant instantOf(NavFunc113::DateTime typed);

/// The way back; for Format, and for the library's routines.
NavFunc113::DateTime dateTimeOf(Instant instant);

/// @return nothing when it is no number or longer than 200 years either way, which no plan is
std::optional<Span> spanOf(NavFunc113::Hours hours);

NavFunc113::Hours hoursOf(Span span);

/// To the nearest minute, as times of a plan are shown: 04:37:56 is 0438.
Instant nearestMinute(Instant instant);

/// "Mon" to "Sun".
std::string weekdayOf(Instant instant);

/// "yyyy/mm/dd hh:mm", to the nearest minute; empty beyond years 100 to 9999.
std::string minuteText(Instant instant);

/// "13 d 00 h 08 m", to the nearest minute; "23 h 00 m" below a day; with a minus when negative.
std::string spanText(Span span);

/// "2026-11-21T16:00:00Z", to the nearest second, as files have it.
std::string isoText(Instant utc);

/// Reads what files have: "2026-11-21T16:00:00Z", with decimals of a second, with an offset
/// (+09:00) instead of Z, or with neither, which is UTC. The hour 24 stands for the day's end.
std::optional<Instant> readIso(std::string_view text);

} // namespace korvel
