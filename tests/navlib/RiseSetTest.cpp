// SPDX-License-Identifier: MIT
#include "navlib/rise_set.h"

#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "navlib/ephemeris.h"

#include "tests/navlib/ByNumbers.h"

#include <gtest/gtest.h>

#include <cmath>

namespace NavFunc113
{
namespace
{

double minutesOfDay(DateTime time)
{
    return (time - std::floor(time)) * 1440;
}

constexpr double clock(int hour, int minute)
{
    return hour * 60 + minute;
}

TEST(RiseSet, publishedTimes)
{
    // Tokyo by the national observatory's tables; Greenwich and Sydney by almanac; all rounded to
    // the minute, other altitudes of the body: hence two minutes.
    const struct {
        const char* place;
        CivilDate date;
        double TD;
        double latitude, longitude;
        double sunrise, sunset;
    } rows[] = {
        {"Tokyo", {2024, 6, 21}, 9, 35.393, 139.447, clock(4, 25), clock(19, 0)},
        {"Greenwich", {2024, 12, 21}, 0, 51.287, 0, clock(8, 4), clock(15, 53)},
        {"Sydney", {2024, 3, 20}, 11, -33.52, 151.125, clock(6, 58), clock(19, 7)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.place);
        const auto date = double(DaySerial(row.date));
        DegMin latitude(row.latitude);
        const DateTime rise = SunRiseSearch(date, Hours(row.TD), latitude, DegMin(row.longitude));
        const DateTime set = SunSetSearch(date, Hours(row.TD), latitude, DegMin(row.longitude));
        EXPECT_EQ(std::floor(rise), date);
        EXPECT_NEAR(minutesOfDay(rise), row.sunrise, 2);
        EXPECT_NEAR(minutesOfDay(set), row.sunset, 2);
        EXPECT_NEAR(latitude.packed(), row.latitude + 2e-10, 1e-12) << "once for each search";
    }
}

TEST(RiseSet, hoursOfOneTriangle)
{
    // Latitude 45, declination 30, worked apart: the Moon 125.26439 degrees from the meridian, the
    // Sun 127.09183; an offset of 180 and the zone's own meridian put noon at half the day.
    EXPECT_NEAR(by(SunRiseHour)(9, 180, 30, 45, 135), 1 + 0.5 - 127.09183 / 360 - 1, 1e-6);
    EXPECT_NEAR(by(SunSetHour)(9, 180, 30, 45, 135), 1 + 0.5 + 127.09183 / 360 - 1, 1e-6);
    EXPECT_NEAR(by(MoonRiseHour)(9, 180, 30, 45, 135), 3 + 0.5 - 125.26439 / 360 - 1, 1e-6);
    EXPECT_NEAR(by(MoonSetHour)(9, 180, 30, 45, 135), 2 + 0.5 + 125.26439 / 360 - 1, 1e-6);
}

TEST(RiseSet, searchIsOutNearFullMoonAndTheRefinedTimeIsNot)
{
    int wrong = 0, days = 0;
    for (double date = 45292; date < 45292 + 366; date += 1, ++days) {
        DegMin latitude(35.2);
        const DateTime found = MoonRiseSearch(date, Hours(9), latitude, DegMin(139.4));
        const auto refined = RefinedMoonRise(date, Hours(9), DegMin(35.2), DegMin(139.4));
        if (found == 0 || !refined || std::fabs(found - *refined) * 1440 > 20) {
            if (found == 0 && !refined) continue;
            ++wrong;
            const double age = MoonAge(date + 0.5);
            EXPECT_NEAR(age, 15, 3);
        } else {
            EXPECT_NEAR(found, *refined, 10.0 / 1440);
        }
    }
    EXPECT_GT(wrong, 2) << "of " << days;
    EXPECT_LT(wrong, 30);
}

TEST(RiseSet, southernWholeDegreesAndFaults)
{
    DegMin whole(-60), almost(-60.0001);
    const double date = 45292 + 354;
    const DateTime there = SunRiseSearch(date, {}, whole, {});
    EXPECT_GT(std::fabs(there - SunRiseSearch(date, {}, almost, {})) * 1440, 2)
        << "the packed latitude falls below its whole degree";
    EXPECT_NEAR(*RefinedSunRise(date, {}, DegMin(-60), {}),
                *RefinedSunRise(date, {}, DegMin(-60.0001), {}), 1e-5);

    EXPECT_THROW(by(MoonRiseHour)(0, 180, 28.3, 63, 0), ArithmeticError) << "the Moon does not set";
    EXPECT_THROW(by(MoonRiseHour)(0, 180, 20, 0, 0), ArithmeticError) << "cosine of exactly 0";
    DegMin equator;
    EXPECT_NO_THROW(MoonRiseSearch(date, {}, equator, {})) << "which the search steps around";
    EXPECT_NEAR(by(SunRiseAzimuth)(35, 23.26) + by(SunSetAzimuth)(35, 23.26), 360, 1e-12);
    EXPECT_NEAR(by(SunRiseAzimuth)(0, -23), 113, 1e-9);
    EXPECT_THROW(by(SunRiseAzimuth)(35, 0), ArithmeticError);
    EXPECT_FALSE(RefinedMoonRise(44880, {}, DegMin(80), {}))
        << "no fault where the Moon does not rise";
}

} // namespace
} // namespace NavFunc113
