// SPDX-License-Identifier: MIT
#include "navlib/ship/vessel_experience.h"

#include "navlib/arithmetic_error.h"

#include <cmath>

namespace NavFunc113
{
namespace
{

using Standing = VoyageRatio::Standing;

double fiveDecimals(double value)
{
    return std::round(value * 1e5) / 1e5;
}

bool isQuantity(double value)
{
    return value > 0 && std::isfinite(value);
}

/// Sums of the voyages that stand so.
VoyageQuantities sums(std::span<const VoyageQuantities> voyages,
                      const std::vector<VoyageRatio>& ratios)
{
    VoyageQuantities sum;
    for (std::size_t i = 0; i < voyages.size(); ++i) {
        if (ratios[i].standing != Standing::Counts) continue;
        sum.ship += voyages[i].ship;
        sum.shore += voyages[i].shore;
    }
    return sum;
}

} // namespace

VesselExperience VesselExperienceFactor(std::span<const VoyageQuantities> voyages)
{
    using Condition = ArithmeticError::Condition;
    if (voyages.size() > VesselExperience::mostVoyages)
        throw ArithmeticError(Condition::InvalidArgument);
    VesselExperience found;
    for (const VoyageQuantities& voyage : voyages) {
        if (!isQuantity(voyage.ship) || !isQuantity(voyage.shore))
            throw ArithmeticError(Condition::InvalidArgument);
        const double ratio = fiveDecimals(voyage.ship / voyage.shore);
        const bool isGross = ratio < 0.98 || ratio > 1.02;
        found.voyages.push_back({ratio, isGross ? Standing::GrossError : Standing::Counts});
    }
    const VoyageQuantities ofMean = sums(voyages, found.voyages);
    if (!(ofMean.shore > 0)) return found;
    found.mean = fiveDecimals(ofMean.ship / ofMean.shore);
    for (VoyageRatio& voyage : found.voyages) {
        const bool isOff = voyage.ratio < fiveDecimals(found.mean * 0.997) ||
                           voyage.ratio > fiveDecimals(found.mean * 1.003);
        if (voyage.standing == Standing::Counts && isOff) voyage.standing = Standing::OffMean;
        if (voyage.standing == Standing::Counts) ++found.counted;
    }
    const VoyageQuantities counted = sums(voyages, found.voyages);
    found.ship = counted.ship;
    found.shore = counted.shore;
    if (found.counted >= VesselExperience::fewestVoyages)
        found.factor = fiveDecimals(found.ship / found.shore);
    return found;
}

} // namespace NavFunc113
