// SPDX-License-Identifier: MIT
#include "navlib/sailing/deviation.h"

#include "navlib/angles.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace NavFunc113
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const DeviationCoefficients adjusted{Degrees(0.5), Degrees(4), Degrees(-3), Degrees(1.2),
                                     Degrees(-0.4)};

/// Points of a curve every some degrees, each read wrong by up to half a degree in turn.
std::vector<DeviationPoint> swing(int step, double wrong = 0, int from = 0, int to = 360)
{
    std::vector<DeviationPoint> points;
    for (int heading = from; heading < to; heading += step) {
        const double sign = points.size() % 2 == 0 ? 1 : -1;
        points.push_back({Degrees(heading), adjusted.at(Degrees(heading)) + Degrees(sign * wrong)});
    }
    return points;
}

// Deviations E 3, E 2.5, .. of a swing on the eight points, analysed by the navigator's rules: A is
// the mean of all, B half of E less W, C half of N less S, D and E a quarter of the quadrantals.
TEST(Deviation, eightPointsGiveTheCoefficientsOfTheTextbooks)
{
    const std::array<double, 8> found{-2.0, 3.5, 5.0, 4.5, 1.0, -1.5, -4.0, -4.5};
    std::vector<DeviationPoint> points;
    for (std::size_t i = 0; i < found.size(); ++i)
        points.push_back({Degrees(45.0 * static_cast<double>(i)), Degrees(found[i])});
    const auto fit = DeviationFit::of(points);
    ASSERT_TRUE(fit);
    EXPECT_NEAR(fit->coefficients().A.value(), 0.25, 1e-9);
    EXPECT_NEAR(fit->coefficients().D.value(), (3.5 + -1.5 - 4.5 + 4.5) / 4, 1e-9);
    EXPECT_NEAR(fit->coefficients().E.value(), (-2.0 + 1.0 - 5.0 + 4.0) / 4, 1e-9);
    const double half = std::sqrt(0.5);
    EXPECT_NEAR(fit->coefficients().B.value(), (9.0 + half * (3.5 + 4.5 + 1.5 + 4.5)) / 4, 1e-9);
    EXPECT_NEAR(fit->coefficients().C.value(), (-3.0 + half * (3.5 - 4.5 + 1.5 - 4.5)) / 4, 1e-9);
}

TEST(Deviation, curveComesBackWhereTheHeadingsFixIt)
{
    for (const int step : {20, 45, 50}) {
        const auto fit = DeviationFit::of(swing(step));
        ASSERT_TRUE(fit) << step;
        for (int heading = 0; heading < 360; heading += 7)
            EXPECT_NEAR(fit->coefficients().at(Degrees(heading)).value(),
                        adjusted.at(Degrees(heading)).value(), 1e-9);
        EXPECT_NEAR(fit->scatter().value(), 0, 1e-9);
    }
    EXPECT_TRUE(DeviationFit::of(swing(45, 0, 45))) << "seven of the eight points";
    EXPECT_FALSE(DeviationFit::of(swing(60))) << "six points are too few";
    EXPECT_FALSE(DeviationFit::of(swing(10, 0, 0, 200))) << "half of the headings";
    auto cardinals = swing(90);
    for (int again = 0; again < 2; ++again)
        for (const DeviationPoint& point : swing(90))
            cardinals.push_back(point);
    EXPECT_FALSE(DeviationFit::of(cardinals)) << "the cardinal points tell nothing of D";
    EXPECT_FALSE(DeviationFit::of({}));
}

TEST(Deviation, noCurveIsTakenThatIsLessSureThanOneAndAHalfPoints)
{
    double most = 0;
    for (const int step : {5, 7, 9, 11, 13})
        for (int end = 150; end < 360; end += step) {
            const auto fit = DeviationFit::of(swing(step, 0, 0, end));
            if (!fit) continue;
            for (int heading = 0; heading < 360; heading += 5)
                most = std::max(most, fit->factor(Degrees(heading)));
        }
    EXPECT_LE(most, 1.5);
    EXPECT_GT(most, 1.4);
}

