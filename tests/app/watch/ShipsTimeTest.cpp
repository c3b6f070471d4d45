// SPDX-License-Identifier: MIT
#include "app/watch/ShipsTime.h"
#include "app/watch/clock/LocalTime.h"
#include "app/watch/clock/MakeComputerClock.h"
#include "navlib/datetime.h"
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "tests/app/FakeMachine.h"
#include "tests/golden/Golden.h"

#include <cmath>

namespace korvel
{
namespace
{

using korvel::testing::FakeClock;
using korvel::testing::FakeQuestions;
using korvel::testing::Golden;
using korvel::testing::golden;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class ShipsTimeTest : public ::testing::Test
{
protected:
    void at(const char* text) { clock.time = readDateTime(text).value(); }
    void keep(const Golden& row)
    {
        const std::string& zone = row.text("keeps");
        saved.setClockZone(zone == "JST"   ? ClockZone::JST
                           : zone == "SMT" ? ClockZone::SMT
                                           : ClockZone::UTC);
        saved.setTD(static_cast<float>(row.number("TD")));
    }
    void setUp(const std::string& answers)
    {
        questions.will(answers);
        ship.setUp();
    }
    static std::string shown(double value) { return Format(value, "yyyy/mm/dd hh:mm:ss"); }

    KV_Savedvalue saved;
    FakeQuestions questions;
    FakeClock clock;
    std::vector<std::string> clocks, captions, minutes;
    ShipsTime ship{saved,
                   questions,
                   clock,
                   {[this](const std::string& text) { clocks.push_back(text); },
                    [this](const std::string& text) { captions.push_back(text); },
                    [this](double smt) { minutes.push_back(shown(smt)); }}};
};

TEST_F(ShipsTimeTest, derivesTheOtherClocksFromTheComputersZone)
{
    at("2005/3/1 2:30");
    for (const Golden& row : golden("ship_clocks")) {
        keep(row);
        EXPECT_EQ(shown(ship.JST()), row.text("JST")) << row;
        EXPECT_EQ(shown(ship.SMT()), row.text("SMT")) << row;
        EXPECT_EQ(shown(ship.UTC()), row.text("UTC")) << row;
    }
}

TEST_F(ShipsTimeTest, drawsOnceAMinuteAndPassesItOn)
{
    at("2005/3/14 9:30:10");
    ship.JikokuHyouji();
    at("2005/3/14 9:30:59");
    ship.JikokuHyouji();
    EXPECT_EQ(clocks.size(), 1u);
    EXPECT_THAT(clocks.back(), HasSubstr("SMT 14-0930"));
    EXPECT_THAT(clocks.back(), HasSubstr("UTC 14-0030"));
    at("2005/3/14 9:31");
    ship.JikokuHyouji();
    EXPECT_THAT(minutes, ElementsAre("2005/03/14 09:30:10", "2005/03/14 09:31:00"));

    saved.setTD(-5);
    ship.refresh();
    EXPECT_EQ(minutes.size(), 2u) << "a changed TD is shown at once, without an alarm check";
    EXPECT_THAT(clocks.back(), HasSubstr("SMT 13-1931"));
    EXPECT_EQ(captions.back(), "KORVEL (5.0 hW)");

    at("2005/3/15 9:31");
    ship.JikokuHyouji();
    EXPECT_EQ(minutes.size(), 3u) << "the same minute of another day is a new minute";
}

TEST_F(ShipsTimeTest, everyMinuteBeginsWithItsFirstSecond)
{
    at("2005/3/14");
    const double day = clock.time;
    for (int second = 0; second < 86400; second += second % 60 ? 1 : 59) {
        clock.time = day + second / 86400.0; // which is rarely a whole minute to the last bit
        ship.JikokuHyouji();
        ASSERT_EQ(clocks.size(), static_cast<std::size_t>(second / 60 + 1)) << second;
    }
}

TEST_F(ShipsTimeTest, timeDifferenceIsAskedUntilItIsOne)
{
    questions.will("; OK; 12.1; OK; 9h; OK; -12.01; OK; 9.46; -12");
    ship.inputTD();
    EXPECT_EQ(questions.conversation.front(),
              "Input time difference of SMT in hours(#.#) from UTC？ <9.0>");
    EXPECT_THAT(questions.asked,
                ElementsAre(" is incorrect value.", "12.1 is incorrect value.",
                            "9h is incorrect value.", "-12.01 is incorrect value."));
    EXPECT_EQ(saved.TD(), 9.5f);
    EXPECT_EQ(captions.back(), "KORVEL (9.5 hE)");
    ship.inputTD();
    EXPECT_EQ(captions.back(), "KORVEL (12.0 hW)");
}

TEST_F(ShipsTimeTest, setUpSetsTheComputersClock)
{
    saved.setClockZone(ClockZone::UTC);
    at("2005/3/14 0:30");
    setUp("Yes; tomorrow; OK; 05/03/14 23:30; OK; 9.5");
    EXPECT_THAT(questions.conversation,
                ElementsAre("Start setting of SMT and TD.\rPresent setting as follows;\r\r"
                            "2005/03/14 09:30SMT\rＵＴＣ＋9.0 hrs\r\rDo you change the setting?",
                            "Input present time in SMT. <05/03/14 09:30>", "Incorrect value.",
                            "Input present time in SMT. <05/03/14 09:30>",
                            "SMT was changed as  05/03/14 23:30", HasSubstr("<9.0>")));
    ASSERT_EQ(clock.sets.size(), 1u);
    EXPECT_EQ(shown(clock.sets.front()), "2005/03/14 14:00:00");
    EXPECT_THAT(clocks.back(), HasSubstr("SMT 14-2330"));
    setUp("Yes; 00:00; OK; 9.5");
    EXPECT_EQ(shown(clock.sets.back()), "2005/03/13 14:30:00") << "midnight alone is of this day";
}

TEST_F(ShipsTimeTest, setUpCanBeLeftWithoutAChange)
{
    setUp("No");
    setUp("Yes; 05/03/14 23:30; Cancel");
    EXPECT_TRUE(clock.sets.empty());
    EXPECT_EQ(saved.TD(), 9.0f);
}

TEST_F(ShipsTimeTest, aClockThatCannotBeSetIsKeptAsAnOffsetAndToldOnce)
{
    at("2005/3/14 9:30");
    clock.refusal = "no right";
    setUp("Yes; 05/03/14 11:00; OK; 10; OK");
    EXPECT_THAT(questions.asked.back(), HasSubstr("no right"));
    EXPECT_EQ(shown(ship.SMT()), "2005/03/14 11:00:00");
    EXPECT_EQ(shown(ship.UTC()), "2005/03/14 01:00:00");
    EXPECT_EQ(ship.offsetText(), "0 h 30 min 00 s ahead");
    setUp("Yes; 10:30; OK; 10"); // of the day that it is
    EXPECT_EQ(ship.offsetText(), "");
    setUp("Yes; 05/03/13 22:29; OK; 10");
    EXPECT_EQ(ship.offsetText(), "12 h 01 min 00 s behind");
    clock.refusal.reset();
    setUp("Yes; 05/03/14 10:31; OK; 10");
    EXPECT_EQ(ship.offsetText(), "") << "the clock itself is right";
}

TEST_F(ShipsTimeTest, staysOnTheCalendarWithAnyTD)
{
    for (const Golden& row : golden("calendar_ends")) {
        at("2005/3/14 9:30");
        clock.sets.clear();
        saved.setTD(3);
        const bool taken = row.tick("taken");
        setUp("Yes; " + row.text("smt") + "; OK; " + row.text("TD") + (taken ? "" : "; OK"));
        EXPECT_EQ(clock.sets.size(), taken ? 1u : 0u) << row;
        EXPECT_EQ(saved.TD() == 3, !taken) << row;
        EXPECT_EQ(captions.back() == "KORVEL (3.0 hE)", !taken) << row;
        EXPECT_EQ(questions.asked.back().find("calendar") != std::string::npos, !taken) << row;
    }
    // While the officer is told so, the title says already what holds.
    at("2005/3/14 9:30");
    saved.setTD(3);
    questions.willAnswer(Answer::Yes);
    questions.willType("9999/12/31 23:59");
    questions.willAnswer(Answer::Ok);
    questions.willType("-12");
    std::string title;
    questions.willAnswer(Answer::Ok, [&] { title = captions.back(); });
    ship.setUp();
    EXPECT_EQ(title, "KORVEL (3.0 hE)");
    // Nor does it leave it when it runs on.
    at("9999/12/31 23:59");
    clock.time += 10;
    ship.JikokuHyouji();
    EXPECT_THAT(clocks.back(), HasSubstr("UTC 31-1200"));
}

TEST_F(ShipsTimeTest, anyNumberInTheOffsetsFileIsSurvived)
{
    for (const double seconds : {1e300, -1e300, HUGE_VAL, -HUGE_VAL, std::nan(""), 2.53e11, -3.4e9})
        EXPECT_FALSE(ship.takeOffset(seconds)) << seconds;
    EXPECT_EQ(ship.offsetSeconds(), 0);
    for (const double seconds : {2.51e11, -3.3e9, 3661.0}) {
        EXPECT_TRUE(ship.takeOffset(seconds)) << seconds;
        ship.refresh();
    }
    EXPECT_EQ(ship.offsetText(), "1 h 01 min 01 s ahead");
}

TEST_F(ShipsTimeTest, saysWhenTheComputersZoneDoesNotAgree)
{
    for (const Golden& row : golden("zone_notices")) {
        keep(row);
        clock.zone = row.number("zone");
        ship.takeOffset(row.number("offset"));
        EXPECT_EQ(ship.zoneNotice(), row.text("notice")) << row;
    }
}

// Central European summer time holds from the last Sunday of March to that of October.
TEST(LocalTime, aClockIsSetToWhatItsZoneWillShow)
{
    const struct {
        NavFunc113::CivilDate date;
        int second;
        double hoursAhead;
    } rows[] = {{{2026, 1, 15}, 43200, 1},
                {{2026, 7, 15}, 43200, 2},
                {{2005, 12, 31}, 86399, 1},
                {{1900, 1, 1}, 3723, 1},
                {{9999, 12, 31}, 0, 1}};
    setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
    for (const auto& [date, second, hoursAhead] : rows) {
        const auto days = NavFunc113::DaySerial(date) - NavFunc113::DaySerial({1970, 1, 1});
        EXPECT_EQ(static_cast<double>(instantOfLocalTime(NavFunc113::MakeDateTime(date, second))),
                  static_cast<double>(days) * 86400 + second - hoursAhead * 3600)
            << date.year;
    }
    unsetenv("TZ");
}

TEST(LocalTime, readsTheComputersClockByWhateverZoneItHasNow)
{
    const auto clock = makeComputerClock();
    const struct {
        const char* zone;
        double ahead;
    } rows[] = {{"UTC0", 0}, {"JST-9", 9}, {"NST3:30", -3.5}, {"NPT-5:45", 5.75}};
    for (const auto& row : rows) {
        setenv("TZ", row.zone, 1);
        const double utc = NavFunc113::MakeDateTime({1970, 1, 1}, double(std::time(nullptr)));
        EXPECT_EQ(clock->hoursAheadOfUTC(), row.ahead) << row.zone;
        EXPECT_NEAR((clock->now() - utc) * 86400, row.ahead * 3600, 2) << row.zone;
    }
    unsetenv("TZ");
    EXPECT_NE(clock->set(0), std::nullopt) << "a trial sets no clock";
}

} // namespace
} // namespace korvel
