// SPDX-License-Identifier: MIT
#include "navlib/wind.h"

#include "tests/navlib/FaultOf.h"

#include "tests/navlib/ByNumbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace NavFunc113
{
namespace
{

using Condition = ArithmeticError::Condition;
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// Triangles worked by hand: 3-4-5 sides and right angles.
TEST(Wind, trueWind)
{
    const struct {
        const char* fault;
        double course;
        double ship;
        double relative;
        double apparent;
        double direction;
        double speed;
        const char* name;
    } rows[] = {
        {"stopped ship, port side", 10, 0, -30, 10, 340, 10, "NNW"},
        {"right angle to starboard", 0, 3, 53.13010235415598, 5, 90, 4, "East"},
        {"right angle to port", 0, 3, -53.13010235415598, 5, 270, 4, "West"},
        {"head wind", 300, 10, 0, 30, 300, 20, "WNW"},
        {"abeam", 350, 10, 90, 10, 125, 14.142135624, "SE"},
        {"calm: the ship's own wind", 200, 12, 0, 12, 200, 0, "SSW"},
        {"no wind at all", 90, 0, 0, 0, 90, 0, "East"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_NEAR(by(TrueWindDirection)(row.course, row.ship, row.relative, row.apparent),
                    row.direction, 1e-8);
        EXPECT_NEAR(by(TrueWindSpeed)(row.ship, row.relative, row.apparent), row.speed, 2e-5);
        EXPECT_EQ(TrueWindName(Degrees(row.course), Knots(row.ship), Degrees(row.relative),
                               Knots(row.apparent)),
                  row.name);
    }
    EXPECT_EQ(faultOf([] { by(TrueWindSpeed)(infinity, 0, infinity); }),
              Condition::InvalidArgument);
    EXPECT_EQ(faultOf([] { by(TrueWindSpeed)(1e200, 0, 0); }), Condition::Overflow);
    EXPECT_EQ(faultOf([] { TrueWindName({}, {}, Degrees(nan), Knots(1)); }),
              Condition::InvalidArgument);
}

TEST(Wind, compassNameRoundsTheCallersDirection)
{
    const struct {
        double direction;
        const char* name;
        double left;
    } rows[] = {
        {0, "North", 0},     {11.4, "North", 11}, {11.6, "NNE", 12},     {33.4, "NNE", 33},
        {34, "NE", 34},      {348.4, "NNW", 348}, {348.6, "North", 349}, {359.9, "North", 0},
        {360, "North", 0},   {180, "South", 180}, {12.5, "NNE", 12},     {11.5, "NNE", 12},
        {725.2, "North", 5}, {-11, "North", -11}, {-365, "North", -5},   {258.75, "West", 259},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.direction);
        Degrees direction(row.direction);
        EXPECT_EQ(CompassName(direction), row.name);
        EXPECT_EQ(direction.value(), row.left);
    }
    const auto fault = [](double number) {
        Degrees direction(number);
        return faultOf([&] { CompassName(direction); });
    };
    EXPECT_EQ(fault(-20), Condition::SubscriptOutOfRange);
    EXPECT_EQ(fault(3e9), Condition::Overflow);
    EXPECT_EQ(fault(-infinity), Condition::Overflow);
    EXPECT_EQ(fault(nan), Condition::InvalidArgument);
}

TEST(Wind, beaufortBoundsAreInclusiveBelow)
{
    const double bounds[] = {1, 4, 7, 11, 17, 22, 28, 34, 41};
    int number = 0;
    for (const double bound : bounds) {
        EXPECT_EQ(BeaufortNumber(Knots(std::nextafter(bound, 0))), number);
        EXPECT_EQ(BeaufortNumber(Knots(bound)), ++number);
    }
    EXPECT_EQ(BeaufortNumber(Knots(-1)), 0);
    EXPECT_EQ(BeaufortNumber(Knots(infinity)), 9);
    EXPECT_EQ(faultOf([] { BeaufortNumber(Knots(nan)); }), Condition::InvalidArgument);
}

} // namespace
} // namespace NavFunc113
