// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "navlib/units.h"

#include <optional>
#include <string>
#include <string_view>

/// How figures of compasses are written and read. East is positive.
namespace korvel
{

/// "3.1 E", "4.9 W"; "0.0" for what shows no figure.
std::string eastWestText(NavFunc113::Degrees angle);

/// The same of a gyro, "1.2 W (high)": one that reads too high has a westerly error.
std::string gyroErrorText(NavFunc113::Degrees error);

/// Nothing but blanks.
bool isBlankBox(std::string_view box);

/// Reads a box that may stay empty. @return nothing when it is, or cannot be used
std::optional<double> readFilled(std::string_view box, const Field& field, Remarks& remarks);

/// Reads a position's half, minutes below 60. @return as readFilled
std::optional<NavFunc113::Degrees> readCoordinate(std::string_view box, const Field& field,
                                                  Remarks& remarks);

/// Reads a box of a variation, deviation or error: "-5", "5 W", "5W", "3.1E". @return as readFilled
std::optional<NavFunc113::Degrees> readEastWest(std::string_view box, const Field& field,
                                                Remarks& remarks);

} // namespace korvel
