// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/FixTime.h"
#include "forms/frmPositionRecord/RecordList.h"
#include "forms/frmPositionRecord/RecordMemory.h"
#include "forms/frmPositionRecord/RecordPaper.h"
#include "forms/frmPositionRecord/RecordText.h"
#include "navlib/datetime.h"

#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::HasSubstr;

const PositionRow days[] = {{"2024/05/01 12:00", "9", "35.00", "142.00"},
                            {"2024/05/02 12:00", "10", "36.30", "148.15"},
                            {"2024/05/03 12:00", "10", "38.05", "154.50"},
                            {"2024/05/04 12:00", "11", "39.405", "161.372"}};

PositionRecordInput fourDays()
{
    PositionRecordInput input;
    std::copy(std::begin(days), std::end(days), input.rows.begin());
    return input;
}

/// "3.day=1", a row as on the first day; "3.SMT", "3.TD", "3.lat" and "3.long", its boxes.
void type(PositionRecordInput& input, const GoldenPair& box)
{
    static const std::map<std::string, std::string PositionRow::*> boxes = {
        {"SMT", &PositionRow::satelliteSMT},
        {"TD", &PositionRow::satelliteTD},
        {"lat", &PositionRow::latitude},
        {"long", &PositionRow::longitude}};
    if (box.name == "course")
        input.courseSteered = box.text;
    else if (box.name == "speed")
        input.speedSteered = box.text;
    else if (box.name == "typing")
        input.typingTimeIn = std::stoul(box.text) - 1;
    else if (box.name == "now")
        input.now = readFixTime(box.text);
    else {
        PositionRow& row = input.rows.at(std::stoul(box.name) - 1);
        const std::string name = box.name.substr(2);
        if (name == "day")
            row = days[std::stoul(box.text) - 1];
        else
            row.*boxes.at(name) = box.text;
    }
}

std::map<std::string, std::string> shown(const PositionRecordResult& record)
{
    std::map<std::string, std::string> texts = {
        {"miles", record.totalDistance},
        {"hours", record.totalHours},
        {"average", record.averageSpeed},
        {"dayRun", record.dayRun},
        {"set", record.set},
        {"drift", record.drift},
        {"notice", record.notice},
    };
    for (std::size_t i = 0; i < positionRowCount; ++i) {
        const PositionRowResult& row = record.rows[i];
        const std::string number = std::to_string(i + 1) + ".";
        texts[number + "utc"] = row.utc;
        texts[number + "assumed"] = row.assumedTD;
        texts[number + "course"] = row.course;
        texts[number + "miles"] = row.distance;
        texts[number + "hours"] = row.hours;
        texts[number + "knots"] = row.speed;
        texts[number + "dayRun"] = row.dayRun;
        texts[number + "order"] = row.outOfOrder ? "out" : "";
        texts[number + "remark"] = row.remark;
    }
    return texts;
}

TEST(PositionRecord, whatTheRowsShow)
{
    RecordMemory memory;
    for (const Golden& row : golden("position_record")) {
        PositionRecordInput input;
        for (const GoldenPair& box : row.pairs("typed"))
            type(input, box);
        expectTexts(row, "shows", shown(CalculatePositionRecord(input)));
        // Whatever was typed before.
        EXPECT_EQ(shown(CalculatePositionRecord(input, memory)),
                  shown(CalculatePositionRecord(input)))
            << row;
    }
}

TEST(PositionRecord, aPaperHasLegsFromTheSecondFixOn)
{
    for (const std::size_t fixes : {0U, 1U, 2U}) {
        PositionRecordInput input;
        std::copy_n(std::begin(days), fixes, input.rows.begin());
        WorkingPaper paper;
        tellRecord(paper, input, CalculatePositionRecord(input));
        EXPECT_EQ(paper.tables.size(), fixes);
        EXPECT_EQ(paper.workings.at(0).whyNone.empty(), fixes == 2);
    }
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
    EXPECT_EQ(input.rows, full);
    deleteRow(input.rows, positionRowCount - 1);
    EXPECT_TRUE(input.rows.back().isEmpty());
    EXPECT_TRUE(insertRow(input.rows, positionRowCount - 1));
}

