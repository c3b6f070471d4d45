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

// source: the reduction of a published table for 34 N, 20 S, 20 m 30 s; the way back from a place
TEST(MeridianPassage, altitudesNearTheMeridianAreReduced)
{
    struct Case {
        double latitude, declination, minutes, reduction, limit;
    };
    for (const Case& each : {Case{34, -20, 20.5, -13.2, 30}, Case{34, -20, -20.5, -13.2, 30},
                             Case{-34, 20, 20.5, 13.2, 30}, Case{21, 23, 1, 0.8, 2}}) {
        const Degrees t(each.minutes / 4), declination(each.declination);
        const Degrees seen =
            PlaceAboveHorizon(t, declination, {Degrees(each.latitude), {}}).altitude;
        const auto reduced = ReducedToMeridian(declination, seen, t, Degrees(each.latitude + 0.3));
        ASSERT_TRUE(reduced);
        EXPECT_NEAR(reduced->latitude.value(), each.latitude, 1e-9);
        EXPECT_NEAR(reduced->reduction.value(), each.reduction, 0.05);
        EXPECT_NEAR(reduced->limit, each.limit, 0.1);
        EXPECT_TRUE(reduced->isUpper);
        EXPECT_TRUE(reduced->isWithinLimit());
        const auto aside =
            ReducedToMeridian(declination, seen, t + Degrees(1.0 / 60), Degrees(each.latitude));
        EXPECT_NEAR(std::fabs((aside->latitude - reduced->latitude).value() * 60),
                    reduced->ofLongitude, 0.02);
    }
    const Degrees late(31.0 / 4);
    const Degrees low = PlaceAboveHorizon(late, Degrees(-20), {Degrees(34), {}}).altitude;
    EXPECT_FALSE(ReducedToMeridian(Degrees(-20), low, late, Degrees(34))->isWithinLimit());
    for (const double hemisphere : {1.0, -1.0}) { // below the pole
        const Degrees t(180 - 3), latitude(50 * hemisphere), declination(61.75 * hemisphere);
        const Degrees seen = PlaceAboveHorizon(t, declination, {latitude, {}}).altitude;
        const auto reduced = ReducedToMeridian(declination, seen, t, latitude);
        EXPECT_NEAR(reduced->latitude.value(), latitude.value(), 1e-9);
        EXPECT_FALSE(reduced->isUpper);
        EXPECT_NEAR(reduced->minutes, -12, 1e-9);
        EXPECT_LT(reduced->reduction.value() * hemisphere, 0);
    }
}

/// A ship at 40 N 30 W at the mean of the times; the Sun 20 south of the line.
struct Pair {
    explicit Pair(const Motion& made) : motion(made) {}
    AltitudeOfPair at(double hours) const
    {
        const Degrees GHA(29.0 + 15 * hours), declination(-20);
        const Position ship = Advanced({Degrees(40), Degrees(-30)}, motion, Hours(hours));
        return {GHA, declination, PlaceAboveHorizon(GHA, declination, ship).altitude, Hours(hours)};
    }
    Motion motion;
};

TEST(MeridianPassage, longitudeByAltitudesOnBothSides)
{
    for (const double course : {0.0, 70.0, 180.0, 275.0})
        for (const double half : {0.25, 1.0, 3.0}) {
            const Pair pair({Degrees(course), Knots(18)});
            const Position DR{Degrees(40), Degrees(-30.4)};
            const auto found =
                LongitudeByEqualAltitudes(pair.at(-half), pair.at(half + 0.1), DR, pair.motion);
            ASSERT_TRUE(found);
            EXPECT_NEAR(found->atMean.longitude.value(), -30, 1e-6);
            AltitudeOfPair high = pair.at(half);
            high.observedAltitude += Degrees(1.0 / 60);
            const auto off = LongitudeByEqualAltitudes(pair.at(-half), high, DR, pair.motion);
            const auto exact =
                LongitudeByEqualAltitudes(pair.at(-half), pair.at(half), DR, pair.motion);
            EXPECT_NEAR(std::fabs((off->atMean.longitude - exact->atMean.longitude).value()) * 60 *
                            std::sqrt(2.0),
                        exact->ofAltitudes, 0.05 * exact->ofAltitudes);
        }
    const Pair pair({Degrees(0), Knots(0)});
    const Position DR{Degrees(40), Degrees(-30)};
    EXPECT_FALSE(LongitudeByEqualAltitudes(pair.at(1), pair.at(2), DR, pair.motion));
    // Two degrees from the meridian are the least: sin Z = cos 20 sin 15 t / sin 60.
    EXPECT_FALSE(LongitudeByEqualAltitudes(pair.at(-0.12), pair.at(0.12), DR, pair.motion));
    EXPECT_TRUE(LongitudeByEqualAltitudes(pair.at(-0.126), pair.at(0.126), DR, pair.motion));
    // A mile an hour more to the north than she made.
    const Pair made({Degrees(0), Knots(18)});
    const auto right = LongitudeByEqualAltitudes(made.at(-1), made.at(1), DR, made.motion);
    const auto wrong =
        LongitudeByEqualAltitudes(made.at(-1), made.at(1), DR, {Degrees(0), Knots(19)});
    EXPECT_NEAR(std::fabs((wrong->atMean.longitude - right->atMean.longitude).value()) * 60,
                right->ofNorthing, 0.02 * right->ofNorthing);
}

// At 12 knots north, 40 N, with the Sun at 20 S halving alone costs 55' of longitude.
TEST(MeridianPassage, halvingTheTimesOfEqualAltitudesOfAMovingShip)
{
    const double after = PassageAfterMean(Degrees(40), Degrees(-20), 0, 12);
    EXPECT_NEAR(after / 4, 55, 0.3);
    const Pair pair({Degrees(0), Knots(12)});
    double late = 0.5; // hours from the mean at which the altitude of half an hour earlier returns
    for (int pass = 0; pass < 40; ++pass)
        late += 4 * (pair.at(late).observedAltitude - pair.at(-0.5).observedAltitude).value() / 15;
    const double mean = (late - 0.5) / 2 * 3600, passage = 240; // seconds
    EXPECT_NEAR(passage - mean, after, 1);
}

} // namespace
} // namespace NavFunc113
