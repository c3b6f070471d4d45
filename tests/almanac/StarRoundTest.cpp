// SPDX-License-Identifier: MIT
#include "almanac/likely_bodies.h"
#include "almanac/magnitudes.h"
#include "almanac/star_round.h"
#include "tests/almanac/AlmanacTesting.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace almanac
{
namespace
{

RoundBody bodyAt(double azimuth, double altitude = 40, double magnitude = 0)
{
    return {Body::Sun, {Degrees(altitude), Degrees(azimuth)}, magnitude};
}

std::vector<RoundBody> bodiesAt(std::initializer_list<double> azimuths)
{
    std::vector<RoundBody> all;
    for (const double azimuth : azimuths)
        all.push_back(bodyAt(azimuth));
    return all;
}

std::vector<double> azimuthsOf(const std::vector<RoundBody>& round)
{
    std::vector<double> azimuths;
    azimuths.reserve(round.size());
    for (const RoundBody& body : round)
        azimuths.push_back(std::round(body.direction.azimuth.value()));
    return azimuths;
}

TEST(StarRound, errorIsThatOfTheGeometry)
{
    // n bodies evenly round the horizon: 4/n.
    EXPECT_NEAR(errorOfRound(bodiesAt({10, 130, 250})), 4.0 / 3, 1e-9);
    EXPECT_NEAR(errorOfRound(bodiesAt({0, 72, 144, 216, 288})), 4.0 / 5, 1e-9);
    // Three within a quarter of the horizon leave the common error in the fix.
    EXPECT_GT(errorOfRound(bodiesAt({0, 45, 90})), 10);
    EXPECT_NEAR(errorOfRound(bodiesAt({0, 45, 90})), errorOfRound(bodiesAt({20, 65, 110})), 1e-9);
    EXPECT_TRUE(std::isinf(errorOfRound(bodiesAt({77, 77, 77}))));
    EXPECT_TRUE(std::isinf(errorOfRound(bodiesAt({0, 90}))));
    EXPECT_TRUE(std::isinf(errorOfRound({})));
}

TEST(StarRound, isTakenAllRoundTheHorizonAndBright)
{
    using ::testing::ElementsAre;
    auto all = bodiesAt({5, 80, 125, 190, 245, 350});
    EXPECT_THAT(azimuthsOf(bestRound(all, 3)), ElementsAre(5, 125, 245));
    // A faint one is left for a bright one not far from it.
    all = bodiesAt({0, 240});
    all.push_back(bodyAt(120, 40, 2.9));
    all.push_back(bodyAt(128, 40, 0.2));
    EXPECT_THAT(azimuthsOf(bestRound(all, 3)), ElementsAre(0, 128, 240));
    EXPECT_EQ(bestRound(all, 7).size(), 4u);
    EXPECT_EQ(bestRound({}, 3).size(), 0u);
    EXPECT_EQ(errorOfRound({}), std::numeric_limits<double>::infinity());
    EXPECT_EQ(bestRound(bodiesAt({10}), 5).size(), 1u);
}

TEST(StarRound, faintOnesAreTakenLessWellAndAFullMoonDrownsMore)
{
    for (const auto& [magnitude, error] :
         {std::pair{-1.5, 1.0}, {0.5, 1.0}, {1.5, 1.25}, {4.5, 2.0}, {6.0, 2.0}})
        EXPECT_NEAR(errorByMagnitude(magnitude), error, 1e-12) << magnitude;
    for (const auto& [lit, reach] : {std::pair{0.0, 4.0}, {0.5, 8.0}, {1.0, 12.0}, {1.1, 12.0}})
        EXPECT_NEAR(reachOfMoon(lit).value(), reach, 1e-12) << lit;
}

TEST(StarRound, whatServes)
{
    const std::array glares{Glare{{Degrees(30), Degrees(359)}, Degrees(10)},
                            Glare{{Degrees(-4), Degrees(200)}, reachOfSun}};
    const struct {
        const char* fault;
        RoundBody body;
        bool serves;
    } cases[] = {
        {"15 is high enough", bodyAt(90, 15), true},
        {"low", bodyAt(90, 14.9), false},
        {"65 is low enough", bodyAt(90, 65), true},
        {"high", bodyAt(90, 65.1), false},
        {"third magnitude", bodyAt(90, 40, 3.0), true},
        {"faint", bodyAt(90, 40, 3.01), false},
        {"beside the Moon across north", bodyAt(6, 30), false},
        {"beside her in altitude", bodyAt(359, 39.9), false},
        {"away from her", bodyAt(359, 40.1), true},
        {"in the twilight above the Sun", bodyAt(200, 15.9), false},
        {"20 degrees above him", bodyAt(200, 16.1), true},
    };
    for (const auto& each : cases) {
        const std::vector<RoundBody> fit = fitForRound({&each.body, 1}, glares);
        EXPECT_EQ(!fit.empty(), each.serves) << each.fault;
    }
    EXPECT_NEAR(angleBetween({Degrees(0), Degrees(10)}, {Degrees(0), Degrees(350)}).value(), 20,
                1e-9);
    EXPECT_NEAR(angleBetween({Degrees(80), Degrees(0)}, {Degrees(70), Degrees(180)}).value(), 30,
                1e-9);
}

/// The sky over a place as the window shows it.
std::vector<RoundBody> skyOver(const char* ut, double latitude)
{
    const Sky sky(instantOf(ut));
    const Observer eye{Degrees(latitude), Degrees(0), {}};
    std::vector<RoundBody> all;
    for (const BodyEntry& entry : bodies())
        if (entry.number > 0)
            all.push_back(
                {entry.body, seenFrom(sky.place(entry.body), eye).direction, *entry.magnitude});
    return fitForRound(all, {});
}

// All rounds of five that the sky of an hour offers, tried one by one.
TEST(StarRound, isAsGoodAsTheBestOfAll)
{
    double worst = 1;
    int skies = 0;
    for (const char* ut : {"2026-01-15T00:00:00Z", "2026-05-02T05:00:00Z", "2026-08-20T11:00:00Z",
                           "2026-11-22T18:00:00Z"})
        for (const double latitude : {-55.0, -20.0, 10.0, 35.0, 60.0}) {
            const auto fit = skyOver(ut, latitude);
            ASSERT_GE(fit.size(), 5u);
            double least = HUGE_VAL;
            std::vector<char> in(fit.size());
            std::fill_n(in.begin(), 5, char{1});
            do {
                std::vector<RoundBody> round;
                for (std::size_t i = 0; i < fit.size(); ++i)
                    if (in[i]) round.push_back(fit[i]);
                least = std::min(least, errorOfRound(round));
            } while (std::ranges::prev_permutation(in).found);
            worst = std::max(worst, errorOfRound(bestRound(fit, 5)) / least);
            ++skies;
        }
    EXPECT_EQ(skies, 20);
    EXPECT_LT(worst, 1.0001) << "times the least error";
}

// A published example: at 27-18.5 S 67-18 E an unknown star bears 029, 29-35 high. It was worked by
// a star finder of discs: the star stood 27-25 high on that bearing.
TEST(LikelyBodies, nameAnUnknownStar)
{
    const Sky sky(instantOf("1981-01-14T15:22:28Z"));
    const Observer eye{Degrees(-27 - 18.5 / 60), Degrees(67.3), {}};
    const auto likely = likelyBodies(sky, eye, {Degrees(29 + 35.0 / 60), Degrees(29)}, 3);
    ASSERT_EQ(likely.size(), 3u);
    EXPECT_EQ(entryOf(likely[0].body).name, "Elnath");
    EXPECT_LT(fabs(likely[0].altitudeOff).value(), 2.5);
    EXPECT_LT(fabs(likely[0].bearingOff).value(), 0.5);
    EXPECT_LT(likely[0].apart, likely[1].apart);
}

// Each body of the sky, seen with an altitude half a degree and a bearing 2 degrees out, is among
// the three; two that are one to the eye (Acrux and Gacrux are not) would share them.
TEST(LikelyBodies, findEveryBodyOfTheSky)
{
    int asked = 0;
    for (const char* ut : {"2026-03-01T00:00:00Z", "2026-03-01T08:00:00Z", "2026-03-01T16:00:00Z"})
        for (const double latitude : {-40.0, 0.0, 50.0}) {
            const Sky sky(instantOf(ut));
            const Observer eye{Degrees(latitude), Degrees(-30), {}};
            for (const BodyEntry& entry : bodies()) {
                const Direction seen = seenFrom(sky.place(entry.body), eye).direction;
                if (seen.altitude < Degrees(5)) continue;
                const Direction observed{seen.altitude + Degrees(0.5),
                                         NavFunc113::WithinHalfTurn(seen.azimuth - Degrees(2))};
                const auto likely = likelyBodies(sky, eye, observed, 3);
                EXPECT_TRUE(std::ranges::any_of(
                    likely, [&](const LikelyBody& each) { return each.body == entry.body; }))
                    << ut << " " << latitude << " " << entry.name;
                ++asked;
            }
        }
    EXPECT_GT(asked, 350);
}

// As published for oppositions and other days of note.
TEST(Magnitudes, ofPlanets)
{
    const struct {
        const char* ut;
        Body body;
        double magnitude;
        double tolerance;
    } cases[] = {
        {"2002-12-17T12:00:00Z", Body::Saturn, -0.5, 0.1}, // rings wide open
        {"2009-03-08T20:00:00Z", Body::Saturn, 0.5, 0.15}, // and almost closed
        {"2022-09-26T20:00:00Z", Body::Jupiter, -2.9, 0.1},
        {"2003-08-28T18:00:00Z", Body::Mars, -2.9, 0.2},
        {"2012-03-03T20:00:00Z", Body::Mars, -1.2, 0.2},
        {"2020-04-28T00:00:00Z", Body::Venus, -4.7, 0.15},
        {"2022-10-22T21:00:00Z", Body::Venus, -3.9, 0.1}, // beyond the Sun
        // The samples that Mallama and Hilton (2018) publish with their formulas.
        {"2006-10-28T00:00:00Z", Body::Venus, -3.917, 0.001},
        {"2005-12-14T00:00:00Z", Body::Venus, -4.916, 0.001},
        {"2004-06-08T00:00:00Z", Body::Venus, -3.090, 0.01}, // about to pass before the Sun
        // Their formula for a narrow crescent, worked with ERFA's places of plan94 and epv00.
        {"2023-08-13T00:00:00Z", Body::Venus, -4.120, 0.005},
        {"2004-09-21T00:00:00Z", Body::Jupiter, -1.667, 0.001},
        {"2010-09-21T00:00:00Z", Body::Jupiter, -2.934, 0.001},
    };
    for (const auto& each : cases) {
        const auto found = magnitudeOf(each.body, Sky(instantOf(each.ut)));
        ASSERT_TRUE(found);
        EXPECT_NEAR(*found, each.magnitude, each.tolerance) << each.ut;
    }
    const Sky sky(instantOf("2026-01-01T00:00:00Z"));
    EXPECT_EQ(magnitudeOf(Body::Moon, sky), std::nullopt);
    EXPECT_EQ(magnitudeOf(*findBody("Sirius"), sky), entryOf(*findBody("Sirius")).magnitude);
}

} // namespace
} // namespace almanac
