// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <string>

/// True wind from the apparent wind on board, compass names and the Beaufort scale. Wind directions
/// are those the wind blows from.
namespace NavFunc113
{

/// Direction of the true wind.
///
/// @param course            ship's course, true, 0 .. 360
/// @param shipSpeed         0 or more
/// @param relativeDirection apparent wind from the bow, clockwise positive, -180 .. 180
/// @param apparentSpeed     0 or more
/// @return true, 0 .. 360, both included. In a true calm the ship's course.
/// @throws ArithmeticError InvalidArgument or Overflow for values that are not finite
Degrees TrueWindDirection(Degrees course, Knots shipSpeed, Degrees relativeDirection,
                          Knots apparentSpeed);

/// TrueWindDirection with what it was calculated from.
struct TrueWindSteps {
    Knots ahead;       ///< true wind along the ship's course, a wind from ahead positive
    Knots abeam;       ///< and across it, from starboard positive
    Degrees fromBow;   ///< of the true wind, clockwise positive
    Degrees direction; ///< true
};
TrueWindSteps TrueWindFromBow(Degrees course, Knots shipSpeed, Degrees relativeDirection,
                              Knots apparentSpeed);

/// Speed of the true wind, by the cosine rule. Arguments and faults as TrueWindDirection.
/// @return about 1e-5 in a true calm
Knots TrueWindSpeed(Knots shipSpeed, Degrees relativeDirection, Knots apparentSpeed);

/// Compass name of TrueWindDirection. Arguments and faults as there.
std::string TrueWindName(Degrees course, Knots shipSpeed, Degrees relativeDirection,
                         Knots apparentSpeed);

/// Name of a direction among the 16 points of the compass ("North", "NNE", .. "NNW").
///
/// @param direction -11 and more. Replaced in the caller's variable by the whole degree (half to
///                  even), reduced modulo 360 with its sign kept, so that what is shown beside the
///                  name agrees with it.
/// @throws ArithmeticError SubscriptOutOfRange for a rounded and reduced direction below -11,
///         Overflow for what is no 32-bit number of degrees, InvalidArgument for no number
std::string CompassName(Degrees& direction);

/// Beaufort number of a wind speed: 0 .. 9, where 9 stands for everything from 41 knots up.
/// @throws ArithmeticError InvalidArgument for no number
int BeaufortNumber(Knots speed);

} // namespace NavFunc113
