// SPDX-License-Identifier: MIT
#include "navlib/sky/sight_fix.h"

#include "navlib/angles.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <cmath>

namespace NavFunc113
{
namespace
{

double milesApart(const Position& a, const Position& b)
{
    return 60 * std::hypot((a.latitude - b.latitude).value(),
                           (a.longitude - b.longitude).value() * cos(a.latitude));
}

Motion motionOf(double course, double speed)
{
    return {Degrees(course), Knots(speed)};
}

struct Example {
    std::vector<Sight> sights;
    Position atFix;
    Motion motion;
    Position fix;
};

std::vector<Example> examples()
{
    std::vector<Example> list;
    for (const auto& row : korvel::testing::golden("navlib_fixes")) {
        const auto angle = [&](const char* column) { return DegMinToDeg(row.degMin(column)); };
        if (row.has("fault"))
            list.push_back({{},
                            {angle("dr lat"), angle("dr long")},
                            {row.degrees("course"), row.knots("speed")},
                            {angle("lat"), angle("long")}});
        list.back().sights.push_back(
            {angle("GHA"), angle("declination"), angle("observed"), row.hours("since")});
    }
    return list;
}

TEST(SightFix, publishedFixes)
{
    for (const Example& example : examples()) {
        const Fix fix = LeastSquaresFix(example.sights, example.atFix, example.motion, {});
        ASSERT_EQ(fix.outcome, FixOutcome::Found);
        EXPECT_LT(milesApart(fix.position, example.fix), 0.2) << example.fix.latitude.value();
    }
}

TEST(SightFix, ellipses)
{
    const auto fixOf = [](const Example& example, const ErrorModel& errors) {
        return LeastSquaresFix(example.sights, example.atFix, example.motion, errors);
    };
    const auto expectEllipse = [](const Fix& fix, double major, double minor, double axis) {
        const ErrorEllipse ellipse = EllipseOf(fix.matrix, AssumedSigmaFactor());
        EXPECT_NEAR(ellipse.semiMajor.value(), major, 0.01);
        EXPECT_NEAR(ellipse.semiMinor.value(), minor, 0.01);
        EXPECT_NEAR(ellipse.majorAxis.value(), axis, 0.5);
        // What the working shows: the eigenvalues m - q and m + q are those of the axes.
        EXPECT_EQ(ellipse.factor, AssumedSigmaFactor());
        EXPECT_EQ(ellipse.scale, 1);
        const auto axisOf = [&](double eigenvalue) {
            return ellipse.factor / std::sqrt(eigenvalue);
        };
        EXPECT_NEAR(axisOf(ellipse.mean - ellipse.spread), ellipse.semiMajor.value(), 1e-9);
        EXPECT_NEAR(axisOf(ellipse.mean + ellipse.spread), ellipse.semiMinor.value(), 1e-9);
    };
    const std::vector<Example> list = examples();
    expectEllipse(fixOf(list[0], {}), 3.63, 1.97, 63);
    expectEllipse(fixOf(list[0], {Miles(1), 0.05, Degrees(2)}), 5.28, 2.30, 81);
    const Fix four = fixOf(list[3], {});
    expectEllipse(four, 3.42, 1.31, 64);
    EXPECT_NEAR(four.weightedSquares, 0.394, 0.02);
    EXPECT_NEAR(MeasuredScale(four), 0.44, 0.01);
    const double residuals[] = {-0.47, 0.03, -0.42, 0.03};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(four.residuals[i].value(), residuals[i], 0.02);
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

    // The limit is a determinant of 1e-6, a crossing of 0.1146 degrees. Near the pole the azimuths
    // of two Suns are as far apart as their hour angles.
    const auto crossing = [&](double degrees) {
        const Position north{Degrees(89), {}};
        std::vector<Sight> sights = {sight(300), sight(300 + degrees)};
        for (Sight& each : sights)
            each.observedAltitude = PlaceAboveHorizon(each.GHA, {}, north).altitude;
        return LeastSquaresFix(sights, north, {}, {}).outcome;
    };
    EXPECT_EQ(crossing(0.113), FixOutcome::Parallel);
    EXPECT_EQ(crossing(0.117), FixOutcome::Found);
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
    // A circle that is shorter than asked for is drawn once round, from its far side on.
    const Sight overhead{Degrees(52), Degrees(5), Degrees(89.8), {}};
    const auto whole = CirclePoints(overhead, {Degrees(14.9), Degrees(-52)}, Miles(60), 5);
    EXPECT_NEAR(whole.front().latitude.value(), 4.8, 1e-3);
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
