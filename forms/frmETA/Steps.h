// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <optional>
#include <string>
#include <string_view>

/// What the scroll bars, the button for the present time and leaving the speed box write.
namespace korvel
{

/// Scroll bar of a time: its value is hours from the time that was typed or put in last; typing
/// sets the bar back to 0.
inline constexpr int timeStepLimit = 240;

/// Scroll bar of the speed: its value is the speed itself in quarter knots, 0 to 50 knots.
inline constexpr int speedStepLimit = 200;

struct TimeTexts {
    std::string date; ///< "yyyy/m/d"
    std::string time; ///< "h:00"
};

/// Date and time boxes moved by whole hours; the minutes are cut, the date rolls over.
/// @param hours what the scroll bar moved by, negative towards the past
/// @return nothing when a box cannot be read or the result leaves the calendar: nothing moves
std::optional<TimeTexts> steppedTime(std::string_view date, std::string_view time, int hours);

/// The departure boxes for the present time, cut to the hour ("yyyy/M/d" and "hh:00").
TimeTexts EnterPresent(NavFunc113::DateTime now);

/// The same by the clock of the departure, which may lie in another zone than the ship.
/// @param utc    present time, UTC
/// @param box    TD box of the departure; where it holds no TD the ship's is taken
/// @param shipTD hours, ship's mean time minus UTC
TimeTexts EnterPresent(NavFunc113::DateTime utc, std::string_view box, double shipTD);

/// The speed box for a value of its scroll bar.
std::string speedOfStep(int quarterKnots);

/// Where the scroll bar of the speed stands for a typed speed, within its limits.
int stepOfSpeed(std::string_view box);

/// The speed box when it is left: the nearest quarter knot, half away from zero.
/// @return nothing when the box holds no number, is negative or beyond the scroll bar: it is left
///         as it is
std::optional<std::string> speedOnLeaving(std::string_view box);

} // namespace korvel
