// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <ctime>

namespace korvel
{

/// What the computer's clock shows and by which zone. It only reads.
struct LocalTime {
    NavFunc113::DateTime time; ///< cut to the whole second
    double hoursAheadOfUTC;    ///< of the zone in force at that time
};
LocalTime localTime();

#ifndef _WIN32
/// The instant at which a clock of the computer's zone shows that, summer time as it will be then;
/// seconds since 1970, UTC.
std::time_t instantOfLocalTime(NavFunc113::DateTime shown);
#endif

} // namespace korvel
