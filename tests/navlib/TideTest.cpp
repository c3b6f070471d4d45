// SPDX-License-Identifier: MIT
#include "navlib/sea/tide.h"

#include "navlib/angles.h"
#include "navlib/sea/tide_turns.h"

#include <gtest/gtest.h>

#include <cmath>

namespace NavFunc113
{
namespace
{

TEST(Tide, halfHourlyValuesAreTheSumsOfTheirTimes)
{
    const TideConstituents station{{{Degrees(134.6), 0.449},
                                    {Degrees(172.3), 0.221},
                                    {Degrees(174.7), 0.248},
                                    {Degrees(146.4), 0.194}}};
    const DailyFactors thisDay{
        {{Degrees(30), 1.09}, {Degrees(15), 0.70}, {Degrees(170), 1.32}, {Degrees(223), 1.25}}};
    const DailyFactors nextDay{
        {{Degrees(56), 1.05}, {Degrees(17), 0.75}, {Degrees(170), 1.30}, {Degrees(251), 1.21}}};
    const ShallowWaterTerms shallow{Degrees(220), 0.0169, Degrees(25), 0.005};
    const TideValues values = TideDay(station, thisDay, nextDay, shallow).halfHourly(1.1);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const Hours t(static_cast<double>(i) / 2);
        EXPECT_NEAR(values[i], TideHarmonicSum(t, station, thisDay, nextDay, shallow) + 1.1, 1e-12);
    }
}

TEST(Tide, searchStartsAtHalfPastMidnightWithItsOwnBounds)
{
    TideValues values{};
    values.fill(1);
    const TideExtremes earlier{9, Hours(7.5), -9, Hours(11.5)};

    values[0] = 4;
    values[20] = 3;
    values[30] = 3 + 5e-10;
    values[40] = 0.5;
    values[44] = 0.25;
    values[48] = 0.25 - 5e-10;
    TideExtremes found = SearchHighestLowest(values, earlier);
    EXPECT_EQ(found.highest, 3) << "00:00 takes no part";
    EXPECT_EQ(found.timeHigh, Hours(10)) << "the earlier of two that differ by rounding";
    EXPECT_EQ(found.lowest, 0.25);
    EXPECT_EQ(found.timeLow, Hours(22));

    values[48] = 0.2;
    EXPECT_EQ(SearchHighestLowest(values, earlier).timeLow, Hours(24)) << "24:00 does";

    values.fill(-1);
    found = SearchHighestLowest(values, earlier);
    EXPECT_EQ(found.highest, 0) << "a stream that never turns";
    EXPECT_EQ(found.timeHigh, Hours(7.5)) << "keeps the time it had";
    EXPECT_EQ(found.timeLow, Hours(0.5));

    values.fill(6);
    found = SearchHighestLowest(values, earlier);
    EXPECT_EQ(found.lowest, 5);
    EXPECT_EQ(found.timeLow, Hours(11.5));
}

// A wave of 36 minutes, the shortest of a harbour: its turns are 18 minutes apart.
TEST(TurnsOf, everyTurnOfAShortWaveIsFoundOnce)
{
    for (const double first : {0.02, 0.17, 0.28}) {
        const auto turns =
            TurnsOf([&](Hours t) { return 3 + std::cos(2 * Pi() * (t.value() - first) / 0.6); });
        ASSERT_EQ(turns.size(), 80u);
        for (std::size_t i = 0; i < turns.size(); ++i) {
            EXPECT_NEAR(turns[i].time.value(), first + 0.3 * static_cast<double>(i), 1.0 / 3600);
            EXPECT_EQ(turns[i].isHigh, i % 2 == 0);
            EXPECT_NEAR(turns[i].value, i % 2 == 0 ? 4 : 2, 1e-5);
        }
    }
    EXPECT_EQ(TurnsOf([](Hours t) { return -t.value() * t.value(); }).size(), 1u) << "at midnight";
    EXPECT_TRUE(TurnsOf([](Hours) { return 1.0; }).empty()) << "stand of the tide all day";
}

TEST(PassagesOf, aHeightIsPassedToTheSecond)
{
    for (double wanted = 0.013; wanted < 24; wanted += 0.777)
        for (const double sign : {1.0, -1.0}) {
            const auto passages =
                PassagesOf([&](Hours t) { return sign * t.value(); }, sign * wanted);
            ASSERT_EQ(passages.size(), 1u);
            EXPECT_NEAR(passages[0].time.value(), wanted, 1.0 / 3600);
            EXPECT_EQ(passages[0].isRising, sign > 0);
        }
    EXPECT_TRUE(PassagesOf([](Hours) { return 1.0; }, 1).empty()) << "reached and not passed";
}

TEST(TurnsOf, aTurnThatIsNoParabolaIsFoundToo)
{
    // A parabola through the heights ten minutes around 05:03 has its vertex 52 seconds too early.
    const Hours time(5.05);
    for (const double sign : {1.0, -1.0}) {
        const auto turns = TurnsOf([&](Hours t) { return -sign * std::fabs((t - time).value()); });
        ASSERT_EQ(turns.size(), 1u);
        EXPECT_EQ(turns[0].isHigh, sign > 0);
        EXPECT_NEAR((turns[0].time - time).value() * 3600, 0, 5);
    }
}

} // namespace
} // namespace NavFunc113
