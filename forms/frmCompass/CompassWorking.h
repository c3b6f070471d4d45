// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmCompass/CalculateCompass.h"

namespace korvel
{

/// How the true bearing, the variation and the errors of the compasses came about.
std::vector<Working> compassWorkings(const CompassInput& input, const CompassResult& result);

/// What a figure adds to bring a sum into 0 to 360 degrees, or a difference into -180 to 180: " +
/// 360", " - 360" or nothing.
/// @param sum, difference more than -360 degrees, less than 720
std::string turnToCircle(NavFunc113::Degrees sum);
std::string turnToHalf(NavFunc113::Degrees difference);

/// How good these figures are.
std::vector<std::string> compassLimits(const CompassInput& input, const CompassResult& result);

} // namespace korvel
