// SPDX-License-Identifier: MIT
#include "app/ShipsTime.h"

#include "app/Format.h"
#include "app/reading.h"
#include "tests/app/FakeMachine.h"

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
    EXPECT_EQ(ship.offsetSeconds(), 1800);
    setUp("05/03/14 10:30");
    ship.setUp();
    EXPECT_EQ(ship.offsetSeconds(), 0);
}

} // namespace
} // namespace korvel
