// SPDX-License-Identifier: MIT
#include "navlib/ship/under_keel.h"

#include "navlib/angles.h"
#include "navlib/arithmetic_error.h"
#include "navlib/exact_factors.h"

#include <cmath>

namespace NavFunc113
{
namespace
{

constexpr double powerOfSpeed = 2.08;
constexpr double metresASecond = exact::metresPerMile / 3600; // of a knot
constexpr double gravity = exact::standardGravity;

double divisorOf(SquatFormula formula)
{
    return formula == SquatFormula::Open ? 100 : 50;
}

/// Squat at one knot.
double perKnotInChannel(double block, SquareMetres midship, SquareMetres channel)
{
    if (!(channel > midship) || !(midship > SquareMetres(0))) throwInvalidArgument();
    const double returnFlow = Quotient(midship.value(), (channel - midship).value());
    return block / 30 * std::pow(returnFlow, 2.0 / 3);
}

} // namespace

double BlockCoefficient(double displacement, TonsPerCubicMetre density, Metres length,
                        Metres breadth, Metres draught)
{
    return Quotient(displacement,
                    density.value() * length.value() * breadth.value() * draught.value());
}

Metres Squat(SquatFormula formula, double block, Knots speed)
{
    return Metres(block * speed.value() * speed.value() / divisorOf(formula));
}

Metres SquatInChannel(double block, Knots speed, SquareMetres midship, SquareMetres channel)
{
    return Metres(perKnotInChannel(block, midship, channel) *
                  std::pow(speed.value(), powerOfSpeed));
}

Knots SpeedOfSquat(SquatFormula formula, double block, Metres squat)
{
    return Knots(SquareRoot(Quotient(squat.value() * divisorOf(formula), block)));
}

Knots SpeedOfSquatInChannel(double block, Metres squat, SquareMetres midship, SquareMetres channel)
{
    if (!(squat >= Metres(0))) throwInvalidArgument();
    const double power = Quotient(squat.value(), perKnotInChannel(block, midship, channel));
    return Knots(std::pow(power, 1 / powerOfSpeed));
}

double Blockage(SquareMetres midship, SquareMetres channel)
{
    return Quotient(midship.value(), channel.value());
}

Metres WidthOfInfluence(double block, Metres breadth)
{
    return Metres(Quotient(7.04 * breadth.value(), std::pow(block, 0.85)));
}

SquareMetres ChannelSection(Metres bottom, double slope, Metres depth)
{
    return SquareMetres((bottom.value() + slope * depth.value()) * depth.value());
}

Metres ListSinkage(Metres breadth, Degrees list)
{
    return breadth * (sin(fabs(list)) / 2);
}

Metres DensitySinkage(Metres allowance, TonsPerCubicMetre ofDraught, TonsPerCubicMetre ofWater)
{
    return allowance * ((ofDraught - ofWater).value() / 0.025);
}

Metres DensitySinkageOfBox(Metres draught, TonsPerCubicMetre ofDraught, TonsPerCubicMetre ofWater)
{
    return draught * (Quotient(ofDraught.value(), ofWater.value()) - 1);
}

DepthUncertainty UncertaintyOf(ZoneOfConfidence zone)
{
    switch (zone) {
    case ZoneOfConfidence::A1:
        return {Metres(0.5), 0.01};
    case ZoneOfConfidence::A2:
    case ZoneOfConfidence::B:
        return {Metres(1), 0.02};
    case ZoneOfConfidence::C:
        break;
    }
    return {Metres(2), 0.05};
}

double DepthFroudeNumber(Knots speed, Metres depth)
{
    return Quotient(speed.value() * metresASecond, SquareRoot(gravity * depth.value()));
}

} // namespace NavFunc113
