// SPDX-License-Identifier: MIT
#pragma once

#include <span>

namespace almanac
{

/// A row of data/sky/stars.csv: ICRS, epoch J2000.0.
struct Star {
    int number;
    int hipparcos; ///< beside the other number, so that the row has no gaps
    const char* name;
    const char* bayer;
    double rightAscension; ///< degrees
    double declination;    ///< degrees
    double properMotionRa; ///< in right ascension times cos declination, mas a Julian year
    double properMotionDec;
    double parallax;       ///< mas
    double radialVelocity; ///< km/s, receding positive
    double magnitude;
};

/// Source: Hipparcos, the new reduction (van Leeuwen 2007); names and magnitudes ESA 1997.
std::span<const Star> starCatalogue();

} // namespace almanac
