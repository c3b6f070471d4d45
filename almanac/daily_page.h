// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/day_events.h"
#include "almanac/moon_phase.h"
#include "almanac/sky.h"

#include <array>
#include <optional>
#include <vector>

namespace almanac
{

/// What a page of three days holds, as nautical almanacs have it, not rounded. Times are UT; those
/// of the latitudes are local mean time as well, for they are worked for the meridian of Greenwich.
inline constexpr int pageDays = 3;
inline constexpr int pageHours = 24 * pageDays;

/// Sun, Moon, Venus, Mars, Jupiter, Saturn: the order of the places of an hour.
inline constexpr std::size_t wanderers = 6;

struct PageHour {
    DateTime ut{};
    Degrees ghaAries;
    std::array<Place, wanderers> places;
    Degrees moonExcess; ///< v: what the Moon's GHA gains in the hour beyond 14 degrees 19.0'
    Degrees moonChange; ///< d: of her declination in the hour, north positive
};

struct PagePlanet {
    Body body = Body::Venus;
    Degrees sha;    ///< at noon of the middle day, as the parallax
    Degrees excess; ///< v: mean of the three days, an hour beyond 15 degrees
    Degrees change; ///< d: of the declination in an hour of the middle day, north positive
    Degrees horizontalParallax;
    std::optional<DateTime> passage; ///< of the middle day; there may be a day without
};

struct PageStar {
    Body body = Body::Sun;
    Degrees sha;
    Degrees declination;
};

struct PageDay {
    DateTime date{};
    Degrees sunExcess[2]; ///< equation of time as an angle, apparent less mean, at 0 and 12 hours
    DateTime sunPassage{};
    std::optional<DateTime> moonUpper, moonLower; ///< a day may be without either
    Degrees moonSemiDiameter;                     ///< at noon
    MoonPhase moon;                               ///< at noon
};

using PageTime = EventTime;

struct PageLatitude {
    Degrees latitude;
    PageTime nauticalDawn, civilDawn, sunrise, sunset, civilDusk, nauticalDusk; ///< middle day
    std::array<PageTime, pageDays + 1> moonrise, moonset; ///< three days and the next
};

struct DailyPage {
    DateTime firstDay{};
    DeltaT deltaT;
    DateTime ariesPassage{}; ///< of the middle day
    Degrees sunSemiDiameter; ///< at noon of the middle day
    Degrees sunChange;       ///< d: of the declination in an hour of the middle day
    std::vector<PageHour> hours;
    std::array<PagePlanet, 4> planets;
    std::vector<PageStar> stars; ///< the 57 by number and Polaris, noon of the middle day
    std::array<PageDay, pageDays> days;
    std::vector<PageLatitude> latitudes; ///< from N 72 to S 60
};

/// @param day any instant of the first of the three days
/// @throws OutOfRange unless all three lie in 1950 to 2100
DailyPage makeDailyPage(DateTime day);

} // namespace almanac
