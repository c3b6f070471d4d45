// SPDX-License-Identifier: MIT
#include "almanac/sextant.h"
#include "forms/frmSunSight/fix/SightFix.h"
#include "forms/frmSunSight/paper/SightWorking.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/sky/ephemeris.h"
#include "tests/forms/WorkingLines.h"
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
using ::testing::EndsWith;
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

/// Shots of one body, a minute apart, out by some minutes of arc each.
SightList shotsOut(std::initializer_list<double> offs)
{
    SightList list;
    int minute = 20;
    for (const double off : offs)
        list.record(shotOf("Capella", ("12:" + std::to_string(minute++) + ":00").c_str(), off));
    return list;
}

SightFixResult seriesFix(const SightList& list)
{
    SightFixOptions options;
    options.series = true;
    return CalculateFix(list, track, options, {});
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
    EXPECT_THAT(fix.seriesText, HasSubstr("Capella, 5 shots: 12:22:22 UTC, Ho 49.-"));
    EXPECT_THAT(fix.seriesText, EndsWith(", a shot scatters by 0.32', sigma of the line 0.45'"));
    EXPECT_EQ(fix.lines[0].shots, 5);

    // Where the mean of the shots stands: they rise evenly in these five minutes.
    const SightFixResult apart = CalculateFix(seriesWith(0), track, {}, {});
    double mean = 0;
    for (const SeriesShot& shot : series.shots)
        mean += DegMinToDeg(apart.lines[shot.index].Ho).value() / 5;
    EXPECT_NEAR(DegMinToDeg(series.Ho).value(), mean, 0.15 / 60);
    const LineOfPosition& line = fix.lines[0].line;
    EXPECT_NEAR(line.intercept.value(), 0, 0.01);
    EXPECT_NEAR(line.computedAltitude.value(), mean, 0.15 / 60);
    EXPECT_NEAR(line.azimuth.value(), apart.lines[2].line.azimuth.value(), 0.2);

    // The line weighs as five do.
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
    EXPECT_THAT(
        CalculateFix(seriesWith(-5), track, options, {}).notice,
        HasSubstr("lies 5.0' below the others of its series, which without it is 1.0' more"));

    // Three deviations of the others, by hand: the four of 0.4', -0.4', 0.2', -0.2' scatter by
    // 0.365', which with their own mean's is 0.408'; others that agree are held to scatter by 0.3'.
    const struct {
        const char* fault;
        SightList shots;
        bool isWild;
    } cases[] = {
        {"within three deviations", seriesWith(1.2), false},
        {"beyond them", seriesWith(1.25), true},
        {"four that agree", shotsOut({0, 0, 0.98, 0, 0}), false},
        {"a fifth off them", shotsOut({0, 0, -1.03, 0, 0}), true},
        {"three that agree", shotsOut({0, 0, 0, 1.01}), false},
        {"a fourth off them", shotsOut({0, 1.07, 0, 0}), true},
        {"three cannot tell", shotsOut({0, 0, 9}), false},
    };
    for (const auto& each : cases)
        EXPECT_EQ(seriesFix(each.shots).notice.find("The shot of") != std::string::npos,
                  each.isWild)
            << each.fault << ": " << seriesFix(each.shots).notice;
}

TEST(SightSeries, goesOnForAQuarterOfAnHourWithOneBodyAndLimb)
{
    const auto sunShot = [](const char* time, bool isUpper) {
        SightTexts shot = sight("1978/2/28", time, "30", "", "");
        shot.upperLimb = isUpper;
        return shot;
    };
    const struct {
        const char* fault;
        SightList shots;
        std::size_t series, lines;
    } cases[] = {
        {"to the second",
         listOf({shotOf("Capella", "12:20:00", 0), shotOf("Capella", "12:35:00", 0)}), 1, 1},
        {"a second more",
         listOf({shotOf("Capella", "12:20:00", 0), shotOf("Capella", "12:35:01", 0)}), 0, 2},
        {"from the first shot, not from the last",
         listOf({shotOf("Capella", "12:20:00", 0), shotOf("Capella", "12:30:00", 0),
                 shotOf("Capella", "12:40:00", 0)}),
         1, 2},
        {"two that are mixed",
         listOf({shotOf("Capella", "12:20:00", 0), shotOf("Procyon", "12:21:00", 0),
                 shotOf("Capella", "12:22:00", 0), shotOf("Procyon", "12:23:00", 0)}),
         2, 2},
        {"one limb", listOf({sunShot("3:00:00", true), sunShot("3:01:00", true)}), 1, 1},
        {"two limbs", listOf({sunShot("3:00:00", true), sunShot("3:01:00", false)}), 0, 2},
    };
    for (const auto& each : cases) {
        const SightFixResult fix = seriesFix(each.shots);
        EXPECT_EQ(fix.series.size(), each.series) << each.fault << fix.notice;
        EXPECT_EQ(fix.lines.size(), each.lines) << each.fault;
    }
    EXPECT_THAT(seriesFix(cases[3].shots).seriesText, HasSubstr("; Procyon, 2 shots: 12:22:00"));
    EXPECT_EQ(seriesFix(cases[3].shots).lines[1].index, 1U) << "of its first shot";
    EXPECT_THAT(seriesFix(cases[4].shots).seriesText,
                ::testing::StartsWith("Sun, 2 shots: 03:00:30"));

    // All shots two miles towards, or away: so is their line.
    EXPECT_THAT(seriesFix(shotsOut({2, 2, 2})).lines[0].text,
                ::testing::StartsWith("2'.0 T  Zn 00"));
    EXPECT_THAT(seriesFix(shotsOut({-2, -2, -2})).lines[0].text,
                ::testing::StartsWith("2'.0 A  Zn 00"));
}

