// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/UserScale.h"
#include "navlib/units.h"

#include <array>
#include <string>
#include <vector>

/// The picture of the wind triangle, in knots around the ship at (0, 0), x to the right, y up.
namespace korvel
{

enum class WindOrientation { HeadUp, NorthUp };

/// What the vectors are made of.
struct WindFigures {
    NavFunc113::Degrees course;
    NavFunc113::Knots shipSpeed;
    NavFunc113::Degrees relativeDirection; ///< from the bow, clockwise positive
    NavFunc113::Knots apparentSpeed;
    NavFunc113::Degrees trueDirection; ///< true, where the wind blows from
    NavFunc113::Knots trueSpeed;
};

/// Outer end of a vector from the centre, in knots. A wind is drawn on the side it blows from, so
/// the apparent wind is the true wind and the ship's own motion added: a parallelogram.
struct WindVector {
    double x;
    double y;
};

struct WindLabel {
    WindVector at;
    std::string text;
};

struct WindPicture {
    UserScale scale;                      ///< square, the outermost ring with a margin
    std::vector<NavFunc113::Knots> rings; ///< radii, the outermost last
    std::array<WindLabel, 4> compass;     ///< N, E, S, W or bow, 90, stern, 90, on that ring
    WindVector heading;                   ///< ship's course and speed
    WindVector apparentWind;
    WindVector trueWind;
};

/// Picture of the figures. The rings grow in steps, so that it stays calm while a value changes a
/// little.
/// @param heldRadius radius of the rings in knots as an earlier picture had it: while the pointer
///                   drags, a scale that followed would run away from it. 0: as the figures need
WindPicture pictureOfWind(const WindFigures& figures, WindOrientation orientation,
                          NavFunc113::Knots heldRadius = {});

/// What pointing at the picture sets.
struct WindPointer {
    std::string text;          ///< beside the pointer: "Relative:", direction, speed
    std::string relative;      ///< for txtWind(2), whole degrees -180 .. 180
    std::string apparentSpeed; ///< for txtWind(3), whole knots
};

/// Relative direction and apparent speed of a place on the picture: the wind blows from there.
/// @param place  in the picture's user scale
/// @param course ship's course; matters with north up only
WindPointer windAt(const WindVector& place, WindOrientation orientation,
                   NavFunc113::Degrees course);

} // namespace korvel
