// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace korvel
{

/// The figures of a step worked anew, as a surveyor with a pocket calculator would.
struct WorkedFigures {
    double value = 0;
    double rounding = 0;      ///< how far it can be out because its figures are rounded
    bool isDirection = false; ///< an arctan: the quadrant is told in words
};

/// @param figures "arcsin(sin 23.4416° × sin 264.3780°)"; angles in degrees
/// @return nothing when there are words among the figures
std::optional<WorkedFigures> worked(const std::string& figures);

} // namespace korvel