TEST(PositionRecord, copiedText)
{
    auto input = fourDays();
    input.rows[4] = {"half typed", "", "36.", ""};
    input.rows[5] = {"", "-3.5", "", ""};
    const std::string text = positionRecordText(input, CalculatePositionRecord(input));
    EXPECT_THAT(text, HasSubstr("1\t2024/05/01 12:00\t+9.0\t2024/05/01 03:00\t35°00.0'N\t"
                                "142°00.0'E\t<073.6>\t318.'6\t23.0\t13.85\t\t\n"));
    EXPECT_THAT(text, HasSubstr("5\thalf typed\t"));
    EXPECT_THAT(text, HasSubstr("\n6\t\t-3.5\t\t"));
    EXPECT_THAT(text, HasSubstr("\t980.'5\t70.0\t14.01\n"));
    EXPECT_THAT(text, HasSubstr("\nMiles\t1nm=1' (of LATITUDE) (sphere)\n"));
    EXPECT_EQ(std::ranges::count(text, '\n'), 9);
}

/// "2024/05/01 12:00|9.0|35.0|142.0".
PositionRow boxesIn(const std::string& text)
{
    std::istringstream cells(text);
    PositionRow row;
    for (std::string PositionRow::*cell : {&PositionRow::satelliteSMT, &PositionRow::satelliteTD,
                                           &PositionRow::latitude, &PositionRow::longitude})
        std::getline(cells, row.*cell, '|');
    return row;
}

TEST(PositionRecord, aListNamesItsRowsAndHasNoSpeedWithoutHours)
{
    PositionRecordInput input = fourDays();
    input.rows[1] = {};
    input.rows[2].satelliteSMT = "2024/05/01 13:00"; // the same moment as the first
    input.rows[3].satelliteSMT = "2024/05/01 14:30";
    const PositionRecordResult result = CalculatePositionRecord(input);
    const ExportTable list = recordList(input, result);
    ASSERT_EQ(list.rows.size(), 3U);
    EXPECT_EQ(list.rows[0][8], "0.0000");
    EXPECT_EQ(list.rows[0][9], "");
    EXPECT_NE(list.rows[1][9], "") << "half an hour";
    EXPECT_EQ(list.rows[2][6], "") << "nothing follows";
    const ExportLine track = trackOf(result);
    ASSERT_EQ(track.points.size(), 3U);
    EXPECT_EQ(track.points[0].name, "row 1");
    EXPECT_EQ(track.points[1].name, "row 3");
    EXPECT_DOUBLE_EQ(track.points[1].latitude.value(), 38 + 5 / 60.0);
}

TEST(PositionRecord, aSavedListIsReadWholeOrNotAtAll)
{
    auto input = fourDays();
    for (std::size_t i : {0U, 1U, 3U})
        input.rows[i] = {};
    const std::string list = csvText(recordList(input, CalculatePositionRecord(input)));
    EXPECT_EQ(readRecordList(list).rows[2].latitude, "38.05");
    const std::string heading = list.substr(0, list.find('\n') + 1);
    std::string unclosed = list;
    unclosed.insert(unclosed.find("row,") + 4, "\"").insert(unclosed.find(",TD"), "\"x");
    for (const auto& [text, fault] : {std::pair(std::string(), "line 1: it is not the heading"),
                                      {"row" + heading, "line 1: it is not the heading"},
                                      {unclosed, "line 1: it is not the heading"},
                                      {heading, "line 2: there is no row"}})
        EXPECT_THAT(readRecordList(text).fault, HasSubstr(fault)) << text;
    for (const Golden& row : golden("record_lists")) {
        std::string line = row.text("line");
        std::ranges::replace(line, '\'', '"');
        const ReadList read = readRecordList(list + line + "\r\n");
        EXPECT_EQ(read.rows == PositionRows{}, !row.text("says").empty()) << row << read.fault;
        EXPECT_THAT(read.fault, HasSubstr(row.text("says"))) << row;
        if (row.has("boxes")) {
            EXPECT_THAT(read.rows, ::testing::Contains(boxesIn(row.text("boxes")))) << row;
        }
        // Cut off behind its last field.
        const ReadList cut = readRecordList(list + line);
        EXPECT_EQ(cut.rows, read.rows) << row;
        EXPECT_EQ(cut.fault, read.fault) << row;
    }
}

/// 13:53:20 of a day.
NavFunc113::DateTime at(int year, int month, int day)
{
    return NavFunc113::MakeDateTime({year, month, day}, 50000);
}

