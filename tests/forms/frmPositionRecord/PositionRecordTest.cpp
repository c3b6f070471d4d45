// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/PositionRecord.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <initializer_list>

namespace korvel
{
namespace
{

using testing::HasSubstr;

PositionRecordInput record(std::initializer_list<PositionRow> rows)
{
    PositionRecordInput input;
    std::copy(rows.begin(), rows.end(), input.rows.begin());
    return input;
}

PositionRecordInput fourDays()
{
    return record({{"2024/05/01 12:00", "9", "35.00", "142.00"},
                   {"2024/05/02 12:00", "10", "36.30", "148.15"},
                   {"2024/05/03 12:00", "10", "38.05", "154.50"},
                   {"2024/05/04 12:00", "11", "39.405", "161.372"}});
}

// Distances before rounding, by hand from meridional parts: 318.6495, 329.5569, 332.2854.
TEST(PositionRecord, fourDaysEastboundWithTwoClockChanges)
{
    const PositionRecordResult result = CalculatePositionRecord(fourDays());
    const struct {
        const char *utc, *course, *distance, *hours, *speed, *dayRun;
    } rows[] = {
        {"2024/05/01 03:00", "<073.6>", "318.'6", "23.0", "13.85", ""},
        {"2024/05/02 02:00", "<073.2>", "329.'6", "24.0", "13.73", "318.'6 in 23.0 h"},
        {"2024/05/03 02:00", "<073.3>", "332.'3", "23.0", "14.45", "329.'6 in 24.0 h"},
        {"2024/05/04 01:00", "", "", "", "", "332.'3 in 23.0 h"},
    };
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(result.rows[i].utc, rows[i].utc);
        EXPECT_EQ(result.rows[i].course, rows[i].course);
        EXPECT_EQ(result.rows[i].distance, rows[i].distance);
        EXPECT_EQ(result.rows[i].hours, rows[i].hours);
        EXPECT_EQ(result.rows[i].speed, rows[i].speed);
        EXPECT_EQ(result.rows[i].dayRun, rows[i].dayRun);
        EXPECT_FALSE(result.rows[i].outOfOrder);
    }
    EXPECT_EQ(result.totalDistance, "980.'5");
    EXPECT_EQ(result.totalHours, "70.0");
    EXPECT_EQ(result.averageSpeed, "14.01");
    EXPECT_EQ(result.dayRun, "332.'3 in 23.0 h");
    EXPECT_EQ(result.notice, "");
}

TEST(PositionRecord, acrossTheDateLineTheSameNoonComesTwice)
{
    const auto eastbound = record({{"2024/03/10 12:00", "12", "40.00", "178.30"},
                                   {"2024/03/10 12:00", "-12", "40.30", "-174.50"}});
    const PositionRecordResult result = CalculatePositionRecord(eastbound);
    EXPECT_EQ(result.rows[0].utc, "2024/03/10 00:00");
    EXPECT_EQ(result.rows[1].utc, "2024/03/11 00:00");
    EXPECT_EQ(result.rows[0].course, "<084.4>");
    EXPECT_EQ(result.rows[1].dayRun, "308.'0 in 24.0 h");

    const auto westbound = record({{"2024/03/10 12:00", "-12", "40.30", "-174.50"},
                                   {"2024/03/12 12:00", "12", "40.00", "178.30"}});
    EXPECT_EQ(CalculatePositionRecord(westbound).rows[0].course, "<264.4>");
    EXPECT_EQ(CalculatePositionRecord(westbound).rows[0].hours, "24.0");
}

TEST(PositionRecord, setAndDriftSinceTheLastFix)
{
    auto input = fourDays();
    input.rows[2] = {};
    input.rows[3] = {};
    input.courseSteered = "074";
    input.speedSteered = "15.0";
    const PositionRecordResult result = CalculatePositionRecord(input);
    EXPECT_EQ(result.set, "259");
    EXPECT_EQ(result.drift, "26.'4 = 1.15 kn");

    input.speedSteered = "0"; // not under way: the current is all that moved her
    EXPECT_EQ(CalculatePositionRecord(input).set, "074");
    EXPECT_EQ(CalculatePositionRecord(input).drift, "318.'6 = 13.85 kn");
    input.courseSteered = "361";
    EXPECT_EQ(CalculatePositionRecord(input).drift, "");
    EXPECT_EQ(CalculatePositionRecord(input).notice, "course steered: not within 0 to 360 degrees");
    input.courseSteered = "";
    EXPECT_EQ(CalculatePositionRecord(input).drift, "");
    EXPECT_EQ(CalculatePositionRecord(input).notice, "");
    input.courseSteered = "0";
    input.speedSteered = "300";
    EXPECT_EQ(CalculatePositionRecord(input).set, "");
    EXPECT_THAT(CalculatePositionRecord(input).notice, HasSubstr("across a pole"));
}

TEST(PositionRecord, rowsWithGapsAreSteppedOver)
{
    auto input = fourDays();
    std::rotate(input.rows.begin() + 1, input.rows.end() - 2, input.rows.end());
    input.rows[1] = {"2024/05/02 08:00", "9", "", "140.00"}; // no latitude yet
    const PositionRecordResult result = CalculatePositionRecord(input);
    EXPECT_EQ(result.rows[0].distance, "318.'6");
    EXPECT_EQ(result.rows[1].distance, "");
    EXPECT_EQ(result.rows[2].utc, "");
    EXPECT_EQ(result.rows[3].distance, "329.'6");
    EXPECT_EQ(result.totalDistance, "980.'5");
}

TEST(PositionRecord, aRowOutOfTimeOrderIsMarkedAndNothingAddsUp)
{
    auto input = fourDays();
    input.rows[2].satelliteSMT = "2024/05/02 09:00"; // three hours before row 2
    const PositionRecordResult result = CalculatePositionRecord(input);
    EXPECT_TRUE(result.rows[2].outOfOrder);
    EXPECT_FALSE(result.rows[3].outOfOrder);
    EXPECT_EQ(result.rows[1].hours, "-3.0");
    EXPECT_EQ(result.rows[1].speed, "");
    EXPECT_EQ(result.totalDistance, "");
    EXPECT_EQ(result.rows[3].dayRun, "") << "from noon to noon over a row out of order";
    EXPECT_EQ(result.notice, "row 3: earlier than row 2");

    // The order is that of UTC: a later time by the ship's clocks may be the earlier one.
    const auto westward = record({{"2024/05/01 12:00", "-3", "10.00", "-45.00"},
                                  {"2024/05/01 13:00", "-1", "10.00", "-44.45"}});
    EXPECT_TRUE(CalculatePositionRecord(westward).rows[1].outOfOrder);
}

TEST(PositionRecord, whatMakesNoSenseIsNamed)
{
    const struct {
        std::string PositionRow::*box;
        const char* typed;
        const char* remark;
    } rows[] = {
        {&PositionRow::latitude, "-35.75", "latitude: minutes of 75"},
        {&PositionRow::latitude, "90.01", "latitude: not within -90 to 90 degrees"},
        {&PositionRow::latitude, "x", "latitude: \"x\" is no number"},
        {&PositionRow::latitude, "-90", "no rhumb line leads here"},
        {&PositionRow::longitude, "-180.01", "longitude: not within -180 to 180 degrees"},
        {&PositionRow::longitude, "139.999", "longitude: minutes of 99.9"},
        {&PositionRow::satelliteTD, "13", "take -11.0 and the date a day earlier"},
        {&PositionRow::satelliteTD, "-12.5", "take 11.5 and the date a day later"},
        {&PositionRow::satelliteTD, "99", "TD: not within -12 to 12 hours"},
        {&PositionRow::satelliteSMT, "0930", "0930: the date is missing"},
        {&PositionRow::latitude, "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed);
        auto input = fourDays();
        input.rows[2] = input.rows[3] = {};
        input.rows[1].*row.box = row.typed;
        const PositionRecordResult result = CalculatePositionRecord(input);
        EXPECT_THAT(result.rows[1].remark, HasSubstr(row.remark));
        EXPECT_EQ(result.rows[0].distance, "");
        EXPECT_EQ(result.totalDistance, "");
        EXPECT_EQ(result.notice.empty(), result.rows[1].remark.empty());
    }
    auto input = fourDays();
    input.rows[1].latitude = "36.5999";
    EXPECT_NE(CalculatePositionRecord(input).rows[0].distance, "") << "just below 60 minutes";
    input.rows[1].latitude = "36-30N";
    EXPECT_EQ(CalculatePositionRecord(input).notice, "row 2: latitude: only 36 was read, write 36.30");
}

TEST(PositionRecord, anyTextInAnyBoxIsSurvived)
{
    const std::string endless(400, '9');
    for (const std::string& text : {endless, "-" + endless, std::string("0/0/0 0:0:0"),
                                    std::string("///"), std::string("- -"), std::string("."),
                                    std::string("90"), std::string("-90"), std::string("270")})
        for (const auto box : {&PositionRow::satelliteSMT, &PositionRow::satelliteTD,
                               &PositionRow::latitude, &PositionRow::longitude}) {
            auto input = fourDays();
            input.rows[3].*box = text;
            EXPECT_NO_THROW(CalculatePositionRecord(input)) << text;
            for (const char* course : {"0", "45", "90"}) {
                input = fourDays();
                input.courseSteered = course;
                input.speedSteered = text;
                EXPECT_NO_THROW(CalculatePositionRecord(input)) << text << " kn, " << course;
            }
        }
}

TEST(PositionRecord, courseNeverShows360)
{
    const auto north = record({{"2024/05/01 12:00", "0", "10.00", "0.00"},
                               {"2024/05/01 18:00", "0", "11.00", "-0.0002"},
                               {"2024/05/01 18:00", "0", "11.00", "-0.0002"}});
    const PositionRecordResult result = CalculatePositionRecord(north);
    EXPECT_EQ(result.rows[0].course, "<000.0>");
    EXPECT_EQ(result.rows[0].distance, "60.'0");
    EXPECT_EQ(result.rows[1].distance, "0.'0");
    EXPECT_EQ(result.rows[1].speed, "") << "no time between them";
    EXPECT_EQ(result.averageSpeed, "10.00");
}

TEST(PositionRecord, rowsAreOpenedClosedAndCleared)
{
    PositionRecordInput input = fourDays();
    const PositionRows before = input.rows;
    EXPECT_TRUE(insertRow(input.rows, 1));
    EXPECT_TRUE(input.rows[1].isEmpty());
    EXPECT_EQ(input.rows[2], before[1]);
    EXPECT_EQ(input.rows[4], before[3]);
    deleteRow(input.rows, 1);
    EXPECT_EQ(input.rows, before);
    clearRow(input.rows, 2);
    EXPECT_TRUE(input.rows[2].isEmpty());
    EXPECT_EQ(input.rows[3], before[3]);

    input.rows.back().longitude = "1";
    const PositionRows full = input.rows;
    EXPECT_FALSE(insertRow(input.rows, 0)) << "the last row would be lost";
    EXPECT_FALSE(insertRow(input.rows, positionRowCount));
    EXPECT_EQ(input.rows, full);
    deleteRow(input.rows, positionRowCount - 1);
    EXPECT_TRUE(input.rows.back().isEmpty());
    EXPECT_TRUE(insertRow(input.rows, positionRowCount - 1));
    clearRow(input.rows, positionRowCount);
}

TEST(PositionRecord, copiedText)
{
    auto input = fourDays();
    input.rows[4] = {"half typed", "", "36.", ""};
    const std::string text = positionRecordText(input, CalculatePositionRecord(input));
    EXPECT_THAT(text, HasSubstr("1\t2024/05/01 12:00\t+9.0\t2024/05/01 03:00\t35°00.0'N\t"
                                "142°00.0'E\t<073.6>\t318.'6\t23.0\t13.85\t\t\n"));
    EXPECT_THAT(text, HasSubstr("5\thalf typed\t"));
    EXPECT_THAT(text, HasSubstr("\t980.'5\t70.0\t14.01\n"));
    EXPECT_THAT(text, HasSubstr("\nMiles\t1nm=1' (of LATITUDE) (sphere)\n"));
    EXPECT_EQ(std::ranges::count(text, '\n'), 8);
}

} // namespace
} // namespace korvel
