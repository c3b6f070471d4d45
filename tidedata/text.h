// SPDX-License-Identifier: MIT
#pragma once

#include "tidedata/astronomy.h"

#include <string>

/// Figures as they stand in the data files: the same on every machine, byte for byte.
namespace tidedata
{

/// A value with so many decimals, the exact binary value rounded to the nearest.
std::string fixed(double value, int decimals);

/// The shortest text that reads back to the same value: 9, 5.5, -3.5.
std::string shortest(double value);

/// An angle in whole degrees, 360 written as 0.
/// @param digits at least so many, filled with leading zeros
std::string wholeDegrees(Degrees angle, int digits = 1);

} // namespace tidedata
