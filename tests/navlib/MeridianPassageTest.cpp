// SPDX-License-Identifier: MIT
#include "navlib/sky/meridian_passage.h"

#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "navlib/sky/ephemeris.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

namespace NavFunc113
{
namespace
{

using korvel::testing::golden;
using korvel::testing::Golden;

TEST(MeridianPassage, latitudes)
{
    for (const Golden& row : golden("meridian_latitude")) {
        const Degrees declination = row.degrees("declination"), altitude = row.degrees("altitude");
        const Degrees hourAngle = row.degrees("minutes") / 4;
        const auto latitudes = LatitudesByAltitude(declination, altitude, hourAngle);
        EXPECT_EQ(IsNearMeridian(hourAngle, altitude), row.tick("near")) << row;
        for (const bool south : {true, false}) {
            const char* side = south ? "south" : "north";
            if (!row.has(side)) continue;
            ASSERT_TRUE(latitudes) << row;
            const Degrees found = south ? latitudes->bodyToTheSouth : latitudes->bodyToTheNorth;
            EXPECT_NEAR(found.value(), row.number(side), 2e-6) << row;
            if (row.number("minutes") != 0) continue;
            const Degrees atNoon = MeridianLatitude(declination, altitude, south);
            EXPECT_NEAR(atNoon.value(), row.number(side), 1e-5) << row;
        }
    }
    EXPECT_FALSE(LatitudesByAltitude(Degrees(60), Degrees(65), Degrees(90)))
        << "due east no body stands as high as its declination";
}

TEST(MeridianPassage, noonOfAMovingShip)
{
    const DateTime morning = MakeDateTime({2020, 12, 17}, 11.75 * 3600);
    const Motion motion{Degrees(271), Knots(8)};
    const Position dr{DegMinToDeg(DegMin(14.02)), DegMinToDeg(DegMin(-52.11))};
    const DateTime noon = LocalApparentNoon(morning, dr, motion);
    const Position then = Advanced(dr, motion, Hours((noon - morning) * 24));
    EXPECT_NEAR(WithinHalfTurn(DegMinToDeg(SunGHA(noon)) + then.longitude).value(), 0, 0.001);
    EXPECT_NEAR((noon - morning) * 24, 3.68, 0.05);
    EXPECT_NEAR(GreatestAltitudeDelay(Degrees(40), Degrees(-20), 0, -20), 367.7, 0.5);
}

} // namespace
} // namespace NavFunc113
