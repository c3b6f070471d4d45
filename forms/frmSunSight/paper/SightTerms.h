// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Format.h"
#include "app/working/Working.h"

#include <cmath>

/// How the workings of the sun sight window write figures.
namespace korvel
{

inline std::string sightFigure(NavFunc113::Degrees angle)
{
    return figure(angle, 6);
}

/// As a term of a formula.
inline std::string sightTerm(NavFunc113::Degrees angle)
{
    return angleTerm(angle, 6);
}

/// What whole turns bring a sum of angles to the one that is used, " - 360°".
inline std::string sightTurns(NavFunc113::Degrees sum, NavFunc113::Degrees used)
{
    const double turns = std::round((used - sum).value() / 360);
    return turns == 0 ? "" : Format(360 * turns, " + 0; - 0") + "°";
}

inline std::string sightInstant(NavFunc113::DateTime instant)
{
    return Format(instant, "yyyy-mm-dd hh:mm:ss");
}

} // namespace korvel
