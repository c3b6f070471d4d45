// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <optional>
#include <string>
#include <string_view>

/// The time-of-fix box: ship's mean time, typed short and kept in full.
namespace korvel
{

struct NormalisedSMT {
    std::string text; ///< yyyy/mm/dd hh:mm (:ss when seconds were typed); as typed when at fault
    std::string
        fault; ///< what makes no sense, in words; empty when all is well or the box is empty
};

/// What the box holds once it is left.
///
/// Times: 0930, 930, 9:30, 9:30:15. Before them, parted by blank or hyphen, may stand a day (14),
/// a month and day (5/14) or a full date (2024/5/14, 24/5/14). Fixes are recorded after they were
/// taken: a time without a date is the latest past one, five minutes allowed for a watch that is
/// fast. A day without a month, or a date without a year, is the most recent one that lies no more
/// than a day, a date line, ahead.
/// @param now ship's mean time
NormalisedSMT NormaliseSMT(std::string_view typed, NavFunc113::DateTime now);

/// A time of fix as the box keeps it: yyyy/mm/dd hh:mm, with :ss when it is no whole minute.
std::string fixTimeText(NavFunc113::DateTime time);

/// The box read as a full date and time; nothing for anything shorter.
std::optional<NavFunc113::DateTime> readFixTime(std::string_view text);

/// Why the box is no full date and time; empty when it is one, or empty.
std::string faultOfFixTime(std::string_view text);

} // namespace korvel
