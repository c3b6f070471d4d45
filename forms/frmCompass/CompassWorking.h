// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmCompass/CalculateCompass.h"

namespace korvel
{

/// How the true bearing, the variation and the errors of the compasses came about.
std::vector<Working> compassWorkings(const CompassInput& input, const CompassResult& result);

/// The turn that a figure writes behind a sum to bring it within 0 to 360 degrees.
/// @param sum at least -360 and below 720 degrees
/// @return " + 360", " - 360" or nothing
std::string turnToCircle(NavFunc113::Degrees sum);

/// The same behind a difference, within -180 to 180 degrees.
/// @param difference within 540 degrees either way
std::string turnToHalf(NavFunc113::Degrees difference);

/// How good these figures are.
std::vector<std::string> compassLimits(const CompassInput& input, const CompassResult& result);

} // namespace korvel
