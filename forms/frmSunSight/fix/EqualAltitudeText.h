// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/fix/SightFix.h"

namespace korvel
{

/// Time of the passage and longitude by sights of one body on both sides of the meridian, in pairs
/// that differ in altitude by up to a degree; the longitude with its standard deviation.
///
/// Each sight is in one pair, the nearest in altitude being paired first; of several pairs the
/// weighted mean is told, and how far each is from it. The run's error is common to them.
/// @param result with its lines; gets the pairs and the text, nothing when there are none
void findEqualAltitudes(const NavFunc113::ErrorModel& errors, SightFixResult& result);

} // namespace korvel
