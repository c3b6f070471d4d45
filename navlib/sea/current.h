// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <optional>

/// A ship in a current: speed through the water, current and speed over the ground are the sides of
/// one triangle.
namespace NavFunc113
{

/// A way through the water or over the ground, or a current.
struct HorizontalMotion {
    Degrees direction; ///< true, towards which it goes
    Knots speed;       ///< 0 or more
};

/// Course and speed made good of a ship that is set by a current.
/// @return direction 0 <= track < 360; 0 where nothing moves over the ground
/// @throws ArithmeticError Overflow or InvalidArgument for what is not finite
HorizontalMotion MadeGood(const HorizontalMotion& throughWater, const HorizontalMotion& current);

/// Course to steer and speed made good.
struct SteeredTrack {
    Degrees course; ///< true, 0 <= course < 360
    Knots madeGood; ///< along the track, more than 0
};

/// Course that keeps a ship on a track across a current.
///
/// @param track   true, to be made good
/// @param speed   through the water, 0 or more
/// @return nothing when the current sets across faster than the ship goes, or carries her back
/// @throws ArithmeticError InvalidArgument for a speed that is no number
std::optional<SteeredTrack> CourseThroughCurrent(Degrees track, Knots speed,
                                                 const HorizontalMotion& current);

} // namespace NavFunc113
