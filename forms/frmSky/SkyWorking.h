// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmSky/CalculateStars.h"

#include <vector>

namespace korvel
{

/// The times of a day as they are checked by hand: place of the body, of the ship, and the altitude
/// that follows, beside the one that was looked for.
std::vector<Working> dayWorkings(const SkyDay& day);

/// The round: from the almanac to the preset altitude of each body.
std::vector<Working> roundWorkings(const SkyDay& day, const SkyStars& stars);

} // namespace korvel
