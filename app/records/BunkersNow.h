// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string>

namespace korvel
{

/// The fuel on board as the bunkers were last surveyed, for whoever reports it. Tons in air.
struct BunkersNow {
    struct Fuel {
        std::string name;               ///< "VLSFO"; of several parcels "VLSFO old + VLSFO new"
        std::optional<double> previous; ///< at the survey before
        double received{};              ///< since then
        std::optional<double> remaining;

        std::optional<double> consumed() const
        {
            if (!previous || !remaining) return std::nullopt;
            return *previous + received - *remaining;
        }
    };
    std::array<Fuel, 3> fuels; ///< the lines of the noon report
    std::string before, now;   ///< times of the surveys as typed; empty: not said
};

} // namespace korvel
