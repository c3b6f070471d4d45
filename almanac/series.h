// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/bodies.h"
#include "almanac/vectors.h"

namespace almanac
{

/// The ecliptic of VSOP87 to the equator of J2000.0, within 0.03" of ICRS.
/// Source: the description that comes with VSOP87.
inline constexpr Matrix equatorOfVsop{{{1.000000000000, 0.000000440360, -0.000000190919},
                                       {-0.000000479966, 0.917482137087, -0.397776982902},
                                       {0.000000000000, 0.397776982902, 0.917482137087}}};

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
