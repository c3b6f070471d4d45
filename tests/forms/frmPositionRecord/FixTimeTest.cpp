// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/FixTime.h"

#include "navlib/datetime.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using ::testing::HasSubstr;

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
