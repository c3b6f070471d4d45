// SPDX-License-Identifier: MIT
#pragma once

/// The units in which the function library speaks, as type names. They are all doubles: the name
/// tells the reader what a value means, the compiler does not tell them apart.
namespace NavFunc113
{

/// Packed degrees and minutes: whole degrees before the point, minutes/100 after it
/// (35.305 is 35 degrees 30.5 minutes); north and east positive. No range is enforced.
using DegMin = double;
using Degrees = double; ///< decimal degrees
using Radians = double; ///< radians
using Miles = double;   ///< nautical miles of 1852 m
using Knots = double;   ///< nautical miles per hour
using Hours = double;   ///< hours, decimal
using Metres = double;  ///< metres

/// Date and time as days since 1899-12-30 00:00: the whole part is the civil date, the fraction
/// the time of day. Astronomical routines take it as UTC.
using DateTime = double;

} // namespace NavFunc113
