// SPDX-License-Identifier: MIT
#include "navlib/sky/ephemeris.h"

#include "navlib/sky/rise_set.h"

#include <gtest/gtest.h>

#include <cmath>

namespace NavFunc113
{
namespace
{

TEST(Ephemeris, hourAngleKeepsItsInterval)
{
    bool negativeSeen = false;
    for (double t = 36526; t < 36526 + 800; t += 0.173) {
        for (double GHA : {SunGHA(t).packed(), MoonGHA(t).packed()}) {
            ASSERT_GT(GHA, -360);
            ASSERT_LE(GHA, 360);
            negativeSeen = negativeSeen || GHA < 0;
        }
        for (double offset : {SunHourAngleOffset(t).value(), MoonHourAngleOffset(t).value()}) {
            ASSERT_GE(offset, 0);
            ASSERT_LE(offset, 360);
        }
    }
    EXPECT_TRUE(negativeSeen) << "angles between -360 and 0 stay as they come out";
}

TEST(Ephemeris, sharedPlaceIsTheSingleRoutinesToTheBit)
{
    for (double t : {36526.0, 43831.37, 55153.999, -3.25}) {
        EXPECT_EQ(SunPlace(t).declination, SunDeclination(t));
        EXPECT_EQ(SunPlace(t).hourAngleOffset, SunHourAngleOffset(t));
        EXPECT_EQ(MoonPlace(t).declination, MoonDeclination(t));
        EXPECT_EQ(MoonPlace(t).hourAngleOffset, MoonHourAngleOffset(t));
    }
}

TEST(RiseSet, searchIsOutNearFullMoonAndTheRefinedTimeIsNot)
{
    const Hours TD(9);
    const DegMin longitude(139.4);
    int wrong = 0;
    for (double date = 45292; date < 45292 + 366; date += 1) {
        DegMin latitude(35.2);
        const DateTime found = MoonRiseSearch(date, TD, latitude, longitude);
        const auto refined = RefinedMoonRise(date, TD, DegMin(35.2), longitude);
        if (found != 0 && refined && std::fabs(found - *refined) * 1440 <= 20) {
            EXPECT_NEAR(found, *refined, 10.0 / 1440);
        } else if (found != 0 || refined) {
            ++wrong;
            EXPECT_NEAR(MoonAge(date + 0.5), 15, 3);
        }
    }
    EXPECT_GT(wrong, 2);
    EXPECT_LT(wrong, 30);
}

TEST(RiseSet, southernWholeDegreesFallBelowTheirDegree)
{
    const double date = 45292 + 354;
    DegMin whole(-60), almost(-60.0001), equator;
    const double apart = SunRiseSearch(date, {}, whole, {}) - SunRiseSearch(date, {}, almost, {});
    EXPECT_GT(std::fabs(apart) * 1440, 2);
    EXPECT_NEAR(*RefinedSunRise(date, {}, DegMin(-60), {}),
                *RefinedSunRise(date, {}, DegMin(-60.0001), {}), 1e-5);
    EXPECT_NO_THROW(MoonRiseSearch(date, {}, equator, {})) << "a cosine of 0 is stepped around";
}

} // namespace
} // namespace NavFunc113
