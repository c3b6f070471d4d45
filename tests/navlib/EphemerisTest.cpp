// SPDX-License-Identifier: MIT
#include "navlib/ephemeris.h"

#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "navlib/ephemeris_series.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>
#include <span>

namespace NavFunc113
{
namespace
{

DateTime at(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return MakeDateTime({year, month, day}, hour * 3600 + minute * 60 + second);
}

TEST(Ephemeris, julianDay)
{
    EXPECT_EQ(JulianDay(at(2000, 1, 1, 12)), 2451545.0) << "January belongs to the year before";
    EXPECT_EQ(JulianDay(at(1999, 2, 28)), 2451237.5);
    EXPECT_EQ(JulianDay(at(2000, 3, 1, 6)), 2451604.75) << "the day after February 29";
    EXPECT_EQ(JulianDay(at(1900, 1, 1)), 2415020.5);
    EXPECT_NEAR(JulianDay(at(2024, 12, 31) + 0.9999999), 2460676.4999999, 1e-8)
        << "a last tenth of a second must not be counted a day on";
    EXPECT_EQ(JulianDay(-0.5), 0);
    EXPECT_THROW(JulianDay(std::numeric_limits<double>::quiet_NaN()), ArithmeticError);
    EXPECT_THROW(JulianDay(3e6), ArithmeticError);
}

TEST(Ephemeris, seriesHoldEveryTerm)
{
    // Sums of a column made apart from the tables: a digit lost in any row shows.
    const auto sum = [](std::span<const SeriesTerm> terms, auto column) {
        double total = 0;
        for (const SeriesTerm& term : terms)
            total += term.*column;
        return total;
    };
    const struct {
        std::span<const SeriesTerm> terms;
        double amplitude, power, rate, phase;
    } rows[] = {
        {sunLongitudeTerms, 1.9428, 1, 865446.20, 3014.14},
        {sunDistanceTerms, 0.016876, 1, 723502.10, 1519.06},
        {moonLongitudeTerms, 9.2098, 0, 48731502.128, 9320.463},
        {moonLatitudeTerms, 0.9556, 0, 40229453.34, 6791.68},
    };
    for (const auto& row : rows) {
        EXPECT_NEAR(sum(row.terms, &SeriesTerm::amplitude), row.amplitude, 1e-9);
        EXPECT_EQ(sum(row.terms, &SeriesTerm::power), row.power);
        EXPECT_NEAR(sum(row.terms, &SeriesTerm::rate), row.rate, 1e-4);
        EXPECT_NEAR(sum(row.terms, &SeriesTerm::phase), row.phase, 1e-6);
    }
}

TEST(Ephemeris, sunOfTheWorkedExamples)
{
    // Almanac figures of published exercises, minutes with one decimal.
    const struct {
        DateTime utc;
        double GHA, declination;
    } rows[] = {
        {at(2020, 12, 17, 11, 45, 11), 357.132, -23.226},
        {at(2020, 12, 17, 15, 30, 0), 53.243, -23.228},
        {at(1990, 12, 16, 10, 49, 6), 343.238, -23.189},
        {at(1990, 12, 16, 14, 37, 10), 40.237, -23.193},
        {at(2021, 5, 29, 20, 7, 30), 122.303, 21.448},
    };
    for (const auto& row : rows) {
        EXPECT_NEAR(60 * (DegMinToDeg(SunGHA(row.utc)) - DegMinToDeg(DegMin(row.GHA))).value(), 0,
                    0.3);
        EXPECT_NEAR(
            60 * (DegMinToDeg(SunDeclination(row.utc)) - DegMinToDeg(DegMin(row.declination)))
                     .value(),
            0, 0.15);
    }
}

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

TEST(Ephemeris, ageOfTheMoon)
{
    // New, first quarter, full and last quarter of a published calendar of phases (2024).
    const auto age = [](int month, int day, int hour, int minute) {
        return MoonAge(at(2024, month, day, hour, minute));
    };
    EXPECT_NEAR(std::remainder(age(1, 11, 11, 57), 30), 0, 0.01);
    EXPECT_NEAR(age(1, 18, 3, 53), 7.5, 0.01);
    EXPECT_NEAR(age(1, 25, 17, 54), 15, 0.01);
    EXPECT_NEAR(age(2, 2, 23, 18), 22.5, 0.01);
}

} // namespace
} // namespace NavFunc113
