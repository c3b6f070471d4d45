// SPDX-License-Identifier: MIT
#include "almanac/likely_bodies.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace almanac
{
namespace
{

constexpr Degrees altitudeUnit(0.5), bearingUnit(2);

} // namespace

std::vector<LikelyBody> likelyBodies(const Sky& sky, const Observer& observer,
                                     const Direction& observed, std::size_t count)
{
    std::vector<LikelyBody> found;
    for (const BodyEntry& entry : bodies()) {
        const Direction seen = seenFrom(sky.place(entry.body), observer).direction;
        LikelyBody likely{entry.body, seen, observed.altitude - seen.altitude,
                          NavFunc113::WithinHalfTurn(observed.azimuth - seen.azimuth), 0};
        // In the zenith a bearing is worth nothing; the chord over half of the angle holds there
        // and for bodies behind the observer.
        const double level = std::sqrt(std::max(0.0, cos(observed.altitude) * cos(seen.altitude)));
        const Degrees aside = NavFunc113::RadToDeg(
            NavFunc113::Radians(2 * level * std::fabs(sin(likely.bearingOff / 2))));
        likely.apart = std::hypot(likely.altitudeOff / altitudeUnit, aside / bearingUnit);
        found.push_back(likely);
    }
    count = std::min(count, found.size());
    std::ranges::partial_sort(found, found.begin() + static_cast<std::ptrdiff_t>(count), {},
                              &LikelyBody::apart);
    found.resize(count);
    return found;
}

} // namespace almanac