TEST(Deviation, openHeadingLiesInTheWidestGap)
{
    EXPECT_FALSE(OpenHeading({}));
    EXPECT_NEAR(OpenHeading(swing(10, 0, 0, 210))->value(), 280, 1e-9);
    EXPECT_NEAR(OpenHeading(swing(10, 0, 40, 330))->value(), 0, 1e-9) << "across north";
}

TEST(Deviation, blundersAreFoundAndReadingErrorsAreNot)
{
    for (const double wrong : {0.0, 0.5, 1.0})
        EXPECT_THAT(Blunders(swing(15, wrong)), IsEmpty()) << wrong;
    auto points = swing(30, 0.3);
    points[4].deviation += Degrees(10);
    EXPECT_THAT(Blunders(points), ElementsAre(4u));
    points[9].deviation -= Degrees(6);
    EXPECT_THAT(Blunders(points), ElementsAre(4u, 9u));
    EXPECT_THAT(Blunders(std::vector(points.begin(), points.begin() + 6)), IsEmpty())
        << "six points cannot tell";
}

/// What the shortcut through the fit of all points finds, one fit for every point finds.
TEST(Deviation, blundersAreThoseOfOneFitForEachPoint)
{
    auto points = swing(25, 0.4);
    points[2].deviation += Degrees(3.1);
    points[7].deviation -= Degrees(4.5);
    std::size_t worst = 0;
    double excess = 1;
    for (std::size_t i = 0; i < points.size(); ++i) {
        auto others = points;
        others.erase(others.begin() + static_cast<std::ptrdiff_t>(i));
        const auto fit = DeviationFit::of(others);
        ASSERT_TRUE(fit);
        const Degrees heading = points[i].heading;
        const double ratio =
            fabs(points[i].deviation - fit->coefficients().at(heading)) / fit->tolerance(heading);
        if (ratio > excess) worst = i;
        excess = std::max(excess, ratio);
    }
    EXPECT_EQ(worst, 7u);
    EXPECT_THAT(Blunders(points), ElementsAre(2u, 7u));
    // With the last of them alone just beyond its tolerance, and just within.
    for (const double wrong : {0.0, 2.0})
        for (const double nearly : {0.999, 1.001}) {
            auto swung = swing(25, wrong);
            auto others = swung;
            others.erase(others.begin() + 5);
            const auto fit = DeviationFit::of(others);
            const Degrees heading = swung[5].heading;
            swung[5].deviation = fit->coefficients().at(heading) + nearly * fit->tolerance(heading);
            EXPECT_THAT(Blunders(swung), ::testing::SizeIs(nearly > 1 ? 1u : 0u)) << wrong;
        }
}

TEST(Deviation, headingByCompassIsTheWayBack)
{
    constexpr Degrees none(0), some(-8);
    const DeviationCoefficients curves[] = {adjusted,
                                            {some, none, none, none, none},
                                            {none, some, none, none, none},
                                            {none, none, some, none, none},
                                            {none, none, none, some, none},
                                            {none, none, none, none, some}};
    for (const DeviationCoefficients& curve : curves)
        for (int heading = 0; heading < 360; heading += 5) {
            const Degrees magnetic = Degrees(heading) + curve.at(Degrees(heading));
            EXPECT_NEAR(WithinHalfTurn(CompassHeading(magnetic, curve) - Degrees(heading)).value(),
                        0, 1e-9);
        }
}

TEST(Deviation, toleranceGrowsWithScatterAndAwayFromThePoints)
{
    const auto quiet = DeviationFit::of(swing(30, 0.1)), rough = DeviationFit::of(swing(30, 2));
    ASSERT_TRUE(quiet && rough);
    EXPECT_GT(quiet->tolerance(Degrees(0)).value(), 3 * 0.5);
    EXPECT_GT(rough->tolerance(Degrees(0)), 2 * quiet->tolerance(Degrees(0)));
    const auto gap = DeviationFit::of(swing(30, 0, 60));
    ASSERT_TRUE(gap);
    EXPECT_GT(gap->tolerance(Degrees(15)), gap->tolerance(Degrees(210)));
}

} // namespace
} // namespace NavFunc113
