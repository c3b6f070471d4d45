// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/likely_bodies.h"
#include "forms/frmSky/SkyShip.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/// An unknown body by its altitude and bearing.
namespace korvel
{

inline constexpr std::size_t likelyCount = 3;

/// A body that it may have been.
struct UnknownLine {
    std::string name;        ///< "Elnath"
    std::string number;      ///< "14"; empty for a body without one
    std::string magnitude;   ///< "1.7"
    std::string direction;   ///< where it stood: "27°25.0', 029.0"
    std::string altitudeOff; ///< observed less that: "+2°10'"
    std::string bearingOff;  ///< the same: "-0.0°"
};

struct UnknownResult {
    std::optional<SkyShip> ship;
    NavFunc113::Degrees shown;   ///< by the sextant
    almanac::SextantTerms terms; ///< from there to what was seen
    std::optional<NavFunc113::DateTime> utc;
    almanac::Direction observed; ///< dip and refraction taken off
    std::vector<almanac::LikelyBody> likely;
    std::array<UnknownLine, likelyCount> lines;
    std::string answer;       ///< name of the likeliest
    std::string observedText; ///< "29°27.1' without dip and refraction"
    std::string zulu;         ///< "1981/01/14 15:22:28", UTC
    std::string where;        ///< the ship's position then
    std::string notice;
};

UnknownResult CalculateUnknown(const SkyInput& input);

} // namespace korvel
