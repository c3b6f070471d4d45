// SPDX-License-Identifier: MIT
#include "almanac/page_latitudes.h"
#include "almanac/events.h"

#include <tuple>
#include <utility>

namespace almanac
{
namespace
{

constexpr double pageRows[] = {72,  70,  68,  66,  64,  62,  60,  58,  56,  54,  52,
                               50,  45,  40,  35,  30,  20,  10,  0,   -10, -20, -30,
                               -35, -40, -45, -50, -52, -54, -56, -58, -60};

/// The two times of a day at which a body passes an altitude.
struct Pair {
    PageTime up, down;
};

/// @param neverBelow what is said when the body stays above it all day
Pair pairOf(const HourlyPlaces& places, const Observer& observer, const AltitudeWanted& wanted,
            DateTime day, PageTime::Kind neverBelow)
{
    const auto found = crossings(places, standingAt(observer), wanted, day, day + 1);
    if (found.empty()) {
        const Place noon = places.at(day + 0.5);
        const bool isAbove = computedDirection(noon, observer).altitude >= wanted(noon);
        const PageTime none{isAbove ? neverBelow : PageTime::Kind::Below, 0};
        return {none, none};
    }
    Pair pair;
    // Near midnight there may be two of a kind: the first rise and the last set enclose the day.
    for (const Crossing& crossing : found) {
        PageTime& time = crossing.rising ? pair.up : pair.down;
        if (time.kind == PageTime::Kind::None || !crossing.rising)
            time = {PageTime::Kind::At, crossing.instant};
    }
    return pair;
}

} // namespace

std::vector<PageLatitude> pageLatitudes(DateTime firstDay, const HourlyPlaces& sun,
                                        const HourlyPlaces& moon)
{
    using enum PageTime::Kind;
    const DateTime middle = firstDay + 1;
    std::vector<PageLatitude> rows;
    for (const double latitude : pageRows) {
        PageLatitude row;
        row.latitude = Degrees(latitude);
        const Observer observer{row.latitude, {}, {}};
        const Pair rise = pairOf(sun, observer, upperLimbOnHorizon(), middle, Above);
        const auto whileUp = rise.up.kind == Above ? Above : Twilight;
        const Pair civil = pairOf(sun, observer, civilTwilight(), middle, whileUp);
        const Pair nautical = pairOf(sun, observer, nauticalTwilight(), middle, whileUp);
        std::tie(row.sunrise, row.sunset) = std::pair(rise.up, rise.down);
        std::tie(row.civilDawn, row.civilDusk) = std::pair(civil.up, civil.down);
        std::tie(row.nauticalDawn, row.nauticalDusk) = std::pair(nautical.up, nautical.down);
        for (std::size_t day = 0; day < row.moonrise.size(); ++day) {
            const DateTime date = firstDay + static_cast<double>(day);
            const Pair times = pairOf(moon, observer, upperLimbOnHorizon(), date, Above);
            std::tie(row.moonrise[day], row.moonset[day]) = std::pair(times.up, times.down);
        }
        rows.push_back(row);
    }
    return rows;
}

} // namespace almanac
