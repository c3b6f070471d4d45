// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/horizon.h"
#include "almanac/hourly_places.h"

#include <functional>
#include <vector>

namespace almanac
{

/// Where the observer is at an instant: a ship under way, or one place for all instants.
using Track = std::function<Observer(DateTime)>;
Track standingAt(const Observer& observer);

/// Altitude of a body's centre, seen from the earth's centre, at which something is to happen.
using AltitudeWanted = std::function<Degrees(const Place&)>;

/// Upper limb on the visible horizon, refraction 34' as almanacs have it.
/// @param dip of the horizon, 0 or more; almanacs print for 0
AltitudeWanted upperLimbOnHorizon(Degrees dip = Degrees(0));
/// The Sun's centre at -6 and -12 degrees.
AltitudeWanted civilTwilight();
AltitudeWanted nauticalTwilight();

struct Crossing {
    DateTime instant{}; ///< UT, to a tenth of a second of the places given
    bool rising = false;
};

/// All instants of a span at which the body passes the altitude, in their order; two a few minutes
/// apart, where the body's path only just reaches it, are found as well.
std::vector<Crossing> crossings(const HourlyPlaces& places, const Track& track,
                                const AltitudeWanted& wanted, DateTime from, DateTime to);

struct Passage {
    DateTime instant{};
    bool upper = false; ///< over the observer's meridian; else over the opposite one
};
std::vector<Passage> passages(const HourlyPlaces& places, const Track& track, DateTime from,
                              DateTime to);

} // namespace almanac
