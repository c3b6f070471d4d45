// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmSky/CalculateStars.h"
#include "forms/frmSky/CalculateUnknown.h"

#include <vector>

namespace korvel
{

/// The times of a day as they are checked by hand: place of the body, of the ship, and the altitude
/// that follows, beside the one that was looked for; what the window shows of them; the Moon.
std::vector<Working> dayWorkings(const SkyDay& day);

/// The minute, the round from the almanac to the preset altitude of each body, the error of its
/// fix, Polaris.
std::vector<Working> starsWorkings(const SkyDay& day, const SkyStars& stars);

/// The altitude that was searched with, and how far each of the likeliest bodies was from it.
std::vector<Working> unknownWorkings(const UnknownResult& found);

} // namespace korvel
