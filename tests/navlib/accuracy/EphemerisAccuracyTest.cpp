// SPDX-License-Identifier: MIT
#include "navlib/angles.h"
#include "navlib/ephemeris.h"
#include "navlib/rise_set.h"
#include "tests/navlib/accuracy/ErfaReference.h"

#include <gtest/gtest.h>

#include <cmath>

namespace NavFunc113
{
namespace
{

using erfareference::Body;

double minutesApart(DegMin a, double b)
{
    return 60 * fabs(WithinHalfTurn(DegMinToDeg(a) - Degrees(b))).value();
}

TEST(EphemerisAccuracy, placesStayWithinTheStatedErrors)
{
    for (double t = 36526; t < 36526 + 365.25 * 51; t += 37.123) {
        const auto sun = erfareference::apparentPlace(Body::Sun, t);
        const auto moon = erfareference::apparentPlace(Body::Moon, t);
        EXPECT_LT(minutesApart(SunGHA(t), sun.GHA), 0.15);
        EXPECT_LT(minutesApart(SunDeclination(t), sun.declination), 0.07);
        EXPECT_LT(minutesApart(MoonGHA(t), moon.GHA), 0.81);
        EXPECT_LT(minutesApart(MoonDeclination(t), moon.declination), 0.37);
    }
}

TEST(EphemerisAccuracy, refinedEventsAgreeWithAnIndependentSearch)
{
    const auto horizon = erfareference::Horizon::AsTheLibrary;
    for (double day = 40179; day < 40179 + 3650; day += 173) {
        for (const auto& [TD, latitude, longitude] :
             {std::array{9.0, 35.5, 139.5}, {-4.0, -54.5, -68.25}, {12.0, 0.0, 179.5}}) {
            const DegMin packedLatitude = DegToDegMin(Degrees(latitude));
            const DegMin packedLongitude = DegToDegMin(Degrees(longitude));
            const erfareference::DayOfEvents sun(Body::Sun, day, TD), moon(Body::Moon, day, TD);
            const auto sunset = sun.event(false, latitude, longitude, horizon);
            ASSERT_TRUE(sunset);
            EXPECT_NEAR(*RefinedSunSet(day, Hours(TD), packedLatitude, packedLongitude), *sunset,
                        0.02 / 1440);
            const auto moonrise = moon.event(true, latitude, longitude, horizon);
            const auto refined = RefinedMoonRise(day, Hours(TD), packedLatitude, packedLongitude);
            ASSERT_EQ(refined.has_value(), moonrise.has_value());
            if (refined) {
                EXPECT_NEAR(*refined, *moonrise, 0.1 / 1440);
            }
        }
    }
}

} // namespace
} // namespace NavFunc113
