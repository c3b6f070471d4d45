// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/sight/MeridianPassage.h"

namespace korvel
{

/// The passage of a body other than the Sun over the meridian of the moving ship nearest to the
/// sight, upper or lower, its greatest or least altitude, and the latitude by the sight: near the
/// meridian by reduction, of Polaris at every hour angle.
/// @param ship at the sight
void passageOfBody(const SightTexts& sight, const Observation& observation, const Track& track,
                   const NavFunc113::Position& ship, MeridianResult& result);

/// What the reduction to the meridian is worth, with its limit.
std::string exMeridianText(const NavFunc113::ExMeridian& reduced);

} // namespace korvel
