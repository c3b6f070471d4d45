// SPDX-License-Identifier: MIT
#include "navlib/sky/line_checks.h"
#include "navlib/sky/sight_fix.h"
#include <gmock/gmock.h>
#include <iterator>
#include <sstream>

#include "navlib/angles.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <cmath>

namespace NavFunc113
{
namespace
{

using korvel::testing::golden;
using korvel::testing::Golden;
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

std::vector<double> numbersOf(const std::string& text)
{
    std::istringstream words(text);
    return {std::istream_iterator<double>(words), {}};
}

std::vector<double> indicesOf(const std::vector<LineCheck>& checks)
{
    std::vector<double> indices;
    indices.reserve(checks.size());
    for (const LineCheck& check : checks)
        indices.push_back(static_cast<double>(check.index));
    return indices;
}

/// A body seen at 20 degrees on an azimuth, and how far the observer missed it: it stands 70
/// degrees away on that great circle.
Sight seenAt(Degrees azimuth, Miles miss, const Position& from)
{
    const Degrees altitude(20);
    const double sinDeclination =
        sin(altitude) * sin(from.latitude) + cos(altitude) * cos(from.latitude) * cos(azimuth);
    const double west = -sin(azimuth) * cos(altitude) * cos(from.latitude);
    const double up = sin(altitude) - sinDeclination * sin(from.latitude);
    return {RadToDeg(Radians(std::atan2(west, up))) - from.longitude,
            RadToDeg(Radians(std::asin(sinDeclination))),
            altitude + ArcOfMiles(miss),
            {}};
}

TEST(LineChecks, whatDoesNotFitIsFound)
{
    const Position ship{Degrees(40), Degrees(-30)};
    for (const Golden& row : golden("line_checks")) {
        const std::vector<double> azimuths = numbersOf(row.text("azimuths"));
        const std::vector<double> misses = numbersOf(row.text("misses"));
        std::vector<Sight> sights;
        for (std::size_t i = 0; i < azimuths.size(); ++i)
            sights.push_back(seenAt(Degrees(azimuths[i]), Miles(misses.at(i)), ship));
        const ErrorModel errors{row.miles("sigma"), 0, {}};
        const Agreement found = AgreementOfLines(sights, ship, {}, errors);
        EXPECT_EQ(found.agrees, !row.has("out") && !row.has("suspects")) << row;
        EXPECT_THAT(indicesOf(found.out),
                    ::testing::UnorderedElementsAreArray(numbersOf(row.text("out"))))
            << row;
        EXPECT_THAT(indicesOf(found.suspects),
                    ::testing::UnorderedElementsAreArray(numbersOf(row.text("suspects"))))
            << row;
        if (!row.has("misfit")) continue;
        const std::vector<LineCheck>& checks = found.out.empty() ? found.suspects : found.out;
        ASSERT_FALSE(checks.empty()) << row;
        EXPECT_NEAR(fabs(checks[0].misfit).value(), std::fabs(row.number("misfit")), 0.03) << row;
        if (found.out.empty()) continue;
        EXPECT_NEAR(checks[0].ratio, row.number("ratio"), 0.03) << row;
        EXPECT_LT(std::fabs(checks[0].without.position.latitude.value() - 40), 0.001) << row;
    }
}

TEST(LineChecks, aLineAdvancedForLongIsAllowedMore)
{
    const Position ship{Degrees(40), Degrees(-30)};
    const Motion motion{Degrees(90), Knots(15)};
    std::vector<Sight> sights;
    for (const double azimuth : {0.0, 45.0, 100.0, 150.0})
        sights.push_back(seenAt(Degrees(azimuth), Miles(azimuth == 100 ? 5 : 0), ship));
    EXPECT_FALSE(AgreementOfLines(sights, ship, {}, {Miles(1), 0.1, {}}).agrees);
    const Position then = Advanced(ship, motion, Hours(-6));
    sights[2] = seenAt(Degrees(100), Miles(5), then);
    sights[2].sinceFix = Hours(-6);
    EXPECT_TRUE(AgreementOfLines(sights, ship, motion, {Miles(1), 0.1, {}}).agrees)
        << "nine miles of doubt along the run";
}

} // namespace
} // namespace NavFunc113
