// SPDX-License-Identifier: MIT
#include "forms/frmNoon/CalculateNoon.h"

#include "forms/frmNoon/NoonWorking.h"
#include "navlib/ship/propulsion.h"
#include "tests/forms/WorkingLines.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace korvel
{
namespace
{

using namespace NavFunc113;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

NoonInput noonOf(std::initializer_list<PositionRow> rows)
{
    NoonInput input;
    std::size_t row = 0;
    for (const PositionRow& each : rows)
        input.record.rows[row++] = each;
    input.record.earth = Earth::Sphere;
    return input;
}

TEST(CalculateNoon, theDayHas23HoursWhereTheClocksGoForward)
{
    // 345 minutes of the equator.
    NoonInput input =
        noonOf({{"2026/11/10 12:00", "9", "0", "140"}, {"2026/11/11 12:00", "10", "0", "145.45"}});
    const NoonResult noon = CalculateNoon(input);
    EXPECT_EQ(noon.hours, "23 h 00 m");
    EXPECT_EQ(noon.run, "345.0");
    EXPECT_EQ(noon.average, "15.00");
    EXPECT_THAT(noon.between, HasSubstr("clocks 01 h 00 m forward"));
    input.boxes.stopped = "3";
    EXPECT_EQ(CalculateNoon(input).average, "17.25");
    for (const char* all : {"23", "30"}) {
        input.boxes.stopped = all;
        EXPECT_THAT(CalculateNoon(input).notice, HasSubstr("no time is left")) << all;
        EXPECT_EQ(CalculateNoon(input).average, "") << all;
    }
}

TEST(CalculateNoon, theDayIsThatOfTheLastTwoNoonsElseOfTheLastTwoFixes)
{
    struct Case {
        const char* fault;
        std::array<const char*, 3> times;
        const char* between;
        const char* run; // minutes of the equator, a degree from the first to the second fix
    };
    for (const Case& each : {
             Case{
                 "a fix behind the last noon", {"10 12:00", "11 12:00", "11 18:00"}, "1-2", "60.0"},
             {"half an hour past is no noon", {"10 12:00", "11 12:00", "11 12:30"}, "1-2", "60.0"},
             {"a fix between them", {"10 12:00", "10 18:00", "11 12:00"}, "1-3", "180.0"},
             {"a noon long ago", {"9 12:00", "10 12:00", "11 12:00"}, "2-3", "120.0"},
             {"one noon alone", {"10 10:00", "10 12:00", "10 16:00"}, "2-3", "120.0"},
             {"none", {"10 10:00", "10 12:30", "10 16:00"}, "2-3", "120.0"},
         }) {
        const std::string month = "2026/11/";
        const NoonInput input = noonOf({{month + each.times[0], "9", "0", "140"},
                                        {month + each.times[1], "9", "0", "141"},
                                        {month + each.times[2], "9", "0", "143"}});
        const NoonResult noon = CalculateNoon(input);
        EXPECT_EQ(noon.between, std::string("rows ") + each.between + ", TD +9 to +9: clocks kept")
            << each.fault;
        EXPECT_EQ(noon.run, each.run) << each.fault;
    }
}

TEST(CalculateNoon, westwardAcross180ADayIsLost)
{
    const NoonResult noon = CalculateNoon(
        noonOf({{"2026/11/10 12:00", "-12", "0", "-178"}, {"2026/11/12 12:00", "12", "0", "176"}}));
    EXPECT_EQ(noon.hours, "1 d 00 h 00 m");
    EXPECT_EQ(noon.average, "15.00") << "360 miles in 24 hours";
}

TEST(CalculateNoon, slipOfPublishedExamples)
{
    // 14 kn, pitch 5 m, 105 revolutions a minute, wake 0.35, over an hour.
    EXPECT_NEAR(100 * ApparentSlip(EngineMiles(Metres(5), 105 * 60), Miles(14)), 17.7, 0.05);
    EXPECT_NEAR(100 * RealSlip(EngineMiles(Metres(5), 105 * 60), Miles(14), 0.35), 46.5, 0.05);
    // Pitch 20 feet, counter 616729 to 731929, 404.16 miles: 6 degrees 44.16 minutes of the
    // equator.
    NoonInput input =
        noonOf({{"2026/11/10 12:00", "9", "0", "140"}, {"2026/11/11 12:00", "9", "0", "146.4416"}});
    input.boxes.pitch = "6.096";
    input.boxes.counter = {"616729", "731929"};
    const NoonResult noon = CalculateNoon(input);
    EXPECT_EQ(noon.run, "404.2");
    EXPECT_EQ(noon.apparentSlip, "-6.59");
    EXPECT_EQ(noon.realSlip, "");
    EXPECT_THAT(noon.notice, HasSubstr("1852 m")) << "the mile is named";
    input.boxes.counter = {"5", "5"};
    EXPECT_EQ(CalculateNoon(input).apparentSlip, "");
    EXPECT_THROW(ApparentSlip(Miles(0), Miles(1)), ArithmeticError);
}

TEST(CalculateNoon, theWayToGoIsThePlans)
{
    NoonInput input =
        noonOf({{"2026/11/10 12:00", "0", "0", "0"}, {"2026/11/11 12:00", "0", "0", "5"}});
    PlanRow a, b, c;
    a.latitude = "0", a.longitude = "0", a.zone = "0";
    b.latitude = "0", b.longitude = "6", b.speed = "12.5";
    c.latitude = "0", c.longitude = "10", c.zone = "1";
    input.plan.rows = {a, b, c};
    input.plan.times.time = "2026/11/10 12:00";
    NoonResult noon = CalculateNoon(input);
    EXPECT_EQ(noon.toGo, "300.0") << "60 to the waypoint, 240 by the plan";
    EXPECT_THAT(noon.by, HasSubstr("row 2"));
    EXPECT_THAT(testing::linesOf(noonWorkings(input, noon)[1]),
                AllOf(Contains(HasSubstr("From the fix to row 2: the plan's row = 60.0000 ")),
                      Contains(HasSubstr("Miles to go: 60.0000 + 240.0000 = 300.0000 "))));
    EXPECT_THAT(noon.eta[0], HasSubstr("12.50 kn: Thu 2026/11/12 13:00 TD +1")) << "24 hours";
    input.boxes.speeds[1] = "15";
    input.boxes.wanted = "2026/11/12 8:00";
    noon = CalculateNoon(input);
    EXPECT_THAT(noon.eta[1], HasSubstr("2026/11/12 09:00 TD +1; UTC Thu 08:00"));
    EXPECT_EQ(noon.speedNeeded, "15.79") << "19 hours by UTC";
    input.boxes.next = "3";
    EXPECT_EQ(CalculateNoon(input).toGo, "300.0");
    input.boxes.toGo = "150";
    EXPECT_EQ(CalculateNoon(input).by, "as typed");
    EXPECT_THAT(CalculateNoon(input).eta[0], HasSubstr("Thu 2026/11/12 01:00"));
    input.boxes.toGo.clear();
    input.boxes.next.clear();
    for (const auto& [box, text, said] :
         {std::tuple{&NoonBoxes::next, "4", "Next waypoint: the plan has no such row"},
          {&NoonBoxes::wanted, "2026/11/11 13:00", "it lies before the fix"},
          {&NoonBoxes::wanted, "2026/11/11 16:00", "the stops on the way take longer"}}) {
        NoonInput wrong = input;
        wrong.plan.rows[1].stop = "3";
        wrong.boxes.*box = text;
        noon = CalculateNoon(wrong);
        EXPECT_THAT(noon.notice, HasSubstr(said));
        EXPECT_EQ(noon.speedNeeded, "") << said;
    }
    // A stop where she comes next is on the way, that at the end is not; the port's TD as typed.
    input.boxes = {};
    input.boxes.portTD = "-8";
    input.plan.rows[1].stop = "3";
    input.plan.rows[2].stop = "5";
    noon = CalculateNoon(input);
    EXPECT_EQ(noon.by, "rhumb line to row 2, then by the plan; stops 03 h 00 m");
    EXPECT_EQ(noon.eta[0], "12.50 kn: Thu 2026/11/12 07:00 TD -8; UTC Thu 15:00");
    // To the first row no leg of the plan leads.
    input.boxes.next = "1";
    input.plan.rows[0].leg = LegKind::GreatCircle;
    EXPECT_THAT(CalculateNoon(input).by, HasSubstr("rhumb line to row 1, then"));
    input.plan.rows[1].latitude.clear();
    EXPECT_THAT(CalculateNoon(input).notice, HasSubstr("no way to go from its row 1"));
}

/// 345 miles of the equator in 23 hours, with every box that the mail tells something of.
NoonInput fullDay()
{
    NoonInput input =
        noonOf({{"2026/11/10 12:00", "9", "0", "140"}, {"2026/11/11 12:00", "10", "0", "145.45"}});
    input.record.courseSteered = "90";
    input.record.speedSteered = "14";
    NoonBoxes& boxes = input.boxes;
    boxes.fullAway = "1";
    boxes.stopped = "3";
    boxes.toGo = "360";
    boxes.portTD = "-8";
    boxes.speeds[1] = "12";
    boxes.wanted = "2026/11/12 12:00";
    boxes.pitch = "5";
    boxes.counter = {"100", "130100"};
    boxes.wake = "0.3";
    boxes.before[0] = "500";
    boxes.onBoard[0] = "470";
    boxes.wave = "2.5";
    boxes.swell = "3";
    boxes.visibility = "15";
    boxes.letters = "bc r";
    boxes.weather = "NW 5";
    boxes.remark = "all well";
    return input;
}

TEST(CalculateNoon, theWholeMail)
{
    const NoonInput input = fullDay();
    EXPECT_EQ(CalculateNoon(input).mail,
              "NOON REPORT\n"
              "UTC: 2026/11/11 02:00\n"
              "Position: 00°00.0'N 145°45.0'E\n"
              "Steaming time: 20 h 00 m\n"
              "Run: 345.0 nm\n"
              "Since full away: 345.0 nm in 23 h 00 m, 15.00 kn\n"
              "Average: 17.25 kn\n"
              "To go: 360.0 nm\n"
              "ETA: 17.25 kn: Wed 2026/11/11 14:52 TD -8; UTC Wed 22:52\n"
              "ETA: 12.00 kn: Thu 2026/11/12 00:00 TD -8; UTC Thu 08:00\n"
              "Speed for the wanted arrival: 8.57 kn\n"
              "Set and drift: 090°, 23.0 nm = 1.00 kn\n"
              "Engine miles: 351.0 of 1852 m\n"
              "Slip, apparent: 1.70 %\n"
              "Slip, real: 31.19 %\n"
              "ROB 1: 470 t\n"
              "Consumed 1: 30.0 t, 0.0870 t per nm\n"
              "Sea: 4-Moderate, Mod./Rough swell\n"
              "Visibility: 7-Visivility good, 8.1 nm\n"
              "Sky: bc Blue sky with clouds, r Rain\n"
              "Weather: NW 5\n"
              "Remark: all well\n");
    // The record knows the current between its last two fixes alone.
    NoonInput earlier = input;
    earlier.record.rows[2] = {"2026/11/11 18:00", "10", "0", "147"};
    EXPECT_EQ(CalculateNoon(earlier).setAndDrift, "");
    EXPECT_EQ(CalculateNoon(earlier).run, "345.0");
}

TEST(CalculateNoon, thePaperHasTheFiguresOfEveryStep)
{
    const NoonInput input = fullDay();
    const std::vector<Working> workings = noonWorkings(input, CalculateNoon(input));
    std::vector<std::string> titles, lines;
    for (const Working& working : workings) {
        titles.push_back(working.title);
        for (const std::string& line : testing::linesOf(working))
            lines.push_back(line);
    }
    EXPECT_THAT(titles, ElementsAre("The day between the fixes", "The way to go and the arrival",
                                    "Propeller", "Fuel", "Weather"));
    for (
        const char* line : {
            "Miles: 345.0000 = 345.0000 nautical miles",
            "Hours: 23.00000 - 3.00000 = 20.00000 h",
            "Average speed: 345.0000 / 20.00000 = 17.25 knots",
            "Miles since full away: 345.0000 = 345.0000 nautical miles",
            "Hours since full away: 23.00000 = 23.00000 h",
            "Distance to go: 360.0000 rounded to 0.1 = 360.0 nautical miles",
            "Hours at 17.25 kn: 360.0000 / 17.250000 + 0.00000 = 20.86957 h",
            "Hours at 12.00 kn: 360.0000 / 12.000000 + 0.00000 = 30.00000 h",
            R"(Hours to the wanted arrival: 2026-11-12T20:00:00Z - 2026-11-11T02:00:00Z = 42.00000 h)",
            "Speed for the wanted arrival: 360.0000 / (42.00000 - 0.00000) = 8.57 knots",
            "Engine miles: 5.000 × (130100 - 100) / 1852 = 350.9719 nautical miles",
            "Apparent slip: 100 × (350.9719 - 345.0000) / 350.9719 = 1.70 %",
            "Real slip: 100 × (350.9719 - 345.0000 × (1 - 0.3000)) / 350.9719 = 31.19 %",
            "Fuel 1, tons: 500.000 - 470.000 = 30.000 t",
            "Fuel 1, tons a mile: 30.000 / 345.0000 = 0.086957 t per nm",
            "Sea and swell: wave height 2.5 m, swell height 3 m = 4-Moderate, Mod./Rough swell",
        })
        EXPECT_THAT(lines, Contains(line));
    ASSERT_EQ(workings[0].tables.size(), 1U);
    EXPECT_THAT(workings[0].tables[0].rows,
                ElementsAre(ElementsAre("1 - 2", "2026-11-11T02:00:00Z", "345.0000", "23.00000")));
    // Fuel is worked without fixes too, and without a run there is none a mile.
    NoonInput inPort;
    inPort.boxes.before[1] = "500";
    inPort.boxes.onBoard[1] = "470";
    inPort.bunkers.fuels[2] = {"ULSFO", 60, 25, 80};
    const Working fuel = noonWorkings(inPort, CalculateNoon(inPort)).back();
    EXPECT_THAT(testing::linesOf(fuel),
                ElementsAre("Fuel 2, tons: 500.000 - 470.000 = 30.000 t",
                            "Consumption of fuel 2: both, rounded = 30.0 t",
                            "Fuel 3, tons: 60.000 + 25.000 - 80.000 = 5.000 t",
                            "Consumption of fuel 3: both, rounded = 5.0 t"));
    EXPECT_EQ(fuel.steps[2].formula, "the day before and received, less on board");
    NoonInput atAnchor = inPort;
    atAnchor.record.rows[0] = {"2026/11/10 12:00", "9", "0", "140"};
    atAnchor.record.rows[1] = {"2026/11/11 12:00", "9", "0", "140"};
    EXPECT_EQ(CalculateNoon(atAnchor).fuel[1], "30.0 t");
    EXPECT_EQ(noonWorkings(atAnchor, CalculateNoon(atAnchor)).back().steps.size(), 4U);
}

TEST(CalculateNoon, weatherLettersAreTheLongestThatTheLogHas)
{
    NoonInput input;
    for (const auto& [letters, words] : {std::pair{"bc", "bc Blue sky with clouds"},
                                         {"b c", "b Blue sky, c Cloudy"},
                                         {" o ", "o Overcast sky"},
                                         {"rb", "r Rain, b Blue sky"}}) {
        input.boxes.letters = letters;
        EXPECT_EQ(CalculateNoon(input).weather, words) << letters;
    }
    input.boxes.letters = "b?";
    EXPECT_EQ(CalculateNoon(input).weather, "");
    EXPECT_THAT(CalculateNoon(input).notice, HasSubstr("Weather letters: \"b?\""));
    input.boxes = {};
    input.boxes.swell = "3";
    EXPECT_EQ(CalculateNoon(input).sea, "Mod./Rough swell");
    EXPECT_THAT(CalculateNoon(input).notice, Not(HasSubstr("Weather")));
    EXPECT_THAT(CalculateNoon({}).visibility, IsEmpty());
}

TEST(CalculateNoon, theMailHasTheFieldsInTheOfficersOrder)
{
    NoonInput input =
        noonOf({{"2026/11/10 12:00", "9", "0", "140"}, {"2026/11/11 12:00", "9", "0", "145"}});
    input.boxes.before[0] = "500";
    input.boxes.onBoard[0] = "470";
    input.boxes.order = "run fuel unknown position";
    EXPECT_EQ(CalculateNoon(input).mail,
              "NOON REPORT\nRun: 300.0 nm\nROB 1: 470 t\nConsumed 1: 30.0 t, 0.1000 t "
              "per nm\nPosition: 00°00.0'N 145°00.0'E\n");
    const std::vector<Working> workings = noonWorkings(input, CalculateNoon(input));
    const auto fuel = std::ranges::find(workings, "Fuel", &Working::title);
    ASSERT_NE(fuel, workings.end());
    EXPECT_EQ(fuel->steps[0].name, "Fuel 1, tons");
    EXPECT_EQ(fuel->steps[0].formula, "the day before less on board");
    EXPECT_EQ(fuel->steps[0].figures, "500.000 - 470.000");
    EXPECT_THAT(CalculateNoon({}).notice, HasSubstr("no two fixes"));
    EXPECT_EQ(CalculateNoon({}).mail, "");
    input.boxes.fixes = {"2", "1"};
    EXPECT_THAT(CalculateNoon(input).notice, HasSubstr("not later"));
    input.boxes.fixes = {"1", "9"};
    EXPECT_THAT(CalculateNoon(input).notice, HasSubstr("no whole fix"));
}

} // namespace
} // namespace korvel
