// SPDX-License-Identifier: MIT
#include "almanac/page_latitudes.h"
#include "almanac/day_events.h"

#include <tuple>
#include <utility>

namespace almanac
{
namespace
{

constexpr double pageRows[] = {72,  70,  68,  66,  64,  62,  60,  58,  56,  54,  52,
                               50,  45,  40,  35,  30,  20,  10,  0,   -10, -20, -30,
                               -35, -40, -45, -50, -52, -54, -56, -58, -60};

} // namespace

std::vector<PageLatitude> pageLatitudes(DateTime firstDay, const HourlyPlaces& sun,
                                        const HourlyPlaces& moon)
{
    const DateTime middle = firstDay + 1;
    std::vector<PageLatitude> rows;
    for (const double latitude : pageRows) {
        PageLatitude row;
        row.latitude = Degrees(latitude);
        const Track track = standingAt({row.latitude, {}, {}});
        const SunDay day = sunDay(sun, track, middle, middle + 1, Degrees(0));
        std::tie(row.sunrise, row.sunset) = std::pair(day.rise.up, day.rise.down);
        std::tie(row.civilDawn, row.civilDusk) = std::pair(day.civil.up, day.civil.down);
        std::tie(row.nauticalDawn, row.nauticalDusk) =
            std::pair(day.nautical.up, day.nautical.down);
        for (std::size_t i = 0; i < row.moonrise.size(); ++i) {
            const DateTime date = firstDay + static_cast<double>(i);
            const auto [up, down] = eventPair(moon, track, upperLimbOnHorizon(), date, date + 1,
                                              EventTime::Kind::Above);
            std::tie(row.moonrise[i], row.moonset[i]) = std::pair(up, down);
        }
        rows.push_back(row);
    }
    return rows;
}

} // namespace almanac
