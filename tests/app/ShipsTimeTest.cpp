// SPDX-License-Identifier: MIT
#include "app/ShipsTime.h"

#include "app/Format.h"
#include "app/reading.h"
#include "tests/app/FakeMachine.h"

#include <cmath>

namespace korvel
{
namespace
{

using korvel::testing::FakeClock;
using korvel::testing::FakeQuestions;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class ShipsTimeTest : public ::testing::Test
{
protected:
    void at(const char* text) { clock.time = readDateTime(text).value(); }
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
    const struct {
        ClockZone zone;
        float TD;
        const char* JST;
        const char* SMT;
        const char* UTC;
    } rows[] = {
        {ClockZone::JST, 9, "2005/03/01 02:30:00", "2005/03/01 02:30:00", "2005/02/28 17:30:00"},
        {ClockZone::JST, -5, "2005/03/01 02:30:00", "2005/02/28 12:30:00", "2005/02/28 17:30:00"},
        {ClockZone::SMT, -9.5f, "2005/03/01 21:00:00", "2005/03/01 02:30:00",
         "2005/03/01 12:00:00"},
        {ClockZone::UTC, 12, "2005/03/01 11:30:00", "2005/03/01 14:30:00", "2005/03/01 02:30:00"},
    };
    at("2005/3/1 2:30");
    for (const auto& row : rows) {
        saved.setClockZone(row.zone);
        saved.setTD(row.TD);
        EXPECT_EQ(shown(ship.JST()), row.JST);
        EXPECT_EQ(shown(ship.SMT()), row.SMT);
        EXPECT_EQ(shown(ship.UTC()), row.UTC);
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

TEST_F(ShipsTimeTest, timeDifferenceIsAskedUntilItIsOne)
{
    for (const char* answer : {"", "12.1", "9h", "-12.01", "9.46"})
        questions.willType(answer);
    for (int i = 0; i < 4; ++i)
        questions.willAnswer(Answer::Ok);
    ship.inputTD();
    EXPECT_EQ(questions.prompts.front(), "Input time difference of SMT in hours(#.#) from UTC？");
    EXPECT_EQ(questions.offered.front(), "9.0");
    EXPECT_THAT(questions.asked,
                ElementsAre(" is incorrect value.", "12.1 is incorrect value.",
                            "9h is incorrect value.", "-12.01 is incorrect value."));
    EXPECT_EQ(saved.TD(), 9.5f);
    EXPECT_EQ(captions.back(), "KORVEL (9.5 hE)");

    questions.willType("-12");
    ship.inputTD();
    EXPECT_EQ(captions.back(), "KORVEL (12.0 hW)");
}

TEST_F(ShipsTimeTest, setUpSetsTheComputersClock)
{
    saved.setClockZone(ClockZone::UTC);
    at("2005/3/14 0:30");
    questions.willAnswer(Answer::Yes);
    questions.willType("tomorrow");
    questions.willAnswer(Answer::Ok);
    questions.willType("05/03/14 23:30");
    questions.willAnswer(Answer::Ok);
    questions.willType("9.5");
    ship.setUp();
    EXPECT_THAT(questions.asked,
                ElementsAre("Start setting of SMT and TD.\rPresent setting as follows;\r\r"
                            "2005/03/14 09:30SMT\rＵＴＣ＋9.0 hrs\r\rDo you change the setting?",
                            "Incorrect value.", "SMT was changed as  05/03/14 23:30"));
    EXPECT_EQ(questions.prompts.front(), "Input present time in SMT.");
    EXPECT_EQ(questions.offered.front(), "05/03/14 09:30");
    ASSERT_EQ(clock.sets.size(), 1u);
    EXPECT_EQ(shown(clock.sets.front()), "2005/03/14 14:00:00");
    EXPECT_THAT(clocks.back(), HasSubstr("SMT 14-2330"));
}

TEST_F(ShipsTimeTest, setUpCanBeLeftWithoutAChange)
{
    questions.willAnswer(Answer::No);
    ship.setUp();
    questions.willAnswer(Answer::Yes);
    questions.willType("05/03/14 23:30");
    questions.willAnswer(Answer::Cancel);
    ship.setUp();
    EXPECT_TRUE(clock.sets.empty());
    EXPECT_EQ(saved.TD(), 9.0f);
}

TEST_F(ShipsTimeTest, aClockThatCannotBeSetIsKeptAsAnOffsetAndToldOnce)
{
    at("2005/3/14 9:30");
    clock.refusal = "no right";
    const auto setUp = [&](const char* smt) {
        questions.willAnswer(Answer::Yes);
        questions.willType(smt);
        questions.willAnswer(Answer::Ok);
        questions.willType("10");
    };
    setUp("05/03/14 11:00");
    questions.willAnswer(Answer::Ok);
    ship.setUp();
    EXPECT_THAT(questions.asked.back(), HasSubstr("no right"));
    EXPECT_EQ(shown(ship.SMT()), "2005/03/14 11:00:00");
    EXPECT_EQ(shown(ship.UTC()), "2005/03/14 01:00:00");
    EXPECT_EQ(ship.offsetText(), "0 h 30 min 00 s ahead");
    setUp("05/03/14 10:30");
    ship.setUp();
    EXPECT_EQ(ship.offsetText(), "");
    setUp("05/03/13 22:29");
    ship.setUp();
    EXPECT_EQ(ship.offsetText(), "12 h 01 min 00 s behind");
}

TEST_F(ShipsTimeTest, staysOnTheCalendarWithAnyTD)
{
    const struct {
        const char* smt;
        const char* TD;
        bool taken;
    } rows[] = {
        {"9999/12/31 23:59", "-12", false}, {"9999/12/31 23:59", "12", true},
        {"9999/12/31 00:01", "-12", false}, {"9999/12/31 00:00", "-12", true},
        {"1900/1/1 23:59", "12", false},    {"1900/1/2 0:00", "12", true},
        {"1900/1/1 0:00", "-12", true},     {"1900/1/1 0:00", "-11.9", false},
    };
    for (const auto& row : rows) {
        at("2005/3/14 9:30");
        clock.sets.clear();
        questions.willAnswer(Answer::Yes);
        questions.willType(row.smt);
        questions.willAnswer(Answer::Ok);
        questions.willType(row.TD);
        if (!row.taken) questions.willAnswer(Answer::Ok);
        ship.setUp();
        EXPECT_EQ(clock.sets.size(), row.taken ? 1u : 0u) << row.smt << " " << row.TD;
        EXPECT_EQ(questions.asked.back().find("calendar") != std::string::npos, !row.taken)
            << row.smt << " " << row.TD;
    }
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
    const struct {
        const char* fault;
        ClockZone keeps;
        float TD;
        double zone;
        double offset; // seconds
        const char* notice;
    } rows[] = {
        {"a first start in Japan", ClockZone::JST, 9, 9, 0, ""},
        {"a first start in Rotterdam", ClockZone::JST, 1, 1, 0,
         "UTC is 14-0845 by the computer's own zone, 14-0045 here. Property, The computer's clock "
         "keeps: choose SMT"},
        {"a computer in UTC, the ship too", ClockZone::JST, 0, 0, 0,
         "UTC is 14-0945 by the computer's own zone, 14-0045 here. Property, The computer's clock "
         "keeps: choose UTC"},
        {"JST is the way back", ClockZone::UTC, -5, 9, 0,
         "UTC is 14-0045 by the computer's own zone, 14-0945 here. Property, The computer's clock "
         "keeps: choose JST"},
        {"no entry agrees", ClockZone::JST, 9, -3.5, 0,
         "UTC is 14-1315 by the computer's own zone, 14-0045 here. Property, The computer's clock "
         "keeps: choose SMT with TD -3.5"},
        {"within two minutes", ClockZone::SMT, 5.5f, 5.5 + 2.0 / 60, 0, ""},
        {"a clock that is wrong and corrected", ClockZone::JST, 9, 9, 600, ""},
        {"an offset that makes up for the zone", ClockZone::JST, 9, 1, 8 * 3600, ""},
    };
    for (const auto& row : rows) {
        saved.setClockZone(row.keeps);
        saved.setTD(row.TD);
        clock.zone = row.zone;
        ship.takeOffset(row.offset);
        EXPECT_EQ(ship.zoneNotice(), row.notice) << row.fault;
    }
}

} // namespace
} // namespace korvel
