// SPDX-License-Identifier: MIT
#include "forms/frmSky/CalculateStars.h"
#include "forms/frmSky/CalculateUnknown.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace korvel
{
namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// Position of, latitude, longitude, course, speed, height of eye, TD, day.
SkyInput inputOf(std::initializer_list<const char*> boxes)
{
    SkyInput input;
    using enum SkyBox;
    constexpr std::array places{Moment, Latitude, Longitude, Course, Speed, HeightOfEye, TD, Day};
    std::size_t at = 0;
    for (const char* box : boxes)
        input.txtSky[placeOf(places.at(at++))] = box;
    input.TD = NavFunc113::Hours(9);
    return input;
}

SkyDay dayOf(std::initializer_list<const char*> boxes)
{
    SkyPlaces places;
    return CalculateDay(inputOf(boxes), places);
}

// Published problems, to the minute.
TEST(SkyDay, twilightAndSunriseOfPublishedShips)
{
    const SkyDay july = dayOf({"1998/7/25 0:00", "36", "-68", "", "", "", "0"});
    EXPECT_EQ(july.event(SkyEvent::NauticalDawn).ships, "08:30");
    EXPECT_EQ(july.event(SkyEvent::CivilDawn).ships, "09:05");
    EXPECT_EQ(july.morning, "08:30 – 09:05");
    const SkyDay march = dayOf({"1981/3/27 3:30", "23.32", "154.47", "105", "20", "", "10"});
    EXPECT_EQ(march.event(SkyEvent::Sunrise).ships, "05:36");
    EXPECT_EQ(march.event(SkyEvent::Sunrise).zulu, "03/26 19:36");
    EXPECT_EQ(march.notice, "");
}

TEST(SkyDay, isThatOfTheMovingShip)
{
    // 15 degrees of longitude in a day to the east at 37.5 knots along the equator: an hour less
    // from noon to noon, and the day before she was where she came from.
    const SkyDay today = dayOf({"2026/11/22 12:00", "0", "135", "90", "37.5", "", "9"});
    const SkyDay next =
        dayOf({"2026/11/22 12:00", "0", "135", "90", "37.5", "", "9", "2026/11/23"});
    ASSERT_TRUE(today.hasTimes() && next.hasTimes());
    const auto noonOf = [](const SkyDay& day) { return *day.event(SkyEvent::SunPassage).utc; };
    EXPECT_NEAR((noonOf(next) - noonOf(today)) * 24, 23.04, 0.01);
    EXPECT_EQ(today.event(SkyEvent::SunPassage).bearing, "180.0");
    EXPECT_THAT(next.event(SkyEvent::SunPassage).where, HasSubstr("149°"));
    EXPECT_EQ(today.date, "Sun 2026/11/22, TD +9");
    // The eye's height brings rise forward, and moves no twilight.
    const SkyDay high = dayOf({"2026/11/22 12:00", "0", "135", "90", "37.5", "30", "9"});
    EXPECT_LT(*high.event(SkyEvent::Sunrise).utc, *today.event(SkyEvent::Sunrise).utc);
    EXPECT_EQ(*high.event(SkyEvent::CivilDawn).utc, *today.event(SkyEvent::CivilDawn).utc);
}

TEST(SkyDay, saysWhyThereIsNone)
{
    const SkyDay winter = dayOf({"2026/12/21 12:00", "75", "20", "", "", "", "1"});
    EXPECT_EQ(winter.event(SkyEvent::Sunrise).ships, "none");
    EXPECT_EQ(winter.event(SkyEvent::Sunrise).where, "the Sun is below the horizon all day");
    EXPECT_EQ(winter.event(SkyEvent::CivilDawn).where, "darker than that all day");
    EXPECT_THAT(winter.notice, HasSubstr("Sun's passage: below the horizon"));
    const SkyDay summer = dayOf({"2026/6/21 12:00", "75", "20", "", "", "", "1"});
    EXPECT_EQ(summer.event(SkyEvent::Sunset).where, "the Sun is above the horizon all day");
    EXPECT_EQ(summer.morning, "none");
    const SkyDay light = dayOf({"2026/6/21 12:00", "60", "20", "", "", "", "1"});
    EXPECT_EQ(light.event(SkyEvent::NauticalDusk).where, "lighter than that all night");
    EXPECT_THAT(light.evening, HasSubstr(" – .."));
}

TEST(SkyDay, refusesWhatCannotBeUsedAndSaysSo)
{
    const struct {
        const char* fault;
        std::initializer_list<const char*> boxes;
        const char* said;
    } cases[] = {
        {"no time", {"", "35", "140"}, "Time of the position: nothing entered"},
        {"no position", {"2026/11/22 12:00", "", "140"}, "Latitude: nothing entered"},
        {"half a date", {"2026/11", "35", "140"}, "Time of the position: "},
        {"a time alone", {"12:00", "35", "140"}, "Time of the position: "},
        {"beyond the pole", {"2026/11/22", "95", "140"}, "Latitude: "},
        {"minutes of 75", {"2026/11/22", "35.75", "140"}, "Latitude: "},
        {"course", {"2026/11/22", "35", "140", "400"}, "Course: "},
        {"speed", {"2026/11/22", "35", "140", "0", "-3"}, "Speed: "},
        {"eye", {"2026/11/22", "35", "140", "0", "0", "900"}, "Height of eye: "},
        {"zone", {"2026/11/22", "35", "140", "0", "0", "9", "20"}, "TD of ship's time: "},
        {"year", {"1949/12/30", "35", "140"}, "1950 to 2100"},
        {"year", {"2101/1/2", "35", "140"}, "1950 to 2100"},
        {"day of another year",
         {"2026/11/22", "35", "140", "90", "12", "", "9", "2027/11/22"},
         "more than 14 days"},
        {"across the pole", {"2026/11/22", "89.30", "140", "0", "20"}, "comes to a pole"},
    };
    for (const auto& each : cases) {
        const SkyDay day = dayOf(each.boxes);
        EXPECT_FALSE(day.hasTimes()) << each.fault;
        EXPECT_THAT(day.notice, HasSubstr(each.said)) << each.fault;
        EXPECT_EQ(CalculateStars(day, {}).bodies.size(), 0u);
    }
    EXPECT_EQ(dayOf({}).notice, "") << "nothing entered, nothing claimed";
    // A date alone is noon, and the ends of the years hold.
    EXPECT_TRUE(dayOf({"2026/11/22", "35", "140"}).hasTimes());
    EXPECT_EQ(dayOf({"2026/11/22", "35", "140", "90", "15"}).event(SkyEvent::Sunset).where,
              dayOf({"2026/11/22 12:00", "35", "140", "90", "15"}).event(SkyEvent::Sunset).where);
    EXPECT_TRUE(dayOf({"1950/1/2", "35", "140"}).hasTimes());
    EXPECT_TRUE(dayOf({"2100/12/30", "35", "140"}).hasTimes());
    EXPECT_TRUE(dayOf({"2026/11/22", "90", "140"}).hasTimes()) << "at the pole, at anchor";
}

TEST(SkyDay, phasesHaveTheirNames)
{
    const auto nameAt = [](double elongation) {
        return phaseName(NavFunc113::Degrees(elongation));
    };
    EXPECT_EQ(nameAt(0), "new Moon");
    EXPECT_EQ(nameAt(356.5), "new Moon");
    EXPECT_EQ(nameAt(355.5), "waning crescent");
    EXPECT_EQ(nameAt(45), "waxing crescent");
    EXPECT_EQ(nameAt(93.9), "first quarter");
    EXPECT_EQ(nameAt(94.1), "waxing gibbous");
    EXPECT_EQ(nameAt(180), "full Moon");
    EXPECT_EQ(nameAt(270), "last quarter");
}

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
        // What is preset is higher by dip (7.9') and refraction.
        EXPECT_GT((each.sextant - each.seen.altitude).value(), 7.8 / 60);
        if (!each.isInRound) continue;
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
    EXPECT_EQ(presetText(NavFunc113::Degrees(34.1999)), "34°12'");
}

