// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/events.h"

#include <optional>

namespace almanac
{

/// A time of rise, set or twilight, or why there is none.
struct EventTime {
    enum class Kind {
        At,
        Above,    ///< above the horizon all the time
        Below,    ///< below the horizon all the time; for twilight: darker all the time
        Twilight, ///< twilight lasts all the time
        None      ///< not in this span: the Moon's time falls beyond midnight
    };
    Kind kind = Kind::None;
    DateTime instant = {};
};

/// The two times at which a body passes an altitude.
struct EventPair {
    EventTime up, down;
};

/// The first rise and the last set of a span: near midnight there may be two of a kind, and these
/// enclose the day.
/// @param places     of the span at least
/// @param neverBelow what is said when the body stays above the altitude all the time
EventPair eventPair(const HourlyPlaces& places, const Track& track, const AltitudeWanted& wanted,
                    DateTime from, DateTime to, EventTime::Kind neverBelow);

/// A body over the upper branch of the observer's meridian.
struct UpperPassage {
    DateTime instant{};
    Direction direction; ///< the navigator's computed one: no parallax, no refraction
};
/// The first of a span; the Moon leaves out a day in each month.
std::optional<UpperPassage> upperPassage(const HourlyPlaces& places, const Track& track,
                                         DateTime from, DateTime to);

/// The Sun over a day of a ship under way or at anchor.
struct SunDay {
    EventPair nautical, civil, rise; ///< Sun's centre at -12 and -6 degrees; upper limb
    std::optional<UpperPassage> passage;
};
/// @param dip of the horizon, 0 or more, for rise and set; twilight has none
SunDay sunDay(const HourlyPlaces& sun, const Track& track, DateTime from, DateTime to, Degrees dip);

struct MoonDay {
    EventPair rise;
    std::optional<UpperPassage> passage;
};
MoonDay moonDay(const HourlyPlaces& moon, const Track& track, DateTime from, DateTime to,
                Degrees dip);

} // namespace almanac
