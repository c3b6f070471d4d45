// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/magnetic_model.h"

#include <iosfwd>

namespace almanac
{

/// Reads a table of instants and bodies (columns ut, body) and writes their places; minutes of arc
/// and degrees with six decimals, empty where there is no such figure.
/// @param faults gets a sentence for each line that is wrong; the others are written
/// @return whether no line was wrong
/// @throws std::runtime_error when the input is no such table
bool writePlaces(std::istream& input, std::ostream& output, std::ostream& faults);

/// Reads a table of columns decimal_year, height_km, lat, lon and writes it with the variation,
/// east positive, and its uncertainty behind. Lines near the magnetic poles are counted to faults.
/// @return and throws as writePlaces
bool writeVariations(std::istream& input, const MagneticModel& model, std::ostream& output,
                     std::ostream& faults);

/// All bodies: name, number, magnitude.
void writeBodies(std::ostream& output);

} // namespace almanac
