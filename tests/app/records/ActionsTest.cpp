// SPDX-License-Identifier: MIT
#include "app/records/KORVEL2000Actions.h"

#include "tests/app/FakeMachine.h"
#include "tests/golden/Golden.h"

namespace korvel
{
namespace
{

using korvel::testing::FakeFiles;
using korvel::testing::FakeQuestions;
using korvel::testing::golden;
using ::testing::ElementsAre;

class ActionsTest : public ::testing::Test
{
protected:
    KV_Savedvalue saved;
    FakeFiles files;
    FakeQuestions questions;
    korvel::testing::FakeClock clock;
    SettingsFile settings{files, questions, clock, "KV_KORVEL.ini", KV_Savedvalue::kinds()};
    int redrawn = 0;
    int ended = 0;
    int valuesSaved = 0;
    KORVEL2000Actions actions{
        saved,
        questions,
        settings,
        {[this] { ++redrawn; }, [this] { ++ended; }, [this] { ++valuesSaved; }}};
};

TEST_F(ActionsTest, aPositionIsStoredInTwoHalves)
{
    actions.StoreInMemo(KORVEL2000Actions::Latitude, "35.305");
    EXPECT_EQ(redrawn, 1);
    EXPECT_TRUE(questions.asked.empty()) << "a latitude is taken silently";
    questions.willAnswer(Answer::No);
    actions.StoreInMemo(KORVEL2000Actions::Longitude, "-139.4523");
    EXPECT_EQ(questions.asked.back(), "PsnMemo  l:35.-30'5 L:-139.-45'2");
    EXPECT_EQ(redrawn, 1) << "No neither stores nor redraws";
    EXPECT_EQ(saved.memoLatitude(), NavFunc113::DegMin(0));

    questions.willAnswer(Answer::Yes);
    actions.StoreInMemo(KORVEL2000Actions::Longitude, "-139.4523");
    EXPECT_EQ(saved.memoLatitude(), NavFunc113::DegMin(35.305));
    EXPECT_EQ(saved.memoLongitude(), NavFunc113::DegMin(-139.4523));
    EXPECT_EQ(actions.memoLine(), "Position Memo  LATITUDE: 35.-30'5N, LONGITUDE: 139.-45'2W\n"
                                  "Single Memo:   0.0");
}

TEST_F(ActionsTest, refusals)
{
    const std::map<std::string, KORVEL2000Actions::StoreKind> memos{
        {"Latitude", KORVEL2000Actions::Latitude},
        {"Longitude", KORVEL2000Actions::Longitude},
        {"Single", KORVEL2000Actions::Single}};
    for (const auto& row : golden("memo_refusals")) {
        redrawn = 0;
        questions.willAnswer(Answer::Ok);
        actions.StoreInMemo(memos.at(row.text("memo")), row.text("value"));
        EXPECT_EQ(questions.asked.back(), row.text("text")) << row;
        EXPECT_EQ(questions.titles.back(), row.text("title")) << row;
        EXPECT_EQ(redrawn, 1) << row;
    }
    EXPECT_EQ(saved.singleMemo(), 0);
}

TEST_F(ActionsTest, aRefusedLatitudeIsNeverPairedWithAnOlderOne)
{
    actions.StoreInMemo(KORVEL2000Actions::Latitude, "12");
    questions.willAnswer(Answer::Ok);
    actions.storePosition({"95", "20"});
    EXPECT_EQ(questions.asked.size(), 1u) << "the longitude is not asked for";
    EXPECT_EQ(saved.memoLongitude(), NavFunc113::DegMin(0));
    questions.willAnswer(Answer::Ok);
    actions.storePosition({"0", "20"});
    EXPECT_EQ(questions.asked.size(), 2u);
    questions.willAnswer(Answer::Yes);
    actions.storePosition({"90", "180"});
    EXPECT_EQ(saved.memoLatitude(), NavFunc113::DegMin(90));
    EXPECT_EQ(saved.memoLongitude(), NavFunc113::DegMin(180));
}

TEST_F(ActionsTest, singleMemoAndRecall)
{
    questions.willAnswer(Answer::No);
    actions.StoreInMemo(KORVEL2000Actions::Single, "3");
    EXPECT_EQ(saved.singleMemo(), 0);
    questions.willAnswer(Answer::Yes);
    actions.StoreInMemo(KORVEL2000Actions::Single, "0.0004");
    EXPECT_EQ(questions.asked.back(), "SingleMemo:0.0");
    EXPECT_EQ(saved.singleMemo(), 0.0004);

    saved.setSingleMemo(12.5);
    saved.setPositionMemo(NavFunc113::DegMin(-5.3), NavFunc113::DegMin(139.4523));
    questions.will("Yes; No");
    EXPECT_EQ(actions.ConfirmMemoRecall(KORVEL2000Actions::SinM), Answer::Yes);
    EXPECT_EQ(actions.ConfirmMemoRecall(KORVEL2000Actions::PsnM), Answer::No);
    EXPECT_EQ(questions.asked[2], "Following value is stored in SINGLE MEMO now.\r\r    12.50\r\r"
                                  "Are you sure to input this value?");
    EXPECT_EQ(questions.asked[3],
              "Following values are stored in POSITION MEMO now.\r\r    Lat=   05.30'0S\r"
              "    Long= 139.45'2E\r\rAre you sure to input these value?");
    EXPECT_EQ(questions.titles[3], "Brinemark");
    EXPECT_EQ(memoText(139.4523), "139.4523");
    EXPECT_EQ(memoText(-0.1 - 0.2), "-0.3") << "no digits that nobody measured";
}

TEST_F(ActionsTest, exitSavesOnlyWhenConfirmed)
{
    saved.setTD(-9.5f);
    questions.will("No; Yes");
    EXPECT_EQ(actions.ExitApplication(), 1);
    EXPECT_TRUE(files.files.empty());
    EXPECT_EQ(questions.asked.back(), "Application：KORVEL2000\r\r          Are you sure to exit?");
    EXPECT_EQ(actions.ExitApplication(), 0);
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(valuesSaved, 1);
    EXPECT_TRUE(files.files["KV_KORVEL.ini"].ends_with("\r\n-9.5\r\n"));

    files.refusal = "disk full";
    questions.will("Yes; No");
    EXPECT_EQ(actions.ExitApplication(), 0);
    EXPECT_EQ(ended, 2);
    EXPECT_EQ(valuesSaved, 1) << "the officer left without saving";
}

} // namespace
} // namespace korvel
