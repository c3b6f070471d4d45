// SPDX-License-Identifier: MIT
#include "forms/frmUKC/KeelModel.h"

#include "navlib/arithmetic_error.h"

namespace korvel
{
namespace
{

using NavFunc113::Knots;
using NavFunc113::Metres;
using NavFunc113::SquatFormula;

SquatFormula shortFormula(Water water)
{
    return water == Water::Open ? SquatFormula::Open : SquatFormula::Confined;
}

} // namespace

NavFunc113::SquareMetres KeelModel::midship() const
{
    return NavFunc113::SquareMetres(breadth.value() * (draught + density).value());
}

Metres KeelModel::squat(Knots speed, Metres tide) const
{
    if (water == Water::Channel)
        return NavFunc113::SquatInChannel(block, speed, midship(), section(tide));
    return NavFunc113::Squat(shortFormula(water), block, speed);
}

Metres KeelModel::dynamicDraught(Knots speed, Metres tide) const
{
    return draught + squat(speed, tide) + list + density + heave;
}

Metres KeelModel::clearance(Knots speed, Metres tide) const
{
    return depth(tide) - dynamicDraught(speed, tide);
}

std::optional<Metres> KeelModel::tideFor(Knots speed) const
{
    constexpr Metres fineEnough(1e-6);
    const auto keeps = [&](Metres tide) {
        try {
            return clearance(speed, tide) >= minimum;
        } catch (const NavFunc113::ArithmeticError&) {
            return false; // she fills the channel
        }
    };
    Metres low = uncertainty - charted; // no water at all
    Metres high(30);
    if (!keeps(high)) return std::nullopt;
    while (high - low > fineEnough) {
        const Metres middle = (low + high) / 2;
        (keeps(middle) ? high : low) = middle;
    }
    return high;
}

std::optional<Knots> KeelModel::speedFor(Metres tide) const
{
    const Metres left = depth(tide) - (draught + list + density + heave) - minimum;
    if (left < Metres(0)) return std::nullopt;
    if (water == Water::Channel)
        return NavFunc113::SpeedOfSquatInChannel(block, left, midship(), section(tide));
    return NavFunc113::SpeedOfSquat(shortFormula(water), block, left);
}

} // namespace korvel
