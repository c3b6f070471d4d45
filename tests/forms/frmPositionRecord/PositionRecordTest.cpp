// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/FixTime.h"
#include "forms/frmPositionRecord/RecordList.h"
#include "forms/frmPositionRecord/RecordMemory.h"
#include "forms/frmPositionRecord/RecordPaper.h"
#include "forms/frmPositionRecord/RecordText.h"

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

} // namespace
} // namespace korvel
