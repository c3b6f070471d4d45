// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTanks/TankSheet.h"
#include "navlib/ship/vessel_experience.h"

#include <optional>

namespace korvel
{

/// A list of voyages with its experience factor, as it is shown.
struct ExperienceShown {
    struct Line {
        std::string ratio;
        std::string standing; ///< "counts", "gross error", "off the mean"; empty for an empty line
    };
    std::array<Line, voyageCount> lines;
    std::string mean;
    std::string counted; ///< "7 of 9"
    std::string sums;    ///< "ship 700700, shore 700000"
    std::string factor;
    std::string notice;
    std::optional<double> value;
};

/// A voyage counts when both quantities are there; a box that cannot be read leaves its line out
/// and the notice names it.
/// @param what "Loading": in front of what the notice says
ExperienceShown experienceShown(const std::array<VoyageBoxes, voyageCount>& voyages,
                                const std::string& what);

} // namespace korvel
