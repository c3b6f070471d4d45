// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmCompass/CalculateCompass.h"

namespace korvel
{

/// What of the book's curves is said beside the deviations that were found.
using CurveRemarks = std::array<std::string, compassCount>;

/// How the true bearing, the variation and the errors of the compasses came about.
std::vector<Working> compassWorkings(const CompassInput& input, const CompassResult& result,
                                     const CurveRemarks& curves);

/// How good these figures are.
std::vector<std::string> compassLimits(const CompassInput& input, const CompassResult& result);

} // namespace korvel
