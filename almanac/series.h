// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/bodies.h"
#include "almanac/vectors.h"

namespace almanac
{

/// Heliocentric place of Venus, Mars, Jupiter or Saturn, astronomical units, along the axes of
/// ICRS.
///
/// VSOP87B (Bretagnon and Francou 1988, Astronomy and Astrophysics 202, 309), cut: seen from the
/// earth within 1.8" of the full series and 2.0" of JPL's DE438, 1950 to 2100.
/// @param daysTT terrestrial time from J2000.0 in days
Vector heliocentricPlanet(Body planet, double daysTT);

/// Geometric geocentric place of the Moon, kilometres, along the axes of ICRS.
///
/// ELP/MPP02 (Chapront and Francou 2003, Astronomy and Astrophysics 404, 735), cut: within 2.3" and
/// 8 km of the full series, 1950 to 2100.
/// @param daysTT as above
Vector geocentricMoon(double daysTT);

} // namespace almanac