TEST(SkyStars, sayWhatSpoilsThem)
{
    const SkyDay day = dayOf({"2026/11/22 12:00", "35", "140", "90", "15", "20", "9"});
    EXPECT_THAT(starsOf(day, "12:00").notice, HasSubstr("stars are hardly seen"));
    EXPECT_THAT(starsOf(day, "23:00").notice, HasSubstr("which is dark"));
    EXPECT_THAT(starsOf(day, "25:00").notice, HasSubstr("Minute of the stars: "));
    EXPECT_FALSE(starsOf(day, "2026/12/22 18:00").utc);
    EXPECT_EQ(starsOf(day, "2026/11/23 5:00").utc, starsOf(day, "2026/11/23 05:00:00").utc);
    const SkyDay summer = dayOf({"2026/6/21 12:00", "75", "20", "", "", "", "1"});
    EXPECT_THAT(starsOf(summer).notice, HasSubstr("no such twilight"));
    EXPECT_THAT(starsOf(dayOf({"2026/11/22", "-35", "140"})).polaris, "below the horizon");
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

TEST(SkyUnknown, needsAllThatItRestsOn)
{
    const std::initializer_list<const char*> ship = {"1981/1/14", "-27.185", "67.18"};
    EXPECT_EQ(CalculateUnknown(withUnknown(ship, "", "", "")).notice, "");
    EXPECT_EQ(CalculateUnknown(withUnknown(ship, "15:22", "29.35", "")).answer, "");
    EXPECT_THAT(CalculateUnknown(withUnknown(ship, "15:22", "95", "10")).notice,
                HasSubstr("Altitude of the unknown body: "));
    EXPECT_THAT(CalculateUnknown(withUnknown({}, "15:22", "29", "10")).notice,
                HasSubstr("nothing entered"));
    EXPECT_THAT(CalculateUnknown(withUnknown(ship, "1940/1/1 15:22", "29", "10")).notice,
                HasSubstr("1950 to 2100"));
}

} // namespace
} // namespace korvel