TEST(FixTime, shortFormsBecomeFullOnes)
{
    const auto today = at(2024, 3, 13);
    const struct {
        const char* typed;
        const char* text;
    } rows[] = {{"930", "2024/03/13 09:30"},
                {" 09:30:15 ", "2024/03/13 09:30:15"},
                {"0000", "2024/03/13 00:00"},
                {"1358", "2024/03/13 13:58"}, // by a watch that is fast
                {"13:58:18", "2024/03/13 13:58:18"},
                {"13:58:22", "2024/03/12 13:58:22"},
                {"1359", "2024/03/12 13:59"},
                {"09:30:59", "2024/03/13 09:30:59"},
                {" 930 ", "2024/03/13 09:30"},
                {"0009:30", "2024/03/13 09:30"},
                {"14 -  0930", "2024/03/14 09:30"},
                {"2199/12/31 2359", "2199/12/31 23:59"},
                {"2359", "2024/03/12 23:59"}, // no fix of tonight yet
                {"13-2359", "2024/03/13 23:59"},
                {"14-0930", "2024/03/14 09:30"}, // a day ahead: beyond the date line it is tomorrow
                {"15-0930", "2024/02/15 09:30"},
                {"31-23:59", "2024/01/31 23:59"}, // February has no 31st
                {"12/31 2200", "2023/12/31 22:00"},
                {"2/29-0930", "2024/02/29 09:30"},
                {"3/15 0930", "2023/03/15 09:30"},
                {"2025/5/1 9:30", "2025/05/01 09:30"}, // a full date is kept, future or not
                {"24/5/1-0930", "2024/05/01 09:30"},
                {"１４－０９３０", "2024/03/14 09:30"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed);
        const auto [text, fault] = NormaliseSMT(row.typed, today);
        EXPECT_EQ(text, row.text);
        EXPECT_EQ(fault, "");
        EXPECT_EQ(NormaliseSMT(text, at(2030, 1, 1)).text, text) << "once full, it stays";
    }
    EXPECT_EQ(NormaliseSMT("31-0930", at(2023, 12, 30)).text, "2023/12/31 09:30");
    EXPECT_EQ(NormaliseSMT("1-0930", at(2023, 12, 31)).text, "2024/01/01 09:30") << "over New Year";
    EXPECT_EQ(NormaliseSMT("2359", at(2024, 1, 1)).text, "2023/12/31 23:59");
    EXPECT_EQ(NormaliseSMT("2/29-0930", at(2104, 2, 27)).text, "2096/02/29 09:30")
        << "2100 is no leap year";
    EXPECT_EQ(NormaliseSMT("", today).text, "");
    EXPECT_EQ(NormaliseSMT("", today).fault, "");
}

TEST(FixTime, whatMakesNoSenseIsNamedAndKept)
{
    const struct {
        const char* typed;
        const char* fault;
    } rows[] = {{"2400", "2400: hours go from 00 to 23"},
                {"0960", "0960: minutes go from 00 to 59"},
                {"14-09:60", "09:60: minutes go from 00 to 59"},
                {"9:30:60", "9:30:60: seconds go from 00 to 59"},
                {"32-0930", "32 is no day of a month"},
                {"2/30 0930", "2/30 is no date"},
                {"2023/2/29 0930", "\"2023/2/29\" is no date"},
                {"9999/12/31 2359", "years from 1900 to 2199"},
                {"2200/1/1 0930", "years from 1900 to 2199"},
                {"1899/12/31 0930", "before 1900"},
                {"2024/5/1", "the time is missing"},
                {"09", "is no time"},
                {"9:30:", "is no time"},
                {"9:30:x", "is no time"},
                {"x:30", "is no time"},
                {"00009:30", "is no time"},
                {"9:30:15:1", "is no time"},
                {"x/5 0930", "x/5 is no date"},
                {"1/2/3/4 0930", "1/2/3/4 is no date"},
                {"-0930", "is no day of a month"},
                {"14-09a0", "is no time"},
                {"99999999999-0930", "is no day of a month"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed);
        const auto [text, fault] = NormaliseSMT(row.typed, at(2024, 3, 13));
        EXPECT_EQ(text, row.typed);
        EXPECT_THAT(fault, HasSubstr(row.fault));
        EXPECT_EQ(faultOfFixTime(row.typed), fault);
        EXPECT_FALSE(readFixTime(row.typed));
    }
}

TEST(FixTime, onlyAFullOneCounts)
{
    EXPECT_FALSE(readFixTime("0930")) << "not yet turned into a date";
    EXPECT_EQ(faultOfFixTime("0930"), "0930: the date is missing");
    EXPECT_FALSE(readFixTime(" "));
    EXPECT_EQ(faultOfFixTime(""), "");
    EXPECT_EQ(readFixTime("2024/05/01 12:00"), NavFunc113::MakeDateTime({2024, 5, 1}, 43200));
}

} // namespace
} // namespace korvel
