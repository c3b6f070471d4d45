// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/sailing/sailing.h"

#include <array>
#include <optional>
#include <string>

namespace korvel
{

struct DRInput {
    std::array<std::string, 4> txtCDDR; ///< boxes as typed: lat, long (DegMin), course, distance
    NavFunc113::Earth earth = NavFunc113::Earth::Sphere;
};

struct DRResult {
    std::string latitude;                              ///< lblCDDR(2); empty blanks the label
    std::string longitude;                             ///< lblCDDR(3); empty blanks the label
    std::optional<NavFunc113::DegMin> latitudeReached; ///< the same with full precision
    std::optional<NavFunc113::DegMin> longitudeReached;
    /// What they were calculated from; nothing where there is no latitude, or no longitude.
    std::optional<NavFunc113::LatitudeRun> latitudeRun;
    std::optional<NavFunc113::LongitudeRun> longitudeRun;
    std::array<NavFunc113::DegMin, 2> start; ///< as read
    NavFunc113::Degrees course;              ///< as read
    NavFunc113::Miles distance;              ///< as read
    std::string notice; ///< why labels are blank, and what else is to be said of the boxes
};

/// Position reached by dead reckoning. An input out of range blanks both labels; a track across a
/// pole has a latitude only, and so has one whose longitude ends in an arithmetic error.
/// @throws ArithmeticError from the library, when there is no latitude either
DRResult CalculateDR(const DRInput& input);

} // namespace korvel
