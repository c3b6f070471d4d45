// SPDX-License-Identifier: MIT
#include "routes/route/LegPoints.h"
#include "app/reading/Format.h"
#include "navlib/angles.h"
#include "navlib/units.h"
#include "routes/route/Route.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using NavFunc113::DegToDegMin;
using NavFunc113::GeoPoint;
using NavFunc113::Miles;

GeoPoint at(double latitude, double longitude)
{
    return {DegToDegMin(Degrees(latitude)), DegToDegMin(Degrees(longitude))};
}

/// "10.00000 rhumb, 20.00000 tangent circle": where the points lie, and how one comes to them.
std::string described(const GeoPoint& from, const GeoPoint& to, LegKind kind,
                      const CircleStep& step = {}, double limit = 0)
{
    std::string text;
    for (const LegPoint& point : pointsOfLeg(from, to, kind, step, DegToDegMin(Degrees(limit)))) {
        text += (text.empty() ? "" : ", ") + Format(DegMinToDeg(point.at.longitude), "0.0####");
        if (point.isTangent) text += " tangent";
        text += point.leg == LegKind::Rhumb ? " rhumb" : " circle";
    }
    return text;
}

// Along the equator, where a circle's longitudes are its miles; an end takes in 0.0001 degrees.
TEST(LegPoints, standOnWholeMeridiansOrMilesAndNotBesideTheEnds)
{
    const CircleStep ten{Degrees(10), std::nullopt}, sixty{std::nullopt, Miles(60)};
    const struct {
        double from, to;
        CircleStep step;
        const char* points;
    } cases[] = {
        {5, 31, ten, "10.0 circle, 20.0 circle, 30.0 circle, 31.0 circle"},
        {31, 5, ten, "30.0 circle, 20.0 circle, 10.0 circle, 5.0 circle"},
        {10, 30, ten, "20.0 circle, 30.0 circle"},
        {165, -171, ten, "170.0 circle, 180.0 circle, -171.0 circle"},
        {9.999905, 20.000095, ten, "20.0001 circle"},
        {9.999895, 20.000105, ten, "10.0 circle, 20.0 circle, 20.00011 circle"},
        {30.000095, 19.999905, ten, "19.99991 circle"},
        {30.000105, 19.999895, ten, "30.0 circle, 20.0 circle, 19.9999 circle"},
        {5, 31, {Degrees(0), std::nullopt}, "31.0 circle"},
        {5, 31, {}, "31.0 circle"},
        {-3.5, -1.4, sixty, "-2.5 circle, -1.5 circle, -1.4 circle"},
        {-3.5, -0.5, sixty, "-2.5 circle, -1.5 circle, -0.5 circle"},
        {0, 1.000095, sixty, "1.0001 circle"},
        {0, 1.000105, sixty, "1.0 circle, 1.00011 circle"},
        {0, 3, {std::nullopt, Miles(0)}, "3.0 circle"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(described(at(0, each.from), at(0, each.to), LegKind::GreatCircle, each.step),
                  each.points)
            << each.from << " to " << each.to;
}

TEST(LegPoints, aCompositeLegTouchesItsLimitAndARhumbLineNothing)
{
    // The circle from 41 N touches 44 N after 25.81921 degrees: cos = tan 41 / tan 44.
    const GeoPoint west = at(41, -72), east = at(41, 0), onLimit = at(44, -36);
    const CircleStep step{Degrees(20), std::nullopt};
    const auto composite = LegKind::Composite;
    EXPECT_EQ(described(west, east, composite, step, 44),
              "-60.0 circle, -46.18079 tangent circle, -25.81921 tangent rhumb, -20.0 circle, "
              "0.0 circle");
    EXPECT_EQ(described(west, onLimit, composite, step, 44),
              "-60.0 circle, -46.18079 tangent circle, -36.0 rhumb");
    EXPECT_EQ(described(onLimit, east, composite, step, 44),
              "-25.81921 tangent rhumb, -20.0 circle, 0.0 circle");
    EXPECT_EQ(described(onLimit, at(44, -30), composite, step, 44), "-30.0 rhumb");
    for (const double noLimit : {0.0, 90.0, -90.0, -44.0})
        EXPECT_EQ(described(west, east, composite, step, noLimit),
                  "-60.0 circle, -40.0 circle, -20.0 circle, 0.0 circle")
            << noLimit;
    EXPECT_EQ(described(west, east, LegKind::GreatCircle, step, 44),
              "-60.0 circle, -40.0 circle, -20.0 circle, 0.0 circle");
    EXPECT_EQ(described(west, east, LegKind::Rhumb, step, 44), "0.0 rhumb");
}

} // namespace
} // namespace korvel
