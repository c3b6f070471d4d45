// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/daily_page.h"
#include "almanac/hourly_places.h"

namespace almanac
{

/// Rise, set and twilight by latitude, of the page that begins with a day.
/// @param sun, moon places of four days
std::vector<PageLatitude> pageLatitudes(DateTime firstDay, const HourlyPlaces& sun,
                                        const HourlyPlaces& moon);

} // namespace almanac
