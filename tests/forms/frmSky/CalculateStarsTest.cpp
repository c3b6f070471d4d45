// SPDX-License-Identifier: MIT
#include "forms/frmSky/CalculateStars.h"

#include "almanac/horizon.h"
#include "app/reading/Format.h"
#include "forms/frmSky/CalculateUnknown.h"
#include "forms/frmSky/SkyWorking.h"
#include "navlib/angles.h"
#include "tests/forms/frmSky/SkyInputs.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace korvel
{
namespace
{

using namespace skies;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

SkyStars starsOf(const SkyDay& day, const char* at = "", std::size_t count = 5)
{
    return CalculateStars(day, {at, SkyTwilight::Evening, count});
}

TEST(SkyStars, areThoseOfTheMiddleOfTheTwilight)
{
    const SkyDay day = dayOf({"2026/11/22 12:00", "35", "140", "90", "15", "20", "9"});
    const SkyStars stars = starsOf(day);
    ASSERT_TRUE(stars.utc);
    EXPECT_NEAR(*stars.utc, *day.middleOfEvening, 0.51 / 1440);
    EXPECT_NEAR(stars.sun.altitude.value(), -9, 0.3);
    EXPECT_EQ(stars.roundSize(), 5u);
    EXPECT_EQ(stars.notice, "");
    for (std::size_t i = 0; i < stars.bodies.size(); ++i) {
        const SkyBody& each = stars.bodies[i];
        EXPECT_EQ(each.isInRound, i < 5);
        EXPECT_GT(each.seen.altitude.value(), 0);
        if (each.body == almanac::Body::Moon) continue; // preset to her limb
        // What is preset is higher by dip (7.9') and refraction, here Bennett's.
        EXPECT_GT((each.sextant - each.seen.altitude).value(), 7.8 / 60);
        if (!each.isInRound) continue;
        const double h = each.sextant.value() - 7.87 / 60;
        EXPECT_NEAR((each.sextant - each.seen.altitude).value() * 60,
                    7.87 + 1 / tan(NavFunc113::Degrees(h + 7.31 / (h + 4.4))), 0.1);
        EXPECT_GE(each.seen.altitude.value(), 15);
        EXPECT_LE(each.seen.altitude.value(), 65);
    }
    // The changes of a minute are those between the minutes.
    const SkyStars later = starsOf(day, "17:31"), sooner = starsOf(day, "17:29");
    const SkyStars now = starsOf(day, "17:30");
    const auto find = [](const SkyStars& all, const char* name) {
        for (const SkyBody& each : all.bodies)
            if (almanac::entryOf(each.body).name == std::string(name)) return each;
        return SkyBody{};
    };
    const SkyBody vega = find(now, "Vega");
    EXPECT_NEAR(vega.altitudeChange.value() * 2,
                (find(later, "Vega").seen.altitude - find(sooner, "Vega").seen.altitude).value(),
                1e-5);
    EXPECT_LT(vega.altitudeChange.value(), 0) << "in the west it sets";
    EXPECT_GT(vega.azimuthChange.value(), 0);
}

TEST(SkyStars, roundIsKeptFromTheMoonAndOfTheCountThatIsAsked)
{
    const SkyDay day = dayOf({"2026/11/22 12:00", "35", "140", "90", "15", "20", "9"});
    for (const std::size_t count : {3u, 5u, 7u}) {
        const SkyStars stars = starsOf(day, "", count);
        EXPECT_EQ(stars.roundSize(), count);
        const PlannedSights sights = plannedRound(stars);
        ASSERT_EQ(sights.size(), count);
        std::set<std::string> names;
        for (const PlannedSight& each : sights) {
            names.insert(each.body);
            EXPECT_TRUE(almanac::findBody(each.body)) << each.body;
            EXPECT_EQ(each.utc, instantOf(*stars.utc));
            EXPECT_GE(each.sextantAltitude.value(), 15);
        }
        EXPECT_EQ(names.size(), count);
        for (const SkyBody& each : stars.bodies) {
            if (!each.isInRound) continue;
            for (const SkyBody& moon : stars.bodies)
                if (moon.body == almanac::Body::Moon) {
                    EXPECT_GE(almanac::angleBetween(moon.seen, each.seen),
                              almanac::reachOfMoon(stars.moonLit));
                }
        }
    }
}

/// North, east, up.
std::array<double, 3> vectorTo(const almanac::Direction& seen)
{
    return {cos(seen.altitude) * cos(seen.azimuth), cos(seen.altitude) * sin(seen.azimuth),
            sin(seen.altitude)};
}

double along(const std::array<double, 3>& a, const std::array<double, 3>& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

// What almanacs have by hand and stands above the horizon, whatever its brightness; the Moon's
// bright limb looks to the Sun along the great circle.
TEST(SkyStars, areAllThatAlmanacsHave)
{
    const SkyDay day = dayOf({"2026/11/22 12:00", "35", "140", "90", "15", "20", "9"});
    for (const char* at : {"17:30", "11:00", "2026/11/23 05:40"}) {
        const SkyStars stars = starsOf(day, at);
        const almanac::Sky sky(*stars.utc);
        std::set<almanac::Body> listed;
        for (const SkyBody& each : stars.bodies)
            listed.insert(each.body);
        for (const almanac::BodyEntry& entry : almanac::bodies()) {
            const bool isByHand = entry.kind != almanac::BodyKind::Star || entry.number > 0 ||
                                  entry.name == "Polaris";
            const auto direction =
                almanac::seenFrom(sky.place(entry.body), day.ship->at(*stars.utc)).direction;
            EXPECT_EQ(listed.contains(entry.body),
                      isByHand && direction.altitude > NavFunc113::Degrees(0))
                << entry.name << " " << at;
        }
        EXPECT_EQ(stars.zulu, Format(*stars.utc, "yyyy/mm/dd hh:mm"));
        const auto moon = std::ranges::find(stars.bodies, almanac::Body::Moon, &SkyBody::body);
        ASSERT_EQ(stars.moonBrightLimb.has_value(), moon != stars.bodies.end());
        if (!stars.moonBrightLimb) continue;
        const auto sun = vectorTo(stars.sun);
        const auto up =
            vectorTo({moon->seen.altitude + NavFunc113::quarterTurn, moon->seen.azimuth});
        const auto right = vectorTo({{}, moon->seen.azimuth + NavFunc113::quarterTurn});
        EXPECT_NEAR(std::remainder(stars.moonBrightLimb->value() -
                                       std::atan2(along(sun, right), along(sun, up)) * 180 /
                                           NavFunc113::Pi(),
                                   360),
                    0, 1e-6)
            << at;
    }
}

// Stars are hardly seen above -3 degrees of the Sun, no horizon below -13; by day too few serve.
TEST(SkyStars, lightAndNumberAreJudged)
{
    const SkyDay day = dayOf({"2026/11/22 12:00", "35", "140", "90", "15", "20", "9"});
    bool isHardly = false, isDark = false;
    for (int minute = 0; minute < 150; minute += 3) {
        const std::string at =
            std::to_string(16 + minute / 60) + ":" + std::to_string(100 + minute % 60).substr(1);
        const SkyStars stars = starsOf(day, at.c_str(), 7);
        const double sun = stars.sun.altitude.value();
        const auto says = [&](const std::string& words) {
            return stars.notice.find(words) != std::string::npos;
        };
        EXPECT_EQ(says("high: stars are hardly seen"), sun > -3) << at << stars.notice;
        EXPECT_EQ(says("below the horizon, which is dark"), sun < -13) << at << stars.notice;
        const auto round = stars.roundSize();
        EXPECT_EQ(says("Only " + std::to_string(round) + " bodies serve for a round of 7"),
                  round < 7)
            << at;
        if (!stars.quality.empty()) {
            const double quality = std::stod(stars.quality);
            EXPECT_TRUE(std::fabs(quality - 3) < 0.06 ||
                        says("lie too close together") == (quality > 3));
        }
        isHardly = isHardly || sun > -3;
        isDark = isDark || sun < -13;
    }
    EXPECT_TRUE(isHardly && isDark);
}

TEST(SkyStars, belongToTheDayThatIsShownOrTheNightsBesideIt)
{
    const SkyDay day = dayOf({"2026/11/22 12:00", "35", "140", "", "", "", "9"});
    for (const char* at : {"2026/11/21 12:00", "2026/11/23 12:00", "2026/11/22 03:00", "0:00"})
        EXPECT_TRUE(starsOf(day, at).utc) << at;
    for (const char* at : {"2026/11/21 11:58", "2026/11/23 12:02"}) {
        EXPECT_FALSE(starsOf(day, at).utc) << at;
        EXPECT_EQ(starsOf(day, at).notice, "Stars at: not on the day that is shown");
    }
    EXPECT_FALSE(
        starsOf(dayOf({"1950/1/1 12:00", "35", "0", "", "", "", "0"}), "1949/12/31 18:00").utc)
        << "before the almanac";
}

TEST(SkyStars, areWrittenAsTheTableHasThem)
{
    using NavFunc113::Degrees;
    const SkyBodyTexts vega = textsOf({*almanac::findBody("Vega"),
                                       {Degrees(34.255), Degrees(301.04)},
                                       0.03,
                                       Degrees(-0.015),
                                       Degrees(0.124),
                                       Degrees(34.41),
                                       false});
    EXPECT_THAT(
        (std::vector{vega.mark, vega.number, vega.name, vega.magnitude, vega.altitude, vega.azimuth,
                     vega.altitudeChange, vega.azimuthChange, vega.preset}),
        ElementsAre("", "49", "Vega", "0.0", "34°15.3'", "301.0", "-0.9", "+0.12", "34°25'"));
    const SkyBodyTexts moon = textsOf({almanac::Body::Moon, {}, {}, {}, {}, {}, true});
    EXPECT_THAT((std::vector{moon.mark, moon.number, moon.name, moon.magnitude}),
                ElementsAre("●", "", "Moon", ""));
    EXPECT_EQ(textsOf({*almanac::findBody("Alpheratz"), {}, {}, {}, {}, {}, {}}).number, "1");
}

// Over a month the Moon passes many that would serve but for her.
TEST(SkyStars, roundLeavesOutWhatStandsInTheMoonlight)
{
    int drowned = 0;
    for (int date = 1; date <= 30; ++date) {
        const std::string day = "2026/11/" + std::to_string(date);
        const SkyStars stars = starsOf(dayOf({day.c_str(), "35", "140", "", "", "", "9"}), "", 7);
        const auto moon = std::ranges::find(stars.bodies, almanac::Body::Moon, &SkyBody::body);
        if (moon == stars.bodies.end()) continue;
        for (const SkyBody& each : stars.bodies) {
            if (almanac::angleBetween(moon->seen, each.seen) >= almanac::reachOfMoon(stars.moonLit))
                continue;
            EXPECT_FALSE(each.isInRound) << day;
            drowned += each.body != almanac::Body::Moon;
        }
    }
    EXPECT_GE(drowned, 3);
}

// On the arc the sextant reads more: what is preset is more, what was read less.
TEST(SkyStars, indexErrorIsPutOnPresetsAndTakenOffReadings)
{
    SkyInput input = inputOf({"2026/11/22 12:00", "35", "140", "90", "15", "20", "9"});
    SkyPlaces places;
    const SkyStars without = starsOf(CalculateDay(input, places));
    input.txtSky[placeOf(SkyBox::IndexError)] = "-2.4";
    const SkyStars with = starsOf(CalculateDay(input, places));
    ASSERT_EQ(with.bodies.size(), without.bodies.size());
    for (std::size_t i = 0; i < with.bodies.size(); ++i) {
        EXPECT_NEAR((with.bodies[i].sextant - without.bodies[i].sextant).value() * 60, -2.4, 1e-6);
        EXPECT_EQ(with.bodies[i].seen.altitude, without.bodies[i].seen.altitude);
    }
    const auto readAs = [&](const char* error) {
        input.txtSky[placeOf(SkyBox::IndexError)] = error;
        input.txtSky[placeOf(SkyBox::UnknownAt)] = "17:30";
        input.txtSky[placeOf(SkyBox::UnknownAltitude)] = "40";
        input.txtSky[placeOf(SkyBox::UnknownBearing)] = "300";
        return CalculateUnknown(input).observed.altitude.value();
    };
    EXPECT_NEAR((readAs("-2.4") - readAs("")) * 60, 2.4, 0.01);
    input.txtSky[placeOf(SkyBox::IndexError)] = "70";
    EXPECT_THAT(CalculateDay(input, places).notice, HasSubstr("Index error: "));
    // A preset below 0, of a body on the horizon, keeps its sign.
    EXPECT_EQ(presetText(NavFunc113::Degrees(-0.5)), "-00°30'");
    EXPECT_EQ(presetText(NavFunc113::Degrees(-0.017)), "-00°01'");
    EXPECT_EQ(presetText(NavFunc113::Degrees(-0.008)), "00°00'");
    EXPECT_EQ(presetText(NavFunc113::Degrees(34.1999)), "34°12'");
}

TEST(SkyStars, sayWhatSpoilsThem)
{
    const SkyDay day = dayOf({"2026/11/22 12:00", "35", "140", "90", "15", "20", "9"});
    EXPECT_THAT(starsOf(day, "12:00").notice, HasSubstr("stars are hardly seen"));
    EXPECT_THAT(starsOf(day, "23:00").notice, HasSubstr("which is dark"));
    EXPECT_THAT(starsOf(day, "25:00").notice, HasSubstr("Minute of the stars: "));
    EXPECT_TRUE(starsWorkings(day, starsOf(day, "25:00")).empty());
    const SkyStars stars = starsOf(day);
    const auto workings = starsWorkings(day, stars);
    const auto error =
        std::ranges::find(workings, "Error of the fix of the round", &Working::title);
    ASSERT_NE(error, workings.end());
    EXPECT_EQ(std::ssize(error->tables.at(0).rows),
              std::ranges::count(stars.bodies, true, &SkyBody::isInRound));
    EXPECT_FALSE(starsOf(day, "2026/12/22 18:00").utc);
    EXPECT_EQ(starsOf(day, "2026/11/23 5:00").utc, starsOf(day, "2026/11/23 05:00:00").utc);
    const SkyDay summer = dayOf({"2026/6/21 12:00", "75", "20", "", "", "", "1"});
    EXPECT_THAT(starsOf(summer).notice, HasSubstr("no such twilight"));
    EXPECT_THAT(starsOf(dayOf({"2026/11/22", "-35", "140"})).polaris, "below the horizon");
    EXPECT_THAT(starsOf(dayOf({"2026/11/22", "0.15", "140"})).polaris, HasSubstr("altitude 0°"));
    EXPECT_THAT(starsOf(day).polaris, HasSubstr("azimuth 000."));
}

SkyInput withUnknown(std::initializer_list<const char*> boxes, const char* at, const char* altitude,
                     const char* bearing)
{
    SkyInput input = inputOf(boxes);
    input.txtSky[placeOf(SkyBox::UnknownAt)] = at;
    input.txtSky[placeOf(SkyBox::UnknownAltitude)] = altitude;
    input.txtSky[placeOf(SkyBox::UnknownBearing)] = bearing;
    return input;
}

// A published problem.
TEST(SkyUnknown, isNamed)
{
    const std::initializer_list<const char*> ship = {
        "1981/1/14 15:22:28", "-27.185", "67.18", "", "", "", "0"};
    const UnknownResult found =
        CalculateUnknown(withUnknown(ship, "1981/1/14 15:22:28", "29.35", "29"));
    EXPECT_EQ(found.answer, "Elnath");
    EXPECT_EQ(found.lines[0].number, "14");
    EXPECT_EQ(found.notice, "");
    EXPECT_THAT(found.where, HasSubstr("27°18.5'S"));
    // A time alone is of the day that is shown.
    EXPECT_EQ(CalculateUnknown(withUnknown(ship, "15:22:28", "29.35", "29")).answer, "Elnath");
    EXPECT_THAT(CalculateUnknown(withUnknown(ship, "15:22:28", "70", "340")).notice,
                HasSubstr("No body of the almanac stood near"));
}

// What was observed less what stood there; and how sure the answer is.
TEST(SkyUnknown, isToldHowFarAndHowSurely)
{
    const std::initializer_list<const char*> ship = {
        "1981/1/14 15:22:28", "-27.185", "67.18", "", "", "", "0"};
    const auto found = [&](const char* altitude, const char* bearing) {
        return CalculateUnknown(withUnknown(ship, "15:22:28", altitude, bearing));
    };
    const UnknownResult above = found("28.25", "31"), below = found("26.25", "27");
    EXPECT_THAT(above.lines[0].altitudeOff, ::testing::StartsWith("+"));
    EXPECT_THAT(below.lines[0].altitudeOff, ::testing::StartsWith("-"));
    EXPECT_NEAR((above.likely[0].altitudeOff - below.likely[0].altitudeOff).value(), 2, 0.01);
    EXPECT_NEAR((above.likely[0].bearingOff - below.likely[0].bearingOff).value(), 4, 1e-9);
    EXPECT_EQ(above.lines[0].magnitude, "1.7");
    for (const UnknownLine& line : above.lines) {
        const auto at =
            std::ranges::find(above.lines, line.name, &UnknownLine::name) - above.lines.begin();
        const auto minutes =
            std::lround(std::fabs(above.likely[std::size_t(at)].altitudeOff.value()) * 60);
        EXPECT_EQ(line.altitudeOff.substr(1), std::to_string(minutes / 60) + "°" +
                                                  std::to_string(100 + minutes % 60).substr(1) +
                                                  "'");
    }
    int none = 0, doubted = 0;
    for (double altitude = 11; altitude < 80; altitude += 4)
        for (int bearing = 5; bearing < 360; bearing += 30) {
            const UnknownResult each =
                found(std::to_string(altitude).c_str(), std::to_string(bearing).c_str());
            const double first = each.likely[0].apart, second = each.likely[1].apart;
            const bool isNone = first > 6, isDoubted = !isNone && second < first + 2;
            none += isNone;
            doubted += isDoubted;
            EXPECT_EQ(each.notice,
                      isNone      ? "No body of the almanac stood near: check date, TD and position"
                      : isDoubted ? each.lines[0].name + " and " + each.lines[1].name +
                                        " are hardly told apart by this"
                                  : std::string());
        }
    EXPECT_GT(none, 3);
    EXPECT_GT(doubted, 3);
}

TEST(SkyUnknown, needsAllThatItRestsOn)
{
    // The limits of its boxes, and of the run to it.
    const auto answerOf = [](const char* at, const char* altitude, const char* bearing,
                             const char* speed) {
        return CalculateUnknown(withUnknown({"1981/1/14", "27.185", "67.18", "90", speed, "", "0"},
                                            at, altitude, bearing))
            .answer;
    };
    for (const auto& [at, altitude, bearing, speed, isGood] :
         {std::tuple("15:22", "0", "0", "", true),
          {"15:22", "90", "360", "", true},
          {"15:22", "90.001", "10", "", false},
          {"15:22", "-0.001", "10", "", false},
          {"15:22", "20", "360.1", "", false},
          {"15:22", "20", "-0.1", "", false},
          {"1981/1/27 15:22", "20", "10", "12", true},
          {"1981/1/29 15:22", "20", "10", "12", false},
          {"1981/1/1 15:22", "20", "10", "12", true},
          {"1980/12/30 15:22", "20", "10", "12", false},
          {"1981/5/29 15:22", "20", "10", "0", true}})
        EXPECT_EQ(!answerOf(at, altitude, bearing, speed).empty(), isGood)
            << at << " " << altitude << " " << bearing << " " << speed;
    EXPECT_THAT(CalculateUnknown(withUnknown({"1981/1/14", "80", "67.18", "0", "20", "", "0"},
                                             "1981/1/20 15:22", "29", "10"))
                    .notice,
                HasSubstr("comes to a pole"));

    const std::initializer_list<const char*> ship = {"1981/1/14", "-27.185", "67.18"};
    EXPECT_EQ(CalculateUnknown(withUnknown(ship, "", "", "")).notice, "");
    EXPECT_EQ(CalculateUnknown(withUnknown(ship, "15:22", "29.35", "")).answer, "");
    EXPECT_THAT(CalculateUnknown(withUnknown(ship, "", "95", "")).notice,
                HasSubstr("Altitude of the unknown body: "));
    EXPECT_THAT(CalculateUnknown(withUnknown(ship, "15:22", "95", "10")).notice,
                HasSubstr("Altitude of the unknown body: "));
    EXPECT_THAT(CalculateUnknown(withUnknown({}, "15:22", "29", "10")).notice,
                HasSubstr("nothing entered"));
    EXPECT_THAT(CalculateUnknown(withUnknown(ship, "1940/1/1 15:22", "29", "10")).notice,
                HasSubstr("1950 to 2100"));
}

} // namespace
} // namespace korvel
