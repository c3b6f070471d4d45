// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Instant.h"
#include "navlib/units.h"

#include <string>
#include <string_view>
#include <vector>

namespace korvel
{

/// A sight that is to be taken: what the window of the stars hands to that of the sights.
struct PlannedSight {
    std::string body; ///< as almanacs name it, "Capella", "Venus"
    Instant utc;      ///< for which it was worked
    /// To be preset: index error, dip and refraction put on; 0 to 90.
    NavFunc113::Degrees sextantAltitude;
    NavFunc113::Degrees azimuth; ///< true, 0 <= azimuth < 360

    bool operator==(const PlannedSight&) const = default;
};

using PlannedSights = std::vector<PlannedSight>;

constexpr const char* plannedSightsFile = "KV_PlannedSights.ini";
/// More than anybody takes in one twilight; the file holds no more.
constexpr std::size_t mostPlannedSights = 40;

/// The bytes of the file: a first line that tells kind and version, then a line a sight.
std::string plannedSightsText(const PlannedSights& sights);

struct ReadPlannedSights {
    PlannedSights sights; ///< what could be read
    std::string damage;   ///< what could not, in words; empty when all was
};
ReadPlannedSights readPlannedSights(std::string_view bytes);

} // namespace korvel
