// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/horizon.h"

#include <vector>

namespace almanac
{

/// A body that an observed one may have been.
struct LikelyBody {
    Body body = Body::Sun;
    Direction direction; ///< as seen, without refraction
    Degrees altitudeOff; ///< observed less that of the body; positive: observed higher
    Degrees bearingOff;  ///< the same, -180 to 180; clockwise positive
    double apart{};      ///< how unlikely: what the ranking goes by, see likelyBodies()
};

/// The bodies of the almanac that are likeliest to have been seen in a direction, the likeliest
/// first.
///
/// Bearings at sea are taken some times coarser than altitudes: half a degree of altitude (a
/// position 30 miles out) counts as much as 2 degrees of great circle at right angles to it.
/// @param observed altitude with dip and refraction taken off, bearing true
/// @param count    how many are wanted
std::vector<LikelyBody> likelyBodies(const Sky& sky, const Observer& observer,
                                     const Direction& observed, std::size_t count);

} // namespace almanac
