// SPDX-License-Identifier: MIT
#include "navlib/angles.h"
#include "navlib/sky/ephemeris.h"
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
        EXPECT_LT(minutesApart(SunGHA(t), sun.GHA), 0.16);
        EXPECT_LT(minutesApart(SunDeclination(t), sun.declination), 0.07);
        EXPECT_LT(minutesApart(MoonGHA(t), moon.GHA), 0.99);
        EXPECT_LT(minutesApart(MoonDeclination(t), moon.declination), 0.39);
    }
}

} // namespace
} // namespace NavFunc113
