// SPDX-License-Identifier: MIT
#include "almanac/day_events.h"

namespace almanac
{

EventPair eventPair(const HourlyPlaces& places, const Track& track, const AltitudeWanted& wanted,
                    DateTime from, DateTime to, EventTime::Kind neverBelow)
{
    const auto found = crossings(places, track, wanted, from, to);
    if (found.empty()) {
        const DateTime middle = (from + to) / 2;
        const Place place = places.at(middle);
        const bool isAbove = computedDirection(place, track(middle)).altitude >= wanted(place);
        const EventTime none{isAbove ? neverBelow : EventTime::Kind::Below, {}};
        return {none, none};
    }
    EventPair pair;
    for (const Crossing& crossing : found) {
        EventTime& time = crossing.rising ? pair.up : pair.down;
        if (time.kind == EventTime::Kind::None || !crossing.rising)
            time = {EventTime::Kind::At, crossing.instant};
    }
    return pair;
}

std::optional<UpperPassage> upperPassage(const HourlyPlaces& places, const Track& track,
                                         DateTime from, DateTime to)
{
    for (const Passage& passage : passages(places, track, from, to)) {
        if (!passage.upper) continue;
        const Place place = places.at(passage.instant);
        return UpperPassage{passage.instant, computedDirection(place, track(passage.instant))};
    }
    return std::nullopt;
}

SunDay sunDay(const HourlyPlaces& sun, const Track& track, DateTime from, DateTime to, Degrees dip)
{
    using enum EventTime::Kind;
    SunDay day;
    day.rise = eventPair(sun, track, upperLimbOnHorizon(dip), from, to, Above);
    // Where the Sun does not set there is no twilight, and where it does it may last all night.
    const auto lasting = day.rise.up.kind == Above ? Above : Twilight;
    day.civil = eventPair(sun, track, civilTwilight(), from, to, lasting);
    day.nautical = eventPair(sun, track, nauticalTwilight(), from, to, lasting);
    day.passage = upperPassage(sun, track, from, to);
    return day;
}

MoonDay moonDay(const HourlyPlaces& moon, const Track& track, DateTime from, DateTime to,
                Degrees dip)
{
    const auto above = EventTime::Kind::Above;
    return {eventPair(moon, track, upperLimbOnHorizon(dip), from, to, above),
            upperPassage(moon, track, from, to)};
}

} // namespace almanac
