// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

/// Vessel experience factor: what the ship has measured over what the shore has, voyage by voyage.
///
/// Source: API MPMS chapter 17.9 / EI HM 49, primary method. Ratios, their mean and the factor have
/// five decimals, rounded half away from zero.
namespace NavFunc113
{

/// Total calculated volumes, or weights, of a voyage in one unit; loadings and discharges are never
/// mixed in one list. The ship's figure is loaded or discharged: without what was on board before,
/// or remained.
struct VoyageQuantities {
    double ship{};
    double shore{};
};

struct VoyageRatio {
    enum class Standing {
        Counts,
        GrossError, ///< the ratio is outside 0.98000 to 1.02000
        OffMean     ///< it is more than 0.30 % of the mean off the mean
    };
    double ratio{}; ///< ship / shore
    Standing standing = Standing::Counts;
};

struct VesselExperience {
    static constexpr std::size_t mostVoyages = 20;
    static constexpr std::size_t fewestVoyages = 5;

    std::vector<VoyageRatio> voyages; ///< of the list, in its order
    double mean{};                    ///< sum of ships / sum of shores without the gross errors; 0:
                                      ///< every voyage is one
    std::size_t counted{};
    double ship{}; ///< sums of the voyages that count
    double shore{};
    std::optional<double> factor; ///< ship / shore; nothing with fewer than five voyages that count
};

/// @param voyages the latest 20 at most
/// @throws ArithmeticError InvalidArgument for more voyages, or for a quantity that is not > 0 or
///         not finite
VesselExperience VesselExperienceFactor(std::span<const VoyageQuantities> voyages);

} // namespace NavFunc113
