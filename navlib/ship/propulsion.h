// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

/// The propeller's share in a day's run.
namespace NavFunc113
{

/// Miles that the propeller would have screwed through a solid: pitch x revolutions.
/// @param pitch       metres, more than 0
/// @param revolutions of the shaft, 0 or more
/// @return nautical miles of 1852 m
Miles EngineMiles(Metres pitch, double revolutions);

/// Apparent slip: by how much the ship went less than the propeller.
/// @param engine miles of 1852 m
/// @param run    over the ground, in the same miles
/// @return part of the engine's miles, negative when the ship went further
/// @throws ArithmeticError DivisionByZero for 0 engine miles
///
/// Source: the usual definition, (engine miles - observed miles) / engine miles.
double ApparentSlip(Miles engine, Miles run);

/// Real slip: the same against the water that the propeller works in, which follows the ship.
/// @param wakeFraction Taylor's, (speed of ship - speed of advance) / speed of ship, 0 .. 1
/// @throws ArithmeticError as ApparentSlip
double RealSlip(Miles engine, Miles run, double wakeFraction);

} // namespace NavFunc113
