// SPDX-License-Identifier: MIT
#include "navlib/sea/wind.h"

#include "navlib/angles.h"

#include <array>
#include <cmath>

namespace NavFunc113
{
namespace
{

// The last repeats the first, so that the sector across north needs no case of its own.
constexpr std::array<const char*, 17> compassNames{"North", "NNE", "NE",    "ENE", "East", "ESE",
                                                   "SE",    "SSE", "South", "SSW", "SW",   "WSW",
                                                   "West",  "WNW", "NW",    "NNW", "North"};

/// Beaufort n begins at the n-th of these, in knots.
constexpr std::array<double, 10> beaufortLowerBounds{0, 1, 4, 7, 11, 17, 22, 28, 34, 41};

} // namespace

TrueWindSteps TrueWindFromBow(Degrees course, Knots shipSpeed, Degrees relativeDirection,
                              Knots apparentSpeed)
{
    TrueWindSteps steps;
    const Degrees nudgedCourse = course + Degrees(1e-10);
    const Radians theta = DegToRad(relativeDirection);
    steps.ahead = cos(theta) * apparentSpeed - shipSpeed;
    steps.abeam = sin(theta) * apparentSpeed;
    steps.fromBow = RadToDeg(ArcTan2(steps.ahead.value(), steps.abeam.value()));
    steps.direction = nudgedCourse + steps.fromBow;
    if (steps.direction > fullTurn)
        steps.direction -= fullTurn;
    else if (steps.direction < Degrees(0))
        steps.direction += fullTurn;
    return steps;
}

Degrees TrueWindDirection(Degrees course, Knots shipSpeed, Degrees relativeDirection,
                          Knots apparentSpeed)
{
    return TrueWindFromBow(course, shipSpeed, relativeDirection, apparentSpeed).direction;
}

Knots TrueWindSpeed(Knots shipSpeed, Degrees relativeDirection, Knots apparentSpeed)
{
    const double apparent = apparentSpeed.value();
    const double ship = shipSpeed.value() + 1e-5; // a stopped ship still has a direction
    const double speed = SquareRoot(std::pow(apparent, 2.0) + std::pow(ship, 2.0) -
                                    2 * apparent * ship * cos(relativeDirection));
    if (!std::isfinite(speed)) throw ArithmeticError(ArithmeticError::Condition::Overflow);
    return Knots(speed);
}

std::string TrueWindName(Degrees course, Knots shipSpeed, Degrees relativeDirection,
                         Knots apparentSpeed)
{
    Degrees direction = TrueWindDirection(course, shipSpeed, relativeDirection, apparentSpeed);
    return CompassName(direction);
}

std::string CompassName(Degrees& direction)
{
    if (std::isnan(direction.value()))
        throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
    const double whole = std::nearbyint(direction.value());
    if (std::fabs(whole) > 2147483647) throw ArithmeticError(ArithmeticError::Condition::Overflow);
    direction = Degrees(std::fmod(whole, 360));
    const int sector = static_cast<int>(std::floor((direction.value() + 33.75) / 22.5));
    return PickItem<const char*>(sector, compassNames);
}

int BeaufortNumber(Knots speed)
{
    if (std::isnan(speed.value()))
        throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
    int number = 9;
    while (number > 0 && speed.value() < beaufortLowerBounds[static_cast<std::size_t>(number)])
        --number;
    return number;
}

} // namespace NavFunc113
