// SPDX-License-Identifier: MIT
#include "forms/frmETA/CalculateETA.h"

#include "forms/frmETA/CalculateReqSpd.h"
#include "forms/frmETA/PassageTimes.h"
#include "forms/frmETA/Steps.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using namespace korvel::testing;

/// What the window shows after some boxes of a good passage were typed anew; "left" for labels
/// that stay as they were.
std::map<std::string, std::string> shown(const Golden& row)
{
    std::map<std::string, std::string> boxes = {
        {"date", "2024/1/1"},        {"time", "08:00"},       {"TD", "9"},
        {"arrivalTD", "-5"},         {"dist", "1000"},        {"speed", "10"},
        {"arrivalDate", "2024/1/4"}, {"arrivalTime", "22:00"}};
    for (const GoldenPair& box : row.pairs("typed"))
        boxes.at(box.name) = box.text;
    const std::array<std::string, 2> TDs = {boxes["TD"], boxes["arrivalTD"]};
    const ETAResult arrival =
        CalculateETA({boxes["date"], boxes["time"], TDs, boxes["dist"], boxes["speed"]});
    const ReqSpdResult required =
        CalculateReqSpd({{boxes["date"], boxes["time"], boxes["arrivalDate"], boxes["arrivalTime"]},
                         TDs,
                         boxes["dist"]});
    std::map<std::string, std::string> texts = {{"notice", arrival.notice},
                                                {"ETA", "left"},
                                                {"speeds", "left"},
                                                {"required", required.speed.value_or("left")},
                                                {"requiredNotice", required.notice}};
    if (arrival.labels) {
        texts["ETA"] = texts["speeds"] = "";
        for (std::size_t i = 0; i < 5; ++i) {
            texts["ETA"] += (i ? "|" : "") + arrival.labels->lblETA[i];
            texts["speeds"] += (i ? "|" : "") + arrival.labels->lblSPD[i];
        }
    }
    return texts;
}

TEST(CalculateETA, arrivalsAndTheSpeedRequired)
{
    for (const Golden& row : golden("passages"))
        expectTexts(row, "shows", shown(row));
    EXPECT_FALSE(
        CalculateETA({"2024/1/1", "08:00", {"9", "9"}, std::string(400, '9'), "10"}).labels)
        << "no number holds it";
    EXPECT_EQ(CalculateReqSpd(
                  {{"2024/1/1", "08:00", "2024/1/2", "08:00"}, {"9", "9"}, std::string(400, '9')})
                  .notice,
              "A number is too large.");
}

TEST(Steps, timesMoveByWholeHours)
{
    for (const Golden& row : golden("stepped_times")) {
        const auto texts =
            steppedTime(row.text("date"), row.text("time"), static_cast<int>(row.integer("hours")));
        EXPECT_EQ(texts ? texts->date : "", row.text("newDate")) << row;
        EXPECT_EQ(texts ? texts->time : "", row.text("newTime")) << row;
    }
    for (int hour = 0; hour < 24; ++hour) { // no hour loses itself in its day fraction
        const std::string text = std::to_string(hour) + ":00";
        EXPECT_EQ(steppedTime("2024/5/5", text, 0)->time, text);
    }
    const auto now = EnterPresent(45292 + 9.99 / 24);
    EXPECT_EQ(now.date, "2024/1/1");
    EXPECT_EQ(now.time, "09:00");
    // The sum of two day fractions is a hair short of the hour.
    EXPECT_EQ(EnterPresent(38425 + 1.0 / 24, "1", 0).time, "02:00");
}

TEST(Steps, speedsMoveByQuarterKnots)
{
    EXPECT_EQ(speedOfStep(51), "12.75");
    EXPECT_EQ(stepOfSpeed("12.8"), 51);
    EXPECT_EQ(stepOfSpeed("0.2"), 1);
    EXPECT_EQ(stepOfSpeed("-3"), 0);
    EXPECT_EQ(stepOfSpeed(std::string(400, '9')), 200) << "50 knots";
    EXPECT_EQ(speedOnLeaving("0"), "0.00");
    EXPECT_EQ(speedOnLeaving("0.1"), std::nullopt) << "under way";
    EXPECT_EQ(speedOnLeaving("x"), std::nullopt);
    EXPECT_EQ(speedOnLeaving("12.62"), "12.50");
    EXPECT_EQ(speedOnLeaving("12.625"), "12.75");
    EXPECT_EQ(speedOnLeaving("50"), "50.00");
    EXPECT_EQ(speedOnLeaving("50.1"), std::nullopt);
    EXPECT_EQ(speedOnLeaving("-1"), std::nullopt) << "left as it was typed";
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
