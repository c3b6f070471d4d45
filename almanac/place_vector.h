// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/sky.h"
#include "almanac/vectors.h"
#include "navlib/angles.h"

namespace almanac
{

/// Sun, Moon or a planet from the earth's centre, along the true equator and equinox of date, in
/// equatorial radii of the earth.
inline Vector placeVector(const Place& place)
{
    return fromPolar(-NavFunc113::DegToRad(place.sha).value(),
                     NavFunc113::DegToRad(place.declination).value(),
                     1 / sin(place.horizontalParallax));
}

} // namespace almanac
