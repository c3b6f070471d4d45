// SPDX-License-Identifier: MIT
#include "navlib/angles.h"

#include "tests/navlib/FaultOf.h"

#include "tests/navlib/ByNumbers.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace NavFunc113
{
namespace
{

using Condition = ArithmeticError::Condition;

TEST(Angles, packedValuesAndDecimalDegrees)
{
    const struct {
        const char* fault;
        double packed;
        double degrees;
    } rows[] = {{"minutes divided by 100, not 60", 35.305, 35.508333333333},
                {"floor of a negative value", -35.305, -35.508333333333},
                {"sign lost below one degree", -0.30, -0.5},
                {"zero", 0, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_NEAR(by(DegMinToDeg)(row.packed), row.degrees, 1e-11);
        EXPECT_NEAR(by(DegToDegMin)(row.degrees), row.packed, 1e-11);
    }
    EXPECT_NEAR(by(DegMinToDeg)(10.6), 11, 1e-11) << "60 minutes and more are not refused";
    EXPECT_NEAR(SumDegMin({DegMin(0.305), DegMin(0.305)}).packed(), 1.01, 1e-11)
        << "minutes carry at 60";
    EXPECT_NEAR(SumDegMin({DegMin(1.00), DegMin(-0.30), DegMin(-0.45)}).packed(), -0.15, 1e-11);
    EXPECT_EQ(SumDegMin({}).packed(), 0);
}

TEST(Angles, arcTan2KnowsTheQuadrant)
{
    const double pi = Pi();
    const struct {
        double x, y, angle;
    } rows[] = {{1, 1, pi / 4},
                {-1, 1, 3 * pi / 4},
                {-1, -1, -3 * pi / 4},
                {1, -1, -pi / 4},
                {1, 0, 0},
                {-1, 0, pi},
                {-1, -0.0001, -pi + 0.0001},
                {0, 2, pi / 2},
                {0, -2, -pi / 2},
                {0, 0, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.x << ", " << row.y);
        EXPECT_NEAR(ArcTan2(double(row.x), row.y).value(), row.angle, 1e-10);
    }
    double x = 0;
    ArcTan2(x, 0);
    EXPECT_EQ(x, 1e-11) << "the caller's zero is replaced";
}

TEST(Angles, inverseCosineAndSine)
{
    EXPECT_EQ(ArcCos(1).value(), 0);
    EXPECT_EQ(ArcCos(-1).value(), Pi());
    EXPECT_NEAR(ArcCos(0.5).value(), Pi() / 3, 1e-15);
    EXPECT_NEAR(ArcCos(-0.5).value(), 2 * Pi() / 3, 1e-15);
    EXPECT_NEAR(by(ArcSin)(-0.5), -Pi() / 6, 1e-15);
    EXPECT_EQ(faultOf([] { ArcCos(0); }), Condition::DivisionByZero);
    EXPECT_EQ(faultOf([] { ArcCos(1.0000001); }), Condition::InvalidArgument);
    EXPECT_EQ(faultOf([] { by(ArcSin)(-1); }), Condition::DivisionByZero);
    EXPECT_EQ(faultOf([] { ArcCos(std::numeric_limits<double>::quiet_NaN()); }),
              Condition::InvalidArgument);
    EXPECT_NEAR(Log10(0.001), -3, 1e-15);
    EXPECT_EQ(faultOf([] { Log10(0); }), Condition::InvalidArgument);
}

TEST(Angles, interpolation)
{
    EXPECT_NEAR(InterpolateLagrange(3, {{0, 0}, {1, 1}, {2, 4}}).value(), 9, 1e-12)
        << "a parabola is carried on beyond its points";
    EXPECT_FALSE(InterpolateLagrange(1, {{0, 5}}));
    EXPECT_NEAR(InterpolateLagrange(1.5, {{1, 10}, {2, 20}, {std::nullopt, 7}, {4, 99}}).value(),
                15, 1e-12)
        << "an absent coordinate ends the table";
    EXPECT_EQ(faultOf([] { InterpolateLagrange(1, {{2, 1}, {2, 3}}); }), Condition::DivisionByZero);
}

TEST(Angles, pickItemCountsFromOne)
{
    const std::array months{0.5, 0.4, 0.3};
    EXPECT_EQ(PickItem<double>(1, months), 0.5);
    EXPECT_EQ(PickItem<double>(3, months), 0.3);
    for (int outside : {0, 4, -1})
        EXPECT_EQ(faultOf([&] { PickItem<double>(outside, months); }),
                  Condition::SubscriptOutOfRange);
    EXPECT_EQ(faultOf([&] { PickItem<double>(-32768, months); }), Condition::Overflow);
}

} // namespace
} // namespace NavFunc113
