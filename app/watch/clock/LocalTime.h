// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

namespace korvel
{

/// What the computer's clock shows and by which zone. It only reads.
struct LocalTime {
    NavFunc113::DateTime time; ///< cut to the whole second
    double hoursAheadOfUTC;    ///< of the zone in force at that time
};
LocalTime localTime();

} // namespace korvel