// A line of the Sun from several shots is that of the Sun at their mean time.
TEST(SightSeries, seriesOfTheSun)
{
    const Position place{Degrees(6), Degrees(90.5)};
    const TrackTexts still{"6.00", "90.30", "", "", ""};
    SightFixOptions options;
    options.series = true;
    const SightList shots = listOf({seenFrom(place, "1978/2/28", "3:00:00", 3),
                                    seenFrom(place, "1978/2/28", "3:04:00", 3),
                                    seenFrom(place, "1978/2/28", "3:08:00", 3)});
    const SightFixResult fix = CalculateFix(shots, still, options, {});
    const SightFixResult apart = CalculateFix(shots, still, {}, {});
    ASSERT_EQ(fix.lines.size(), 1U);
    EXPECT_NEAR(fix.lines[0].line.intercept.value(), 3, 0.02);
    EXPECT_NEAR(fix.lines[0].line.azimuth.value(), apart.lines[1].line.azimuth.value(), 0.02);
    EXPECT_NEAR(fix.lines[0].sight.sinceFix.value(), -4.0 / 60, 1e-6);
    EXPECT_NEAR(fix.lines[0].sight.GHA.value(), apart.lines[1].sight.GHA.value(), 1e-5)
        << "by the same formulas as that of one shot";
}

/// What stands behind ± in a sentence, minutes.
double sigmaOf(const std::string& text)
{
    return std::stod(text.substr(text.find("± ") + std::string("± ").size()));
}

/// The Sun as a ship under way sees it some minutes before and after she is at a place.
SightTexts sunFrom(const Position& place, const Motion& motion, DateTime there, double minutes,
                   double off = 0)
{
    const DateTime UTC = there + minutes / 1440;
    return seenFrom(Advanced(place, motion, Hours(minutes / 60)), Format(UTC, "yyyy/mm/dd").c_str(),
                    Format(UTC, "hh:mm:ss").c_str(), off);
}

TrackTexts trackOf(const Position& place, const Motion& motion, DateTime there)
{
    return {Format(DegToDegMin(place.latitude), "0.0000"),
            Format(DegToDegMin(place.longitude), "0.0000"), Format(there, "yyyy/mm/dd hh:mm:ss"),
            Format(motion.course, "0"), Format(motion.speed, "0")};
}

// Where the ship is at the passage, and where the Sun then is, are known from elsewhere: her run,
// and the Sun's hour angle.
TEST(SightSeries, equalAltitudesOfShipsOnAllCourses)
{
    const struct {
        const char* fault;
        double latitude, longitude, course, hour;
    } cases[] = {
        {"GHA goes through 360", 30, 0.2, 0, 11.97},
        {"just before it", 30, -0.2, 0, 11.97},
        {"the ship goes with the Sun", 45, -60, 270, 15.97},
        {"the ship comes against it", 45, -60, 90, 15.97},
        {"across the date line", -20, 179.9, 90, 23.97},
        {"to the north-east", 50, 30, 45, 9.97},
    };
    for (const auto& each : cases) {
        const Position place{Degrees(each.latitude), Degrees(each.longitude)};
        const Motion motion{Degrees(each.course), Knots(20)};
        const DateTime there = 46100 + each.hour / 24; // 2026 March 19
        const SightList list =
            listOf({sunFrom(place, motion, there, -52), sunFrom(place, motion, there, 70)});
        const SightFixResult fix =
            CalculateFix(list, trackOf(place, motion, there), {"1", "0", "0"}, {});
        ASSERT_EQ(fix.equalPairs.size(), 1U) << each.fault << fix.notice;
        const EqualAltitudePair& pair = fix.equalPairs[0];
        const Position then = Advanced(place, motion, Hours((pair.passage - there) * 24));
        EXPECT_NEAR(WithinHalfTurn(pair.longitude - then.longitude).value() * 60, 0, 0.15)
            << each.fault;
        const Degrees GHA = DegMinToDeg(FiguresOfSun(pair.passage).GHA);
        EXPECT_NEAR(WithinHalfTurn(GHA + pair.longitude).value() * 60, 0, 0.15) << each.fault;
        EXPECT_EQ(pair.byRun, Degrees(0)) << each.fault;
        const double seconds = (pair.passage - (pair.first + pair.second) / 2) * 86400;
        EXPECT_THAT(fix.equalText,
                    HasSubstr(std::string("UTC, the mean ") + (seconds < 0 ? "less " : "and ") +
                              Format(std::fabs(seconds), "0") + " s; longitude "))
            << each.fault;
    }
}

