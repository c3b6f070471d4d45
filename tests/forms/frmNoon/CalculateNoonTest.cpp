// SPDX-License-Identifier: MIT
#include "forms/frmNoon/CalculateNoon.h"

#include "forms/frmNoon/NoonWorking.h"
#include "navlib/ship/propulsion.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace korvel
{
namespace
{

using namespace NavFunc113;
using ::testing::HasSubstr;

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
    input.boxes.stopped = "30";
    EXPECT_THAT(CalculateNoon(input).notice, HasSubstr("no time is left"));
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
