// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Instant.h"
#include "navlib/sailing/great_circle_arc.h"

#include <string>

namespace korvel
{

/// The Sun's events at a position on the day of a zone: upper limb on the horizon (as almanacs have
/// it, without dip), ends of civil and nautical twilight. By the sky of the program, within seconds
/// of the full theory; refraction on the horizon varies by more.
struct SunOfDay {
    std::string riseAndSet; ///< "rises 06:21, sets 17:40"; "does not rise" ..
    std::string twilight;   ///< "civil 05:55 to 18:06, nautical 05:25 to 18:36"
};

/// @param utc any instant of that day
/// @return empty texts beyond the years of the sky's theories, 1950 to 2100
SunOfDay sunOfDay(const NavFunc113::GeoPoint& at, Instant utc, Span zone);

} // namespace korvel
