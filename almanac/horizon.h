// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/sky.h"
#include "navlib/units.h"

#include <array>

namespace almanac
{

using NavFunc113::Metres;

/// Where the officer stands.
struct Observer {
    Degrees latitude;   ///< geodetic, WGS 84; north positive, -90 to 90
    Degrees longitude;  ///< east positive
    Metres heightOfEye; ///< above the ellipsoid; matters for parallax alone, to 0.001'
};

/// Direction over the horizon, without refraction and dip.
struct Direction {
    Degrees altitude; ///< negative below the horizon
    Degrees azimuth;  ///< true, 0 <= azimuth < 360; 0 in the zenith
};

/// The navigator's computed altitude and azimuth (Hc, Zn): the body's GHA and declination from the
/// observer's latitude and longitude on the sphere, no parallax. Unlike a quotient of cosines it
/// has no place where it fails.
Direction computedDirection(const Place& body, const Observer& observer);

/// The observer from the earth's centre, in radii of the equator: to the north, to the east, up.
std::array<double, 3> standOverHorizon(const Observer& observer);

/// Direction and size of a body as seen from the observer's eye.
struct SeenBody {
    Direction direction;
    Degrees semiDiameter; ///< larger than from the earth's centre: the Moon's by up to 0.3'
};

/// The same seen over the WGS 84 ellipsoid: parallax with the earth's oblateness (up to 1 degree
/// and 0.2' for the Moon; 0.6' for Venus) and the aberration of the earth's turning (0.3") taken
/// in. Stars differ by the latter alone.
///
/// Largest difference in altitude from 40 cases worked with full series (tests/golden/
/// almanac_altitudes.csv), minutes of arc: Moon 0.017 (10 cases), Jupiter 0.014, Saturn 0.009,
/// Venus 0.008, Mars 0.003 (14 together), Sun and stars 0.001 (16): those of the places.
SeenBody seenFrom(const Place& body, const Observer& observer);

} // namespace almanac
