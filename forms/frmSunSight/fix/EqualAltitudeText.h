// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/fix/SightFix.h"

#include <string>

namespace korvel
{

/// Time of the passage and longitude by two sights of one body on both sides of the meridian, those
/// whose altitudes differ least, by up to a degree; the longitude with its standard deviation.
/// @param result with its lines
/// @return empty when there are no such two
std::string equalAltitudeText(const SightFixResult& result, const NavFunc113::ErrorModel& errors);

} // namespace korvel
