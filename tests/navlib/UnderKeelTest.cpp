// SPDX-License-Identifier: MIT
#include "navlib/ship/under_keel.h"

#include "navlib/arithmetic_error.h"

#include <gtest/gtest.h>

#include <cmath>

namespace NavFunc113
{
namespace
{

TEST(UnderKeel, squatOfPublishedTables)
{
    // tstarmet.com/squat, open water, Cb 0.9; confined water has twice of it.
    struct Row {
        double speed, squat;
    };
    for (const Row& row : {Row{4, 0.144}, Row{8, 0.576}, Row{12, 1.296}, Row{16, 2.304}}) {
        EXPECT_NEAR(Squat(SquatFormula::Open, 0.9, Knots(row.speed)).value(), row.squat, 1e-12);
        EXPECT_NEAR(Squat(SquatFormula::Confined, 0.9, Knots(row.speed)).value(), 2 * row.squat,
                    1e-12);
    }
}

TEST(UnderKeel, aChannelIsNotWithoutItsBlockage)
{
    // By hand: 1/10 filled, (1/9)^(2/3) = 0.231120; 12^2.08 = 175.668; 0.9 / 30 x both.
    const SquareMetres midship(350), channel(3500);
    EXPECT_NEAR(Blockage(midship, channel), 0.1, 1e-12);
    EXPECT_NEAR(SquatInChannel(0.9, Knots(12), midship, channel).value(), 1.218, 0.0005);
    // Half the channel: the return flow is that of the whole, 5.3 m, what the formula gives where
    // its blockage is left out.
    EXPECT_NEAR(SquatInChannel(0.9, Knots(12), midship, SquareMetres(700)).value(), 5.270, 0.0005);
    for (const double none : {350.0, 349.0, 0.0, -1.0})
        EXPECT_THROW(SquatInChannel(0.9, Knots(12), midship, SquareMetres(none)), ArithmeticError);
    EXPECT_THROW(SquatInChannel(0.9, Knots(12), SquareMetres(0), channel), ArithmeticError);
}

TEST(UnderKeel, speedsLeadBackToTheirSquat)
{
    const SquareMetres midship(354), channel(2100);
    for (const double knots : {0.0, 0.5, 7.0, 19.9}) {
        for (const auto formula : {SquatFormula::Open, SquatFormula::Confined})
            EXPECT_NEAR(SpeedOfSquat(formula, 0.82, Squat(formula, 0.82, Knots(knots))).value(),
                        knots, 1e-9);
        const Metres squat = SquatInChannel(0.82, Knots(knots), midship, channel);
        EXPECT_NEAR(SpeedOfSquatInChannel(0.82, squat, midship, channel).value(), knots, 1e-9);
    }
    EXPECT_THROW(SpeedOfSquat(SquatFormula::Open, 0, Metres(1)), ArithmeticError);
    EXPECT_THROW(SpeedOfSquat(SquatFormula::Open, 0.8, Metres(-0.01)), ArithmeticError);
    EXPECT_THROW(SpeedOfSquatInChannel(0.8, Metres(-0.01), midship, channel), ArithmeticError);
}

TEST(UnderKeel, linesOfACompanysForm)
{
    // 0.84 m at 3 degrees belongs to a breadth of 32.1 to 32.2 m.
    EXPECT_NEAR(ListSinkage(Metres(32.2), Degrees(3)).value(), 0.84, 0.005);
    EXPECT_EQ(ListSinkage(Metres(32.2), Degrees(-3)), ListSinkage(Metres(32.2), Degrees(3)));
    EXPECT_NEAR(UncertaintyOf(ZoneOfConfidence::A1).of(Metres(18)).value(), 0.68, 1e-12);
    EXPECT_NEAR(UncertaintyOf(ZoneOfConfidence::A2).of(Metres(18)).value(), 1.36, 1e-12);
    EXPECT_NEAR(UncertaintyOf(ZoneOfConfidence::B).of(Metres(18)).value(), 1.36, 1e-12);
    EXPECT_NEAR(UncertaintyOf(ZoneOfConfidence::C).of(Metres(18)).value(), 2.90, 1e-12);
    EXPECT_NEAR(UncertaintyOf(ZoneOfConfidence::C).of(Metres(-1)).value(), 2.05, 1e-12)
        << "a drying height is no surer than a depth";
}

TEST(UnderKeel, densityByAllowanceAndOfABox)
{
    const TonsPerCubicMetre sea(1.025), dock(1.005), fresh(1.000);
    EXPECT_NEAR(DensitySinkage(Metres(0.25), sea, fresh).value(), 0.25, 1e-12);
    EXPECT_NEAR(DensitySinkage(Metres(0.25), sea, dock).value(), 0.20, 1e-12);
    EXPECT_NEAR(DensitySinkage(Metres(0.25), dock, sea).value(), -0.20, 1e-12);
    // A box of 11 m: its volume grows by 1025 / 1000.
    EXPECT_NEAR(DensitySinkageOfBox(Metres(11), sea, fresh).value(), 0.275, 1e-12);
    EXPECT_THROW(DensitySinkageOfBox(Metres(11), sea, TonsPerCubicMetre(0)), ArithmeticError);
}

TEST(UnderKeel, hullAndChannel)
{
    // 200 x 32 x 11 m of sea water weigh 72160 t.
    EXPECT_NEAR(BlockCoefficient(0.8 * 72160, TonsPerCubicMetre(1.025), Metres(200), Metres(32),
                                 Metres(11)),
                0.8, 1e-12);
    EXPECT_THROW(BlockCoefficient(1, TonsPerCubicMetre(1.025), Metres(0), Metres(32), Metres(11)),
                 ArithmeticError);
    EXPECT_NEAR(ChannelSection(Metres(100), 3, Metres(10)).value(), 1300, 1e-12)
        << "100 x 10 and two triangles of 30 x 10 / 2";
    EXPECT_NEAR(WidthOfInfluence(1, Metres(30)).value(), 211.2, 1e-9);
    EXPECT_GT(WidthOfInfluence(0.6, Metres(30)), WidthOfInfluence(0.8, Metres(30)))
        << "a fine ship moves more width";
    // 19.4384 kn are 10 m/s, and sqrt(9.80665 x 10.197162) is 10.
    EXPECT_NEAR(DepthFroudeNumber(Knots(19.4384449), Metres(10.1971621)), 1, 1e-8);
    EXPECT_THROW(DepthFroudeNumber(Knots(1), Metres(0)), ArithmeticError);
}

} // namespace
} // namespace NavFunc113
