// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace NavFunc113
{

/// One term of a series: amplitude x T^power x cos(rate x T + phase).
struct SeriesTerm {
    double amplitude; ///< degrees; astronomical units in the distance
    int power;        ///< 0, or 1 when the amplitude grows with T
    double rate;      ///< degrees per Julian century
    double phase;     ///< degrees
};

/// The terms in the order in which they are summed; another order changes the last bits. Constant
/// and linear parts stand with the routines that sum them.
extern const std::array<SeriesTerm, 16> sunLongitudeTerms;
extern const std::array<SeriesTerm, 8> sunDistanceTerms;
extern const std::array<SeriesTerm, 61> moonLongitudeTerms;
extern const std::array<SeriesTerm, 44> moonLatitudeTerms;

} // namespace NavFunc113
