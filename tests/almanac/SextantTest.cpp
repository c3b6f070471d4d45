// SPDX-License-Identifier: MIT
#include "almanac/sextant.h"
#include "tests/almanac/AlmanacTesting.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

namespace almanac
{
namespace
{

using korvel::testing::Golden;
using korvel::testing::golden;
using NavFunc113::Metres;

Observer eyeOf(const Golden& row)
{
    return {row.degrees("lat_deg"), row.degrees("lon_deg"), Metres(row.number("eye_m"))};
}

// An airless earth: no refraction, and the horizon of an eye at sea level.
constexpr SextantAir airless{Metres(0), 10, 10, 0};

TEST(Sextant, parallaxTakesWhatIsSeenToTheEarthsCentre)
{
    for (const Golden& row : golden("almanac_altitudes")) {
        const Body body = *findBody(row.text("body"));
        const Place place = Sky(instantOf(row.text("ut"))).place(body);
        if (row.number("alt_topocentric_deg") < 0) continue;
        const Degrees centre = row.degrees("alt_topocentric_deg");
        const SightPlace taken{eyeOf(row), row.degrees("zn_topocentric_deg")};
        for (const Limb limb : {Limb::Lower, Limb::Upper}) {
            const double side = hasLimbs(body) ? (limb == Limb::Lower ? -1 : 1) : 0;
            const Degrees seen = centre + side * seenFrom(place, taken.observer).semiDiameter;
            const SextantTerms terms = correctSextant(place, body, seen, limb, airless, taken);
            EXPECT_LE(minutesApart(terms.corrected, row.number("hc_deg")), 0.025) << row;
            EXPECT_LE(minutesApart(terms.corrected - Degrees(terms.oblateness / 60),
                                   row.number("hc_deg")),
                      0.23)
                << row << " on the sphere";
        }
    }
}

TEST(Sextant, presetAltitudeIsTheWayBack)
{
    const SextantAir air{Metres(23), 31, 28, 988};
    int bodiesSeen = 0;
    for (const double latitude : {-63.0, -20.0, 0.0, 35.5, 71.0})
        for (const Body body : {Body::Sun, Body::Moon, Body::Venus, *findBody("Polaris"),
                                *findBody("Capella"), *findBody("Canopus")})
            for (const Limb limb : {Limb::Lower, Limb::Upper}) {
                const Observer eye{Degrees(latitude), Degrees(48.25), Metres(23)};
                const Place place = Sky(instantOf("2026-11-22T04:10:00Z")).place(body);
                const auto preset = sextantAltitude(place, body, limb, air, eye);
                const Direction there = computedDirection(place, eye);
                if (fabs(there.altitude) > Degrees(4)) {
                    EXPECT_EQ(preset.has_value(), there.altitude > Degrees(0)) << latitude;
                }
                if (!preset) continue;
                ++bodiesSeen;
                EXPECT_NEAR(
                    correctSextant(place, body, *preset, limb, air, SightPlace{eye, there.azimuth})
                        .corrected.value(),
                    there.altitude.value(), 1e-6);
            }
    EXPECT_GT(bodiesSeen, 20);
}

// Terms by hand: dip 1.76 sqrt 16; Bennett at 9 deg 52.96'; 288.15 and 283.15 K; 990 of 1010 hPa.
TEST(Sextant, termsOfAStarLow)
{
    const Place star{Degrees(0), Degrees(0), Degrees(0), Degrees(0), Degrees(0)};
    const SextantTerms terms = correctSextant(star, *findBody("Vega"), Degrees(10), Limb::Lower,
                                              {Metres(16), 15, 15, 990}, std::nullopt);
    EXPECT_NEAR(terms.dip, -7.04, 0.001);
    EXPECT_NEAR(terms.refraction, -5.4515, 0.001);
    EXPECT_NEAR(terms.temperature, 5.4515 * 5 / 288.15, 0.001);
    EXPECT_NEAR(terms.pressure, 5.4515 * 283.15 / 288.15 * 20 / 1010, 0.001);
    EXPECT_EQ(terms.semiDiameter, 0);
    EXPECT_EQ(terms.parallax, 0);
    EXPECT_NEAR(correctSextant(star, *findBody("Vega"), Degrees(10), Limb::Lower,
                               {Metres(16), 15, 10, 990}, std::nullopt)
                        .dip +
                    1,
                -6.04, 0.001);
}

} // namespace
} // namespace almanac