TEST(SightSeries, pairsOfEqualAltitudesStandOnBothSidesOfOnePassage)
{
    const Position place{Degrees(-30), Degrees(80)}, north{Degrees(60), Degrees(80)};
    const Motion still;
    const DateTime there = 46348 + 6.4 / 24;
    const auto at = [&](double minutes) { return sunFrom(place, still, there, minutes); };
    const auto starOf = [](const char* body, const char* time) {
        SightTexts star = shotOf(body, time, 0);
        star.Hs = "45";
        return star;
    };
    const struct {
        const char* fault;
        SightList sights;
        TrackTexts ship;
        std::size_t pairs;
    } cases[] = {
        {"forenoon and afternoon", listOf({at(-30), at(31)}), trackOf(place, still, there), 1},
        {"both before", listOf({at(-30), at(-29)}), trackOf(place, still, there), 0},
        {"both after", listOf({at(29), at(30)}), trackOf(place, still, there), 0},
        {"a night between", listOf({at(31), at(1410)}), trackOf(place, still, there), 0},
        {"a day and more between", listOf({at(-30), at(1471)}), trackOf(place, still, there), 0},
        {"too near to the passage",
         listOf({sunFrom(north, still, there, 1), sunFrom(north, still, there, 4)}),
         trackOf(north, still, there), 0},
        {"a degree apart", listOf({at(-30), sunFrom(place, still, there, 34, 55)}),
         trackOf(place, still, there), 1},
        {"more than a degree", listOf({at(-30), sunFrom(place, still, there, 34, 65)}),
         trackOf(place, still, there), 0},
        {"two stars", listOf({starOf("Capella", "12:20:00"), starOf("Hamal", "12:33:00")}), track,
         0},
    };
    for (const auto& each : cases) {
        const SightFixResult fix = CalculateFix(each.sights, each.ship, {}, {});
        EXPECT_EQ(fix.equalPairs.size(), each.pairs) << each.fault << fix.equalText;
        EXPECT_EQ(fix.equalText.empty(), each.pairs == 0) << each.fault;
    }
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
    EXPECT_THAT(testing::linesOf(equalAltitudeWorking(fix).value()),
                ::testing::Contains(EndsWith("errors of the run = " + fix.equalText)));
    const auto cells = equalAltitudeWorking(fix)->tables[0].rows[0]; // in minutes
    EXPECT_NEAR(std::hypot(std::stod(cells[4]), std::stod(cells[5])),
                std::stod(fix.equalText.substr(fix.equalText.find("± ") + 3)), 0.06);
    EXPECT_EQ(cells[4].size() - cells[4].find('.') + cells[5].size() - cells[5].find('.'), 6u);
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
    // As much to the north, 3.6 knots, by a course made good to the east that is out by its sine.
    const Motion east{Degrees(90), Knots(18)};
    const SightFixResult byCourse =
        CalculateFix(listOf({sunFrom(noon, east, UTC, -30), sunFrom(noon, east, UTC, 31)}),
                     trackOf(noon, east, UTC), {"0.1", "0", "11.537"}, {});
    ASSERT_EQ(byCourse.equalPairs.size(), 1U);
    EXPECT_NEAR(byCourse.equalPairs[0].byRun / byRun.equalPairs[0].byRun, 1, 0.07);

    // Pairs that do not agree: their mean by their weights, and its sigma by how they scatter.
    const SightList apart =
        listOf({sunAt(-30), sunFrom(noon, motion, UTC, -28, 3), sunAt(29), sunAt(31)});
    const SightFixResult mean = CalculateFix(apart, off, {"0.5", "0", "0"}, {});
    ASSERT_EQ(mean.equalPairs.size(), 2U);
    double sum = 0, weights = 0, passage = 0;
    std::string each;
    for (const EqualAltitudePair& pair : mean.equalPairs) {
        const double pairs = 1 / std::pow(pair.byAltitudes.value(), 2);
        weights += pairs;
        sum += pairs * pair.longitude.value();
        passage += pairs * (pair.passage - UTC);
    }
    const double longitude = sum / weights;
    double square = 0;
    for (const EqualAltitudePair& pair : mean.equalPairs) {
        const double of = pair.longitude.value() - longitude;
        square += of * of / std::pow(pair.byAltitudes.value(), 2);
        each += Format(of * 60, " +0.0'; -0.0'");
    }
    EXPECT_GT(square, 1) << "they scatter more than they should";
    EXPECT_THAT(mean.equalText,
                HasSubstr("longitude " + longitudeText(Degrees(longitude)) + " ± "));
    EXPECT_THAT(mean.equalText,
                HasSubstr("passage " + Format(UTC + passage / weights, "hh:mm:ss")));
    EXPECT_THAT(mean.equalText, EndsWith("; the pairs" + each));
    EXPECT_NEAR(sigmaOf(mean.equalText), std::sqrt(square / weights) * 60, 0.06);
}

} // namespace
} // namespace korvel
