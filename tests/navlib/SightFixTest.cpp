// SPDX-License-Identifier: MIT
#include "navlib/sight_fix.h"

#include "navlib/angles.h"

#include <gtest/gtest.h>

#include <cmath>

namespace NavFunc113
{
namespace
{

Degrees packed(double value)
{
    return DegMinToDeg(DegMin(value));
}

Sight sightOf(double GHA, double declination, double observed, double sinceFix)
{
    return {packed(GHA), packed(declination), packed(observed), Hours(sinceFix)};
}

Position positionOf(double latitude, double longitude)
{
    return {packed(latitude), packed(longitude)};
}

double milesApart(const Position& a, const Position& b)
{
    return 60 * std::hypot((a.latitude - b.latitude).value(),
                           (a.longitude - b.longitude).value() * cos(a.latitude));
}

Motion motionOf(double course, double speed)
{
    return {Degrees(course), Knots(speed)};
}

constexpr double clock(int h, int m, int s)
{
    return h + m / 60.0 + s / 3600.0;
}

struct Example {
    const char* name;
    std::vector<Sight> sights;
    Position atFix;
    Motion motion;
    Position fix;
};

const std::vector<Example>& examples()
{
    static const std::vector<Example> list = {
        {"sun, run, sun; first",
         {sightOf(357.132, -23.226, 24.4208, clock(11, 45, 11) - 15.5),
          sightOf(53.243, -23.228, 52.3048, 0)},
         positionOf(14.0252, -52.417),
         motionOf(271, 8),
         positionOf(14.060, -52.258)},
        {"sun, run, sun; second",
         {sightOf(343.238, -23.189, 19.297, clock(10, 49, 6) - clock(14, 37, 10)),
          sightOf(40.237, -23.193, 52.413, 0)},
         positionOf(13.53, -44.586),
         motionOf(270, 19 / (clock(14, 37, 10) - clock(10, 49, 6))),
         positionOf(13.423, -45.056)},
        {"high altitudes",
         {sightOf(351.554, -18.004, 88.080, -48.0 / 60),
          sightOf(354.104, -18.005, 88.339, -39.0 / 60)},
         positionOf(-19.203, 6.3922),
         motionOf(164, 12),
         positionOf(-19.224, 6.376)},
        {"four stars",
         {sightOf(317.352, -60.497, 35.0797, clock(23, 41, 56) - clock(23, 45, 22)),
          sightOf(350.508, -63.056, 48.3391, clock(23, 42, 6) - clock(23, 45, 22)),
          sightOf(108.485, 16.303, 13.4222, clock(23, 43, 12) - clock(23, 45, 22)),
          sightOf(231.557, -56.441, 22.1698, 0)},
         positionOf(-53.3868, -74.437),
         motionOf(119.3, 10.3),
         positionOf(-53.598, -74.432)},
    };
    return list;
}

TEST(SightFix, publishedFixes)
{
    for (const Example& example : examples()) {
        SCOPED_TRACE(example.name);
        const Fix fix = LeastSquaresFix(example.sights, example.atFix, example.motion, {});
        ASSERT_EQ(fix.outcome, FixOutcome::Found);
        EXPECT_LT(milesApart(fix.position, example.fix), 0.2);
    }
}

TEST(SightFix, ellipses)
{
    const auto fixOf = [](const Example& example, const ErrorModel& errors) {
        return LeastSquaresFix(example.sights, example.atFix, example.motion, errors);
    };
    const Fix two = fixOf(examples()[0], {});
    const ErrorEllipse plain = EllipseOf(two.matrix, AssumedSigmaFactor());
    EXPECT_NEAR(plain.semiMajor.value(), 3.63, 0.01);
    EXPECT_NEAR(plain.semiMinor.value(), 1.97, 0.01);
    EXPECT_NEAR(plain.majorAxis.value(), 63, 0.5);
    const ErrorEllipse run =
        EllipseOf(fixOf(examples()[0], {Miles(1), 0.05, Degrees(2)}).matrix, AssumedSigmaFactor());
    EXPECT_NEAR(run.semiMajor.value(), 5.28, 0.02);
    EXPECT_NEAR(run.semiMinor.value(), 2.30, 0.01);
    EXPECT_NEAR(run.majorAxis.value(), 81, 0.5);

    const Fix four = fixOf(examples()[3], {});
    EXPECT_NEAR(four.weightedSquares, 0.394, 0.02);
    EXPECT_NEAR(MeasuredScale(four), 0.44, 0.01);
    const double residuals[] = {-0.47, 0.03, -0.42, 0.03};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(four.residuals[i].value(), residuals[i], 0.02);
    const ErrorEllipse stars = EllipseOf(four.matrix, AssumedSigmaFactor());
    EXPECT_NEAR(stars.semiMajor.value(), 3.42, 0.01);
    EXPECT_NEAR(stars.semiMinor.value(), 1.31, 0.01);
    EXPECT_NEAR(stars.majorAxis.value(), 64, 0.5);
}

TEST(SightFix, heavierLineIsTrustedMore)
{
    // Two lines from one direction, 4 miles apart, one of them after a long run, and one across.
    const Position dr{Degrees(30), {}};
    const auto towards = [&](double GHA, double intercept, double since) {
        const Position then = Advanced(dr, motionOf(90, 20), Hours(since));
        const Degrees altitude = PlaceAboveHorizon(Degrees(GHA), Degrees(10), then).altitude;
        return Sight{Degrees(GHA), Degrees(10), altitude + ArcOfMiles(Miles(intercept)),
                     Hours(since)};
    };
    const std::vector<Sight> sights = {towards(300, 4, -6), towards(300, 0, 0), towards(0, 0, 0)};
    const Fix fix = LeastSquaresFix(sights, dr, motionOf(90, 20), {Miles(0.5), 0.05, Degrees(2)});
    ASSERT_EQ(fix.outcome, FixOutcome::Found);
    EXPECT_LT(std::fabs(fix.residuals[1].value()), 0.5);
    EXPECT_GT(std::fabs(fix.residuals[0].value()), 3);
}

TEST(SightFix, noFixWhereThereIsNone)
{
    const Position dr{Degrees(30), {}};
    const auto sight = [&](double GHA) {
        return Sight{Degrees(GHA), {}, PlaceAboveHorizon(Degrees(GHA), {}, dr).altitude, {}};
    };
    const auto outcome = [&](std::vector<Sight> sights) {
        return LeastSquaresFix(sights, dr, {}, {}).outcome;
    };
    EXPECT_EQ(outcome({}), FixOutcome::TooFewLines);
    EXPECT_EQ(outcome({sight(300)}), FixOutcome::TooFewLines);
    EXPECT_EQ(outcome({sight(300), sight(300)}), FixOutcome::Parallel);
    EXPECT_EQ(outcome({sight(300), sight(330)}), FixOutcome::Found);
    EXPECT_EQ(
        outcome({Sight{{}, {}, Degrees(89.9), {}}, Sight{Degrees(10), {}, Degrees(89.9), {}}}),
        FixOutcome::NoConvergence)
        << "small circles that do not meet";
}

TEST(SightFix, circleOfPosition)
{
    const Position dr{Degrees(14), Degrees(-52)};
    for (double observed : {24.5, 75.0, 88.9, 90.1}) {
        const Sight sight{Degrees(55), Degrees(-10), Degrees(observed), {}};
        for (const Position& point : CirclePoints(sight, dr, Miles(60), 13)) {
            const double seen =
                PlaceAboveHorizon(sight.GHA, sight.declination, point).altitude.value();
            EXPECT_NEAR(seen, 90 - std::fabs(90 - observed), 1e-9);
        }
    }
    // 40 miles from its foot the circle of a Sun at 80 degrees has bent 40^2 tan 80 / (2 x 3438).
    const Sight high{Degrees(52), Degrees(5), Degrees(80), {}};
    const auto points = CirclePoints(high, {Degrees(14.9), Degrees(-52)}, Miles(40), 3);
    EXPECT_NEAR(60 * (points[1].latitude - points[0].latitude).value(), 1.32, 0.1);
    EXPECT_LT(points[0].longitude, points[2].longitude) << "clockwise, the ship to the north";
}

TEST(SightFix, aRunBackLeadsBack)
{
    const Position start{Degrees(50), Degrees(-5)};
    const Motion motion = motionOf(33, 17);
    const Position back = Advanced(Advanced(start, motion, Hours(7)), motion, Hours(-7));
    EXPECT_LT(milesApart(back, start), 1e-6);
}

} // namespace
} // namespace NavFunc113
