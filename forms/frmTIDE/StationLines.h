// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/PredictTide.h"
#include "forms/frmTIDE/TideData.h"

#include <optional>
#include <string>

namespace korvel
{

/// What is said of a station beside its figures, on screen and on paper.
struct StationLines {
    std::string station;     ///< title and grade
    std::string uncertainty; ///< for beside the figures; empty when none is stated
    std::string source;      ///< where the constants come from
};

/// @param notes nothing for a file made from the ship's own tables, and for every stream station
StationLines describeStation(const TidePrediction& prediction,
                             const std::optional<StationNotes>& notes);

} // namespace korvel
