// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Format.h"
#include "app/working/Working.h"

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

inline std::string sightInstant(NavFunc113::DateTime instant)
{
    return Format(instant, "yyyy-mm-dd hh:mm:ss");
}

} // namespace korvel
