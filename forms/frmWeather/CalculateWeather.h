// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"

#include <cstddef>
#include <string>
#include <string_view>

/// The weather window: each box has its own caption and nothing else follows from it. Boxes are
/// read as everywhere: empty or letters are 0.
namespace korvel
{

/// What the window shows; an empty text blanks the label.
struct WeatherShown {
    std::string wave;       ///< sea state
    std::string swell;      ///< its term
    std::string visibility; ///< its term
    std::string miles;      ///< the visibility in nautical miles
    std::string letter;     ///< of the weather, with its names
};

/// Sea state of the height in txtWave, metres: code and name, "4-Moderate".
std::string CalculateSeaState(std::string_view txtWave);

/// Term for the height in txtSWELL, metres; for lblSWELL.
std::string CalculateSwell(std::string_view txtSWELL);

struct VisibilityResult {
    std::string term;          ///< code and name, "1-Thick fog"
    std::string nauticalMiles; ///< the same distance, "1 nm", with at most one decimal
};

/// Visibility of the kilometres in txtVISIBILITY.
VisibilityResult CalculateVisibility(std::string_view txtVISIBILITY);

/// Letter, English and Japanese name for lblWr, separated by one blank.
/// @param optWr number of the option button, 0 "b" to 19 "z"; any other gives an empty text
std::string CalculateWeatherTerm(std::size_t optWr);

/// What is to be said of a box of the weather window; empty when there is nothing.
std::string remarkOn(std::string_view text, const Field& field);

} // namespace korvel
