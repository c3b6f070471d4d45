// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/sky.h"

namespace almanac
{

struct MoonPhase {
    Degrees elongation; ///< ecliptic longitude east of the Sun's: 0 new, 90 first quarter, 180 full
    double age;         ///< true days since new Moon, to a minute
    double lit;         ///< part of the disc, 0 to 1
};

/// @throws OutOfRange outside 1950 to 2100
MoonPhase moonPhaseAt(DateTime ut);

} // namespace almanac
