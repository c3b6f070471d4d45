// SPDX-License-Identifier: MIT
#include "forms/frmSky/CalculateDay.h"

#include "app/reading/Format.h"
#include "forms/frmSky/CalculateStars.h"
#include "tests/forms/frmSky/SkyInputs.h"

#include <gmock/gmock.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

namespace korvel
{
namespace
{

using namespace skies;
using ::testing::HasSubstr;

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

TEST(SkyDay, answersFollowTheEventsOfTheDay)
{
    const auto spanOf = [](const SkyDay& day, SkyEvent first, SkyEvent last) {
        return day.event(first).ships + " – " + day.event(last).ships;
    };
    const auto middleOf = [](const SkyDay& day, SkyEvent first, SkyEvent last) {
        return (*day.event(first).utc + *day.event(last).utc) / 2;
    };
    using enum SkyEvent;
    const SkyDay march = dayOf({"1981/3/27 3:30", "23.32", "154.47", "105", "20", "", "10"});
    EXPECT_EQ(march.morning, spanOf(march, NauticalDawn, CivilDawn));
    EXPECT_EQ(march.evening, spanOf(march, CivilDusk, NauticalDusk));
    EXPECT_EQ(march.noon, march.event(SunPassage).ships);
    EXPECT_EQ(march.middleOfMorning, middleOf(march, NauticalDawn, CivilDawn));
    EXPECT_EQ(march.middleOfEvening, middleOf(march, CivilDusk, NauticalDusk));
    // New Moon was on the 6th at 10:31 UTC, noon by ship's time is at 2:00 UTC.
    EXPECT_EQ(march.moonAge, "20.6 days");
    EXPECT_EQ(march.moonPhase, "waning gibbous");
    EXPECT_EQ(march.event(Sunrise).bearing, "087.0");
    EXPECT_EQ(march.event(SunPassage).altitude, "69°40.0'");
    EXPECT_EQ(march.event(Moonset).altitude, "") << "of passages alone";
    // One end of a twilight alone.
    const SkyDay winter = dayOf({"2026/12/21 12:00", "75", "20", "", "", "", "1"});
    EXPECT_EQ(winter.morning, winter.event(NauticalDawn).ships + " – ..");
    EXPECT_EQ(winter.middleOfMorning, winter.event(NauticalDawn).utc);
    const SkyDay light = dayOf({"2026/6/21 12:00", "60", "20", "", "", "", "1"});
    EXPECT_EQ(light.morning, ".. – " + light.event(CivilDawn).ships);
    EXPECT_EQ(light.evening, light.event(CivilDusk).ships + " – ..");
    EXPECT_EQ(light.middleOfMorning, light.event(CivilDawn).utc);
    EXPECT_EQ(light.middleOfEvening, light.event(CivilDusk).utc);
    const SkyDay summer = dayOf({"2026/6/21 12:00", "75", "20", "", "", "", "1"});
    EXPECT_FALSE(summer.middleOfMorning || summer.middleOfEvening);
    const SkyDay south = dayOf({"2026/11/22 12:00", "-35", "140", "", "", "", "9.5"});
    EXPECT_EQ(south.event(SunPassage).bearing, "000.0");
    EXPECT_EQ(south.date, "Sun 2026/11/22, TD +9.5");
    EXPECT_EQ(dayOf({"2026/11/9 12:00", "35", "140", "", "", "", "9"}).moonLit, "0 %");
    EXPECT_EQ(dayOf({"2026/12/24 12:00", "35", "140", "", "", "", "9"}).moonLit, "100 %") << "full";
}

// Times are to the nearest minute, and the last one of a day is its 24:00.
TEST(SkyDay, midnightIsOfTheDayThatIsShown)
{
    SkyPlaces places;
    std::set<std::string> midnights;
    for (int step = 0; step < 480; ++step) {
        const std::string longitude =
            std::to_string(105 + step / 12) + "." + std::to_string(step % 12 * 5 + 100).substr(1);
        const SkyInput input =
            inputOf({"2026/11/17 12:00", "35", longitude.c_str(), "", "", "", "9"});
        const SkyDay day = CalculateDay(input, places);
        for (const SkyEventLine& line : day.events) {
            if (!line.utc) continue;
            const auto minutes = std::lround((*line.utc - day.ship->day) * 1440);
            EXPECT_EQ(line.ships,
                      minutes == 1440 ? "24:00" : Format(double(minutes) / 1440, "hh:mm"))
                << line.name << longitude;
            EXPECT_GE(*line.utc, day.ship->day);
            if (minutes == 0 || minutes == 1440) midnights.insert(line.ships);
        }
    }
    EXPECT_EQ(midnights, (std::set<std::string>{"00:00", "24:00"}));
}

TEST(SkyDay, placesThatAreKeptAreThoseOfTheirDay)
{
    SkyPlaces kept;
    for (const char* date : {"2026/11/22", "2026/11/23", "2026/11/23", "2026/5/1", "2026/11/22"}) {
        const SkyInput input = inputOf({date, "35", "140", "", "", "", "9"});
        SkyPlaces fresh;
        const SkyDay again = CalculateDay(input, kept), day = CalculateDay(input, fresh);
        for (std::size_t i = 0; i < skyEvents; ++i)
            EXPECT_EQ(again.events[i].utc, day.events[i].utc) << date << " " << day.events[i].name;
    }
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
    // To their limits, and no further.
    const struct {
        SkyBox box;
        std::vector<const char*> good, bad;
    } limits[] = {
        {SkyBox::Latitude, {"90", "-90"}, {"90.001", "-90.001"}},
        {SkyBox::Longitude, {"180", "-180"}, {"180.001", "-180.001"}},
        {SkyBox::Course, {"0", "360"}, {"-0.1", "360.1"}},
        {SkyBox::Speed, {"0", "100"}, {"-0.1", "100.1"}},
        {SkyBox::HeightOfEye, {"0", "200"}, {"-0.1", "200.1"}},
        {SkyBox::IndexError, {"-60", "60"}, {"-60.1", "60.1"}},
        {SkyBox::TD, {"-12", "14"}, {"-12.1", "14.1"}},
    };
    SkyPlaces places;
    for (const auto& each : limits) {
        SkyInput input = inputOf({"2026/11/22 12:00", "10", "140"});
        for (const bool isGood : {true, false})
            for (const char* typed : isGood ? each.good : each.bad) {
                input.txtSky[placeOf(each.box)] = typed;
                EXPECT_EQ(CalculateDay(input, places).hasTimes(), isGood)
                    << SkyFields[placeOf(each.box)].words << " " << typed;
            }
    }
    // Fourteen days on one course, as long as one likes at anchor.
    EXPECT_TRUE(dayOf({"2026/11/1", "10", "140", "90", "1", "", "9", "2026/11/15"}).hasTimes());
    EXPECT_FALSE(dayOf({"2026/11/1", "10", "140", "90", "1", "", "9", "2026/11/16"}).hasTimes());
    EXPECT_TRUE(dayOf({"2026/11/16", "10", "140", "90", "1", "", "9", "2026/11/3"}).hasTimes());
    EXPECT_FALSE(dayOf({"2026/11/16", "10", "140", "90", "1", "", "9", "2026/11/1"}).hasTimes());
    EXPECT_TRUE(dayOf({"2026/11/1", "10", "140", "90", "0", "", "9", "2027/2/1"}).hasTimes());
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
    for (const auto& [elongation, name] : {std::pair(0.0, "new Moon"),
                                           {356.5, "new Moon"},
                                           {355.5, "waning crescent"},
                                           {45.0, "waxing crescent"},
                                           {93.9, "first quarter"},
                                           {94.1, "waxing gibbous"},
                                           {180.0, "full Moon"},
                                           {270.0, "last quarter"}})
        EXPECT_EQ(phaseName(NavFunc113::Degrees(elongation)), name) << elongation;
}

} // namespace
} // namespace korvel
