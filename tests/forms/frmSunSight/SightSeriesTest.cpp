// SPDX-License-Identifier: MIT
#include "almanac/sextant.h"
#include "app/reading/Reading.h"
#include "forms/frmSunSight/fix/SightFix.h"
#include "tests/forms/frmSunSight/WorkedSights.h"

#include <gmock/gmock.h>

#include <cmath>
#include <set>

namespace korvel
{
namespace
{

using namespace worked;
using namespace NavFunc113;
using ::testing::HasSubstr;

/// A ship on 110 at 16 knots, at 6-02.5 N 90-40 E at 12:30 UTC of 28 February 1978.
const TrackTexts track{"6.025", "90.400", "1978/2/28 12:30:00", "110", "16"};

/// What her sextant shows of a body, out by some minutes of arc.
SightTexts shotOf(const char* body, const char* time, double off)
{
    SightTexts texts = sight("1978/2/28", time, "30", "", "23");
    texts.body = body;
    Remarks unheard;
    const Observation seen = readObservation(texts, unheard);
    const Position ship = *readTrack(track, seen.UTC, true, unheard).at(*seen.UTC);
    const auto preset = almanac::sextantAltitude(*seen.place, seen.body, almanac::Limb::Lower,
                                                 {Metres(23), 10, 10, 1013},
                                                 {ship.latitude, ship.longitude, Metres(23)});
    texts.Hs = Format(DegToDegMin(*preset + Degrees(off / 60)), "0.000000");
    return texts;
}

SightList seriesWith(double wild)
{
    return listOf({shotOf("Capella", "12:20:00", 0.4), shotOf("Capella", "12:21:10", -0.4),
                   shotOf("Capella", "12:22:05", wild), shotOf("Capella", "12:23:40", 0.2),
                   shotOf("Capella", "12:24:55", -0.2), shotOf("Procyon", "12:23:00", 0),
                   shotOf("Canopus", "12:28:00", 0), shotOf("Capella", "12:40:00", 0)});
}

TEST(SightSeries, shotsOfOneBodyBecomeOneLine)
{
    SightFixOptions options;
    EXPECT_EQ(CalculateFix(seriesWith(0), track, options, {}).lines.size(), 8U);
    options.series = true;
    const SightFixResult fix = CalculateFix(seriesWith(0), track, options, {});
    ASSERT_EQ(fix.series.size(), 1U);
    EXPECT_EQ(fix.lines.size(), 4U) << "twenty minutes later begins another";
    const SightSeries& series = fix.series[0];
    ASSERT_EQ(series.shots.size(), 5U);
    EXPECT_NEAR(series.intercept.value(), 0, 0.01) << "the slope is that of the moving ship";
    const double residuals[] = {0.4, -0.4, 0, 0.2, -0.2};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_NEAR(series.shots[i].residual.value(), residuals[i], 0.01);
        EXPECT_FALSE(series.shots[i].isWild);
    }
    EXPECT_NEAR(series.scatter.value(), 0.316, 0.005);
    EXPECT_NEAR(series.sigma.value(), 1 / std::sqrt(5.0), 1e-9) << "of what is assumed of a line";
    EXPECT_EQ(Format(series.UTC, "hh:mm:ss"), "12:22:22");
    EXPECT_LT(milesBetween(fix.fix->position, 6.0302, 90.3735), 4);
    EXPECT_EQ(fix.notice, "");
    EXPECT_THAT(fix.seriesText, HasSubstr("Capella, 5 shots: 12:22:22 UTC"));

    // The line weighs as five do.
    const SightFixResult apart = CalculateFix(seriesWith(0), track, {}, {});
    EXPECT_NEAR(fix.fix->ellipse->semiMajor.value(), apart.fix->ellipse->semiMajor.value(), 0.02);
}

TEST(SightSeries, aWildShotIsNamed)
{
    SightFixOptions options;
    options.series = true;
    const SightFixResult fix = CalculateFix(seriesWith(5), track, options, {});
    EXPECT_TRUE(fix.series[0].shots[2].isWild);
    EXPECT_THAT(fix.notice, HasSubstr("The shot of Capella 12:22:05 lies 5.0' above the others of "
                                      "its series, which without it is 1.0' less"));
    EXPECT_GT(fix.series[0].sigma, Miles(0.9)) << "its scatter is in the line's sigma";
    EXPECT_THAT(CalculateFix(seriesWith(0.9), track, options, {}).notice, "");
}

/// What stands behind ± in a sentence, minutes.
double sigmaOf(const std::string& text)
{
    return std::stod(text.substr(text.find("± ") + std::string("± ").size()));
}

// A ship on 0 at 18 knots has the Sun north of her in the morning and in the afternoon.
TEST(SightSeries, longitudeByEqualAltitudes)
{
    const Position noon{Degrees(-30), Degrees(80)};
    const Motion motion{Degrees(0), Knots(18)};
    const double UTC = 46348 + 6.4 / 24; // 2026 November 22
    const auto sunAt = [&](double minutes) {
        const Position ship = Advanced(noon, motion, Hours(minutes / 60));
        const std::string time = Format(UTC + minutes / 1440, "hh:mm:ss");
        return seenFrom(ship, "2026/11/22", time.c_str());
    };
    const TrackTexts off{"-30", "80.12", "2026/11/22 6:24:00", "0", "18"};
    const SightFixResult fix = CalculateFix(listOf({sunAt(-30), sunAt(31)}), off, {}, {});
    EXPECT_THAT(fix.equalText, ::testing::StartsWith("Equal altitudes 05:54:00 and 06:55:00"));
    EXPECT_THAT(fix.equalText, HasSubstr("longitude 080-.00'0E ± ")) << fix.equalText;
    EXPECT_EQ(CalculateFix(listOf({sunAt(-60), sunAt(-30)}), off, {}, {}).equalText, "");

    // Three pairs, a sight in one of them only. The error of the altitudes, here 2', goes by the
    // root of three; that of the run, here 20 % of 18 knots, stays.
    const SightList six =
        listOf({sunAt(-30), sunAt(-28), sunAt(-26), sunAt(29), sunAt(31), sunAt(33)});
    const SightFixResult byAltitudes = CalculateFix(six, off, {"2", "0", "0"}, {});
    ASSERT_EQ(byAltitudes.equalPairs.size(), 3U);
    std::set<double> sights;
    double weight = 0;
    for (const EqualAltitudePair& pair : byAltitudes.equalPairs) {
        EXPECT_NEAR(pair.longitude.value(), 80, 0.2 / 60);
        EXPECT_EQ(pair.byRun, Degrees(0));
        weight += 1 / std::pow(pair.byAltitudes.value() * 60, 2);
        sights.insert({pair.first, pair.second});
    }
    EXPECT_EQ(sights.size(), 6U);
    EXPECT_THAT(byAltitudes.equalText,
                ::testing::StartsWith("Equal altitudes, mean of 3 pairs: passage 06:26:0"));
    EXPECT_THAT(byAltitudes.equalText, HasSubstr("longitude 080-.00'0E ± "));
    EXPECT_NEAR(sigmaOf(byAltitudes.equalText), 1 / std::sqrt(weight), 0.06);
    const SightFixResult byRun = CalculateFix(six, off, {"0.1", "20", "0"}, {});
    EXPECT_NEAR(sigmaOf(byRun.equalText), byRun.equalPairs[0].byRun.value() * 60, 0.3);
    EXPECT_GT(sigmaOf(byRun.equalText), 2);
}

} // namespace
} // namespace korvel
