// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/sky.h"

#include <optional>

namespace almanac
{

/// Apparent visual magnitude of a body: of stars that of the catalogue, of planets for the instant;
/// nothing for Sun and Moon.
///
/// Planets to 0.1, Mars to 0.2 by what side of it is seen (left out here).
/// Source: Mallama and Hilton, Computing apparent planetary magnitudes for The Astronomical
/// Almanac, Astronomy and Computing 25, 2018; the formulas for what is seen from the earth, Mars
/// without the terms of its turning and its seasons.
std::optional<double> magnitudeOf(Body body, const Sky& sky);

} // namespace almanac
