// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/sailing/sailing.h"

#include <array>
#include <optional>
#include <string>

namespace korvel
{

struct CDInput {
    std::array<std::string, 4> txtCDDR; ///< boxes as typed: lat1, long1, lat2, long2; DegMin
    NavFunc113::Earth earth = NavFunc113::Earth::Sphere;
};

struct CDResult {
    std::string course;                      ///< lblCDDR(0), degrees true; empty blanks the label
    std::string distance;                    ///< lblCDDR(1), nautical miles; empty blanks the label
    std::optional<NavFunc113::RhumbLeg> leg; ///< the same with full precision, and its steps
    std::array<NavFunc113::DegMin, 4> ends;  ///< lat1, long1, lat2, long2 as read
    std::string notice; ///< why the labels are blank, and what else is to be said of the boxes
};

/// Rhumb-line course and distance. An input out of range blanks both labels.
/// @throws ArithmeticError from the library
CDResult CalculateCD(const CDInput& input);

} // namespace korvel
