// SPDX-License-Identifier: MIT
#include "navlib/compass_name.h"

#include "navlib/angles.h"
#include "navlib/arithmetic_error.h"

#include <array>
#include <cmath>

namespace NavFunc113
{

std::string_view CompassName(Degrees& direction)
{
    // The last name repeats the first, so that the sector across 360 needs no case of its own.
    static constexpr std::array<std::string_view, 17> names = {
        "North", "NNE", "NE",  "ENE",  "East", "ESE", "SE",  "SSE",  "South",
        "SSW",   "SW",  "WSW", "West", "WNW",  "NW",  "NNW", "North"};
    const double whole = std::nearbyint(direction);
    if (!(std::fabs(whole) <= 2147483647.0))
        throw ArithmeticError(ArithmeticError::Condition::Overflow);
    direction = std::fmod(whole, 360);
    const int sector = static_cast<int>(std::floor((direction + 33.75) / 22.5));
    return PickItem(sector, std::span<const std::string_view>(names));
}

std::string_view CompassName(Degrees&& direction)
{
    Degrees whole = direction;
    return CompassName(whole);
}

} // namespace NavFunc113
