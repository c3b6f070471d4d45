// SPDX-License-Identifier: MIT
#include "navlib/sky/line_checks.h"

#include "navlib/angles.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

#include <cmath>
#include <iterator>
#include <sstream>

namespace NavFunc113
{
namespace
{

using korvel::testing::golden;
using korvel::testing::Golden;

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
