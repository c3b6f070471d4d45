// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <optional>
#include <string>
#include <string_view>

/// Reading the date or the time in a box together with what the officer should be told about it.
namespace korvel
{

/// What a box is for. A date and time together serve where one of them is due.
enum class Due { Date, TimeOfDay, DateAndTime };

struct TypedTime {
    /// The date at 0 hours, the time of day on day 0, or both; nothing when it cannot be used.
    std::optional<NavFunc113::DateTime> value;
    std::string remark; ///< why there is no value, and how it is written; otherwise empty
};

/// Reads a box as readDateTime() does. The remark says what is wrong and, where the text gives it
/// away, what to write: "write 08:00" for 0800, "write 2005/3/14" for 14.3.2005.
TypedTime readTypedTime(std::string_view text, Due due);

} // namespace korvel
