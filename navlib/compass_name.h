// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <string_view>

namespace NavFunc113
{

/// Name of the 16-point compass sector in which a direction lies: "North", "NNE", "NE", "ENE",
/// "East" and so on; on a boundary the clockwise sector.
///
/// @param direction replaced in the caller's variable by its whole degrees (half to even), reduced
///        modulo 360 with its sign kept
/// @throws ArithmeticError SubscriptOutOfRange for a direction below -33 degrees, Overflow for one
///         that is no 32-bit number of degrees
std::string_view CompassName(Degrees& direction);

/// The same where the caller has no further use for the direction.
std::string_view CompassName(Degrees&& direction);

} // namespace NavFunc113
