// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <span>
#include <string_view>

/// The log's terms for waves, swell, visibility and weather. The texts are the program's own and
/// kept as they stand, spelling included. Texts are UTF-8.
namespace NavFunc113
{

/// Sea state by wave height. Each upper bound belongs to its own state (2.5 m is 4); a negative
/// height counts as state 1.
/// @return 0 (exactly 0 m) to 9 (above 14 m)
int SeaStateCode(Metres waveHeight);

/// Greatest height of the states 1 to 8, metres.
std::span<const double> SeaStateHeights();

/// Name of that state, "Calm" to "Phenomenal".
std::string_view SeaStateName(Metres waveHeight);

/// Visibility scale. Unlike the sea state, each lower bound belongs to its own code (0.2 km is 2).
/// @return 0 (below 0.05 km) to 9 (50 km and more)
int VisibilityCode(Kilometres visibility);

/// Least visibility of the codes 1 to 9, kilometres.
std::span<const double> VisibilityDistances();

/// Name of that code, "Dence fog" to "Visivility exceptional".
std::string_view VisibilityName(Kilometres visibility);

/// Term for the swell. 0 or less is "No swell"; lower bounds 2 m and 4 m belong to the higher term.
std::string_view SwellTerm(Metres swellHeight);

/// One letter of the weather notation.
struct WeatherLetter {
    std::string_view letter;
    std::string_view english;
    std::string_view japanese;
};

/// The twenty letters in the order in which the weather window offers them.
std::span<const WeatherLetter> WeatherLetters();

/// Name of the weather that a letter stands for.
///
/// @param language "J" for Japanese, anything else for English
/// @param letter   lower case, one of WeatherLetters()
/// @return the name; "-" or "不明" for any other letter
std::string_view WeatherName(std::string_view language, std::string_view letter);

} // namespace NavFunc113
