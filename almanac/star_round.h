// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/horizon.h"

#include <optional>
#include <span>
#include <vector>

/// The bodies of a round of sights: those that together fix the position best.
namespace almanac
{

/// A body over the horizon that could be observed.
struct RoundBody {
    Body body = Body::Sun;
    Direction direction; ///< as seen
    double magnitude{};
};

/// What is to be kept away from. A body above the horizon or a little below it.
struct Glare {
    Direction direction;
    Degrees reach; ///< bodies nearer than this are left out
};

/// Which bodies serve.
inline constexpr Degrees lowestOfRound(15), highestOfRound(65);
inline constexpr double faintestOfRound = 3.0;

/// How far the Moon's light reaches, by the lit part of her disc: 4 degrees of a crescent, 12 when
/// she is full. Our own rule: within it the horizon below a star glitters and the star is drowned.
/// @param lit 0 to 1
Degrees reachOfMoon(double lit);
/// The Sun's at twilight.
inline constexpr Degrees reachOfSun(20);

/// Angle between two directions.
Degrees angleBetween(const Direction& a, const Direction& b);

/// Those that serve: from 15 to 65 degrees high, of magnitude 3.0 or brighter, away from glare.
std::vector<RoundBody> fitForRound(std::span<const RoundBody> bodies,
                                   std::span<const Glare> glares);

/// Error of a sight of a star, in units of that of a bright one: a star of the second magnitude is
/// found and brought down half as exactly again as one of magnitude 0 to 1, which almanacs call
/// first choice. Our own rule; 1 to 2.
double errorByMagnitude(double magnitude);

/// Normal equations of a round for north and east, an error common to all sights eliminated.
struct RoundNormals {
    double northNorth{}, northEast{}, eastEast{};

    /// Sum of the variances of north and east; infinity where there is no fix.
    double variance() const;
};
RoundNormals normalsOfRound(std::span<const RoundBody> round);

/// How good a round is: the square of the mean error of the position in either direction, in units
/// of that of one sight of a bright star, when an error common to all sights (horizon, dip, index)
/// is solved for as well. Faint stars count as less exact. For three sights 120 degrees apart it
/// is 4/3; the smaller the better, infinity where there is no fix: fewer than three, or all in one
/// bearing.
/// Source: least squares of intercepts, unknowns north, east and a constant.
double errorOfRound(std::span<const RoundBody> round);

/// The round of least error, in order of azimuth.
///
/// The best three of all are found by trying all; each further pair, then exchanges of two until
/// none helps. In 20 skies of different hours and latitudes that was the best of all rounds of five
/// that there are (tests/almanac/StarRoundTest.cpp tries them one by one).
/// @param fit   that serve
/// @param count 3 or more; fewer come back when there are not as many
std::vector<RoundBody> bestRound(std::span<const RoundBody> fit, std::size_t count);

} // namespace almanac
