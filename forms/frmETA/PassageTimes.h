// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Remarks.h"
#include "app/reading/TypedTime.h"
#include "navlib/units.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace korvel
{

/// A date-time of a date box and a time box: the day of the one and the time of day of the other.
/// @return nothing when either text reads neither as a date nor as a time
std::optional<NavFunc113::DateTime> passageTime(std::string_view date, std::string_view time);

/// Why a date or time box cannot be used, and what to write.
/// @param name "departure date"
std::string complaintOn(std::string_view name, std::string_view box, Due due);

/// Warns of a time in a date box, or a date in a time box: both are read as what they are.
void warnOfKind(std::string_view name, std::string_view box, Due due, Remarks& said);

/// Both signs of a time difference, which are confused at sea: "TD +9, ZD -9", where the zone
/// description is what is added to zone time to get UTC.
/// @param box text of a TD box
/// @return empty when the box does not hold what its field takes
std::string TDAndZDText(std::string_view box);

/// Why the boxes of the time differences at departure and arrival cannot be used; empty when they
/// can.
std::string complaintOnTD(const std::array<std::string, 2>& boxes);

/// True when a TD box holds what its field takes.
bool isTD(std::string_view box);

} // namespace korvel
