// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/time_scales.h"
#include "almanac/vectors.h"

#include <erfa.h>

namespace almanac
{

/// What the places of all bodies share at one instant. Astronomical units and days, ICRS.
struct Frame {
    explicit Frame(DateTime ut);

    DateTime ut;
    DeltaT deltaT;
    double daysTT; ///< terrestrial time from J2000.0

    Vector earth;         ///< from the Sun
    Vector earthVelocity; ///< barycentric
    Vector sunVelocity;   ///< barycentric

    Matrix toDate;              ///< to the true equator and equinox of date
    double equationOfOrigins;   ///< radians
    double ghaAries;            ///< radians, 0 to 2 pi
    eraASTROM starParameters{}; ///< ERFA's star-independent ones
};

} // namespace almanac
