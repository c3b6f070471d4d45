// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmCompass/CalculateCompass.h"

namespace korvel
{

/// How the true bearing, the variation and the errors of the compasses came about.
std::vector<Working> compassWorkings(const CompassInput& input, const CompassResult& result);

/// How good these figures are.
std::vector<std::string> compassLimits(const CompassInput& input, const CompassResult& result);

} // namespace korvel
