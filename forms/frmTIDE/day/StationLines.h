// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/day/PredictTide.h"
#include "forms/frmTIDE/stations/StationList.h"

#include <optional>
#include <string>

namespace korvel
{

/// What is said of a station beside its figures, on screen and on paper.
struct StationLines {
    std::string station;     ///< title and grade
    std::string uncertainty; ///< for beside the figures; empty when none is stated
    std::string estimates;   ///< which parts of the height are estimates; empty when none is
    std::string accuracy;    ///< how far the four-constituent method was out; empty for own files
    std::string source;      ///< where the constants come from
};

/// @param notes nothing for a file made from the ship's own tables, and for every stream station
/// @param error of the method at the station, where it has been measured
/// @param doubts what the check of its file says; empty for a good one
StationLines describeStation(const TidePrediction& prediction, const StationNotes* notes,
                             const std::optional<MethodError>& error,
                             const std::string& doubts = {});

} // namespace korvel
