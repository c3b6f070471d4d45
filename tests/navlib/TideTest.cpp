// SPDX-License-Identifier: MIT
#include "navlib/tide.h"

#include "tests/navlib/ByNumbers.h"

#include <gtest/gtest.h>

namespace NavFunc113
{
namespace
{

TEST(Tide, wholeTurnsAreAddedUntilTheThresholdIsPassed)
{
    const struct {
        const char* fault;
        Degrees (*change)(Degrees, Degrees);
        double thisDay, nextDay, change24;
    } rows[] = {
        {"kept above 600", SemidiurnalChange, 700, 0, 700},
        {"one turn", SemidiurnalChange, 335, 0, 695},
        {"three turns: across 360", SemidiurnalChange, 10, 354, 736},
        {"exactly 600 is not enough", SemidiurnalChange, 240, 0, 960},
        {"exactly 600 is not enough at once", SemidiurnalChange, 600, 0, 960},
        {"beyond three turns it stays", SemidiurnalChange, -500, 0, -500},
        {"kept above 300", DiurnalChange, 335, 0, 335},
        {"one turn", DiurnalChange, 1, 1, 360},
        {"two turns: across 360", DiurnalChange, 10, 35 + 350, 345},
        {"exactly 300 is not enough", DiurnalChange, 300, 0, 660},
        {"no third turn", DiurnalChange, -500, 0, -500},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_DOUBLE_EQ(by(row.change)(row.thisDay, row.nextDay), row.change24);
    }
}

// Constituents worked by hand: a wave of 30 degrees an hour, amplitude 2, phase 60, with
// quarter-diurnal 0.1 at 30 degrees and sixth-diurnal 0.05 at 40.
TEST(Tide, harmonicSumInEveryQuadrantOfTheSemidiurnalWave)
{
    const TideConstituents station{
        {{Degrees(0), 0}, {Degrees(60), 2}, {Degrees(0), 0}, {Degrees(0), 0}}};
    const DailyFactors day{{{Degrees(0), 1}, {Degrees(0), 1}, {Degrees(0), 1}, {Degrees(0), 1}}};
    const ShallowWaterTerms shallow{Degrees(30), 0.1, Degrees(40), 0.05};
    const struct {
        const char* fault;
        double t;
        double sum;
    } rows[] = {
        {"60 degrees", 0, 1 + 0.4 * -0.8660254 + 0.4 * -0.7660444},
        {"0 degrees: no sine to divide by", 2, 2 + 0.4 * 0.8660254 + 0.4 * 0.7660444},
        {"-90 degrees: no cosine to divide by", 5, 0.4 * -0.8660254 + 0.4 * -0.6427876},
        {"180 degrees: the sine is a rounding error", 8, -2 + 0.4 * 0.8660254 + 0.4 * -0.7660444},
        {"-120 degrees: R of the quotient form is negative", 6,
         -1 + 0.4 * -0.8660254 + 0.4 * 0.7660444},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_NEAR(TideHarmonicSum(Hours(row.t), station, day, day, shallow), row.sum, 1e-6);
    }
    EXPECT_DOUBLE_EQ(TideHarmonicSum(Hours(3), {}, day, day, shallow), 0) << "no wave at all";
}

TEST(Tide, factorsAreInterpolatedForwardsAndEveryConstituentCounts)
{
    // Diurnal waves of 15 degrees an hour; at noon a cosine of -1 at phase 0, 1 at phase 180.
    const DailyFactors thisDay{
        {{Degrees(0), 1}, {Degrees(0), 1}, {Degrees(10), 1.00}, {Degrees(20), 0.80}}};
    const DailyFactors nextDay{
        {{Degrees(0), 1}, {Degrees(0), 1}, {Degrees(10), 1.24}, {Degrees(20), 0.60}}};
    const TideConstituents K1{
        {{Degrees(0), 0}, {Degrees(0), 0}, {Degrees(-10), 1}, {Degrees(0), 0}}};
    const TideConstituents O1{
        {{Degrees(0), 0}, {Degrees(0), 0}, {Degrees(0), 0}, {Degrees(160), 3}}};
    const TideConstituents M2{
        {{Degrees(90), 3}, {Degrees(0), 0}, {Degrees(0), 0}, {Degrees(0), 0}}};
    EXPECT_NEAR(TideHarmonicSum(Hours(12), K1, thisDay, nextDay, {}), -1.12, 1e-12);
    EXPECT_NEAR(TideHarmonicSum(Hours(12), O1, thisDay, nextDay, {}), 2.10, 1e-12);
    EXPECT_NEAR(TideHarmonicSum(Hours(3), M2, thisDay, nextDay, {}), 3, 1e-12)
        << "the angle decreases: 90 degrees less 3 hours of 30";
}

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
    for (int i = 0; i < samplesOfDay; ++i)
        EXPECT_NEAR(values[static_cast<std::size_t>(i)],
                    TideHarmonicSum(Hours(i / 2.0), station, thisDay, nextDay, shallow) + 1.1,
                    1e-12);
}

TEST(Tide, searchStartsAtHalfPastMidnightWithItsOwnBounds)
{
    TideValues values{};
    values.fill(1);
    const TideExtremes earlier{9, Hours(7.5), -9, Hours(11.5)};

    values[0] = 4;
    values[20] = 3;
    values[30] = 3;
    values[40] = 0.5;
    values[48] = 0.25;
    TideExtremes found = SearchHighestLowest(values, earlier);
    EXPECT_EQ(found.highest, 3) << "00:00 takes no part";
    EXPECT_EQ(found.timeHigh, Hours(10)) << "the earlier of two equal ones";
    EXPECT_EQ(found.lowest, 0.25);
    EXPECT_EQ(found.timeLow, Hours(24));

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

} // namespace
} // namespace NavFunc113
