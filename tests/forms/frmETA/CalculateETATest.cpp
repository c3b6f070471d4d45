// SPDX-License-Identifier: MIT
#include "forms/frmETA/CalculateETA.h"

#include "forms/frmETA/CalculateReqSpd.h"
#include "forms/frmETA/PassageTimes.h"
#include "forms/frmETA/Steps.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using ::testing::HasSubstr;
using ::testing::StartsWith;

using testing::Each;
using testing::ElementsAre;

TEST(CalculateETA, fiveSpeedsAndTheirArrivals)
{
    const auto result = CalculateETA({"2024/1/1", "08:00", {"9", "-5"}, "1000", "10"});
    ASSERT_TRUE(result.labels);
    EXPECT_EQ(result.labels->lblETA[0], "01/04 22:00LT");
    EXPECT_THAT(result.labels->lblSPD,
                ElementsAre("10.00 ", "10.25 ", "10.50 ", "10.75 ", "11.00 "));
    EXPECT_EQ(result.labels->lblETA[4], "01/04 12:54LT"); // 90.909 hours

    const auto leap = CalculateETA({"2024/2/28", "23:30", {"0", "0.5"}, "12.5", "12.5"});
    EXPECT_THAT(leap.labels->lblSPD, ElementsAre("12.50 ", "12.75 ", "13.00 ", "13.25 ", "13.50 "));
    EXPECT_EQ(leap.labels->lblETA[0], "02/29 01:00LT") << "one hour, and half an hour of zone";
    const auto dateline = CalculateETA({"2023/12/31", "12:00", {"12", "-12"}, "", "5"});
    EXPECT_EQ(dateline.labels->lblETA[0], "12/30 12:00LT") << "no distance, a day gained";
}

TEST(CalculateETA, whatKeepsTheLabelsAndWhatBlanksThem)
{
    const ETAInput good{"2024/1/1", "08:00", {"9", "-5"}, "1000", "10"};
    const auto with = [&good](auto member, auto... text) {
        ETAInput input = good;
        ((input.*member = text), ...);
        return CalculateETA(input);
    };
    using TDs = std::array<std::string, 2>;
    const ETAResult kept[] = {
        with(&ETAInput::departureDate, "2024/2/30"),
        with(&ETAInput::departureTime, "25:00"),
        with(&ETAInput::txtTD, TDs{"12.1", "0"}),
        with(&ETAInput::txtTD, TDs{"0", "-13"}),
        with(&ETAInput::txtDist, "-1"),
        with(&ETAInput::txtSpeed, "-0.5"),
        with(&ETAInput::txtSpeed, std::string(60, '9')),
        with(&ETAInput::txtDist, std::string(400, '9')),
    };
    for (const ETAResult& result : kept) {
        EXPECT_FALSE(result.labels);
        EXPECT_NE(result.notice, "");
    }
    for (const char* speed : {"0", "", "abc", "0.000"}) {
        const auto result = with(&ETAInput::txtSpeed, speed);
        ASSERT_TRUE(result.labels);
        EXPECT_THAT(result.labels->lblETA, Each(""));
        EXPECT_THAT(result.labels->lblSPD, Each(""));
        EXPECT_THAT(result.notice, StartsWith("The speed is 0"));
    }
    EXPECT_EQ(with(&ETAInput::txtDist, "5,000").notice,
              "Distance: only 5 was read, write 5000 or 5.000");
    EXPECT_THAT(with(&ETAInput::departureDate, "08:00").notice, HasSubstr("time where a date"));
    const auto never = with(&ETAInput::txtDist, "99999999999");
    EXPECT_THAT(never.labels->lblETA, Each("")) << "beyond the calendar";
    EXPECT_THAT(never.notice, HasSubstr("beyond the calendar"));
    EXPECT_TRUE(with(&ETAInput::txtTD, TDs{"12", "-12"}).labels);
}

TEST(CalculateReqSpd, speedBetweenTwoZones)
{
    const ReqSpdInput good{{"2024/1/1", "08:00", "2024/1/4", "22:00"}, {"9", "-5"}, "1000"};
    EXPECT_EQ(CalculateReqSpd(good).speed, "10.00");
    const auto arriving = [&good](const char* date, const char* time, const char* dist = "1000") {
        ReqSpdInput input = good;
        input.txtTime[2] = date;
        input.txtTime[3] = time;
        input.txtDist = dist;
        return CalculateReqSpd(input).speed;
    };
    EXPECT_EQ(arriving("2023/12/31", "19:00"), "1000.00") << "earlier by the clock, later in UTC";
    EXPECT_EQ(arriving("2023/12/31", "18:00"), std::nullopt) << "the same moment";
    EXPECT_EQ(arriving("2024/1/", "22:00"), std::nullopt);
    EXPECT_EQ(arriving("2024/1/4", "22:00", ""), "0.00");
    EXPECT_EQ(arriving("2024/1/4", "22:00", "-5"), std::nullopt);
}

TEST(Steps, timesMoveByWholeHours)
{
    const struct {
        const char* date;
        const char* time;
        int hours;
        const char* newDate;
        const char* newTime;
    } rows[] = {{"2024/1/1", "08:30", 1, "2024/1/1", "9:00"},
                {"2024/1/1", "09:00", 0, "2024/1/1", "9:00"},
                {"2024/12/31", "23:10", 1, "2025/1/1", "0:00"},
                {"2024/3/1", "00:00", -1, "2024/2/29", "23:00"},
                {"24/3/1", "7:00", 240, "2024/3/11", "7:00"}};
    for (const auto& row : rows) {
        const auto texts = steppedTime(row.date, row.time, row.hours);
        ASSERT_TRUE(texts);
        EXPECT_EQ(texts->date, row.newDate);
        EXPECT_EQ(texts->time, row.newTime);
    }
    for (int hour = 0; hour < 24; ++hour) { // no hour loses itself in its day fraction
        const std::string text = std::to_string(hour) + ":00";
        EXPECT_EQ(steppedTime("2024/5/5", text, 0)->time, text);
    }
    EXPECT_FALSE(steppedTime("2024/13/1", "08:00", 1));
    EXPECT_FALSE(steppedTime("9999/12/31", "23:00", 1));
    const auto now = EnterPresent(45292 + 9.99 / 24);
    EXPECT_EQ(now.date, "2024/1/1");
    EXPECT_EQ(now.time, "09:00");
}

TEST(Steps, speedsMoveByQuarterKnots)
{
    EXPECT_EQ(speedOfStep(51), "12.75");
    EXPECT_EQ(stepOfSpeed("12.8"), 51);
    EXPECT_EQ(stepOfSpeed(std::string(400, '9')), speedStepLimit);
    EXPECT_EQ(speedOnLeaving("12.62"), "12.50");
    EXPECT_EQ(speedOnLeaving("12.625"), "12.75");
    EXPECT_EQ(speedOnLeaving("50"), "50.00");
    EXPECT_EQ(speedOnLeaving("50.1"), std::nullopt);
}

TEST(PassageTimes, bothSignsOfATimeDifference)
{
    EXPECT_EQ(TDAndZDText("9"), "TD +9, ZD -9");
    EXPECT_EQ(TDAndZDText("-9.5"), "TD -9.5, ZD +9.5");
    EXPECT_EQ(TDAndZDText("0"), "TD 0, ZD 0");
    EXPECT_EQ(TDAndZDText("12.1"), "");
}

} // namespace
} // namespace korvel
