// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <optional>
#include <string>

namespace korvel
{

/// The computer's own clock, as the date and time of day that it shows.
class ComputerClock
{
public:
    virtual ~ComputerClock() = default;

    /// What the clock shows now, cut to the whole second.
    virtual NavFunc113::DateTime now() const = 0;

    /// How far the clock is ahead of UTC by the computer's own zone, in hours. A zone that is
    /// changed while the program runs counts from the next call on.
    virtual double hoursAheadOfUTC() const = 0;

    /// Sets time of day first and then date, both from the same value.
    /// @return nothing when the clock was set, otherwise the reason in words
    virtual std::optional<std::string> set(NavFunc113::DateTime value) = 0;
};

} // namespace korvel
