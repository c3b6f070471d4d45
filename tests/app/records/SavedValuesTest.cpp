// SPDX-License-Identifier: MIT
#include "app/reading/Remarks.h"
#include "app/records/KV_Savedvalue.h"
#include "app/records/RecoveryFile.h"
#include "tests/app/FakeMachine.h"
#include "tests/golden/Golden.h"

namespace korvel
{
namespace
{

using korvel::testing::FakeClock;
using korvel::testing::FakeFiles;
using korvel::testing::FakeQuestions;
using korvel::testing::Golden;
using korvel::testing::golden;
using ::testing::HasSubstr;

/// One value as a settings file holds it.
std::string textOfValue(const Value& value)
{
    const std::string line = writeRecord(std::span(&value, 1));
    return line.substr(0, line.size() - 2);
}

TEST(SavedValues, aNewInstallation)
{
    EXPECT_EQ(
        writeRecord(KV_Savedvalue().record()),
        "#TRUE#\r\n\r\n\r\n\r\n\"00:00\"\r\n\r\n\r\n\"00:00\"\r\n\r\n\r\n\"00:00\"\r\n\r\n\r\n"
        "\"00:00\"\r\n\r\n\r\n\"00:00\"\r\n\r\n\r\n\r\n\r\n\r\n1\r\n0\r\n0\r\n0\r\n9\r\n");
}

TEST(SavedValues, dayIsNoNightThereAndBack)
{
    KV_Savedvalue saved;
    EXPECT_FALSE(saved.nightColours());
    saved.setNightColours(true);
    EXPECT_TRUE(saved.nightColours());
    saved.setNightColours(false);
    EXPECT_FALSE(saved.nightColours());
    const auto revision = saved.revision();
    saved.setNightColours(false);
    EXPECT_EQ(saved.revision(), revision) << "the same again is no change";
    EXPECT_EQ(writeRecord(saved.record()), writeRecord(KV_Savedvalue().record()));
}

TEST(SavedValues, bringWhatTheyReadIntoOrder)
{
    KV_Savedvalue saved;
    EXPECT_EQ(saved.earth(), NavFunc113::Earth::Sphere);
    Record record = saved.record();
    record[0] = false;
    record[1] = record[2] = true;
    record[22] = 0.0;
    record[26] = 9.3;
    EXPECT_TRUE(saved.take(record).empty());
    EXPECT_EQ(saved.clockZone(), ClockZone::SMT) << "the first of several ticks";
    EXPECT_EQ(writeRecord(saved.record()).substr(0, 26), "#FALSE#\r\n#TRUE#\r\n#FALSE#\r\n");
    EXPECT_EQ(saved.earth(), NavFunc113::Earth::Spheroid);
    EXPECT_EQ(saved.TD(), 9.3f);
    record[1] = record[2] = Value();
    saved.take(record);
    EXPECT_EQ(saved.clockZone(), ClockZone::JST);
}

TEST(SavedValues, whatIsOutOfRangeIsNotTakenOverAndNamed)
{
    for (const Golden& row : golden("saved_values")) {
        KV_Savedvalue saved;
        Record record = saved.record();
        const auto index = static_cast<std::size_t>(row.integer("index"));
        record[23] = 35.305;
        record[24] = -139.4523;
        const FieldKind kinds[] = {KV_Savedvalue::table()[index].kind};
        record[index] = readRecord(row.text("value"), kinds).record[0];
        EXPECT_EQ(joined(saved.take(record)), row.text("named")) << row;
        EXPECT_EQ(textOfValue(saved(static_cast<int>(index))), row.text("kept")) << row;
        const bool isMemo = index == 23 || index == 24;
        EXPECT_EQ(saved(23) == Value(0.0) && saved(24) == Value(0.0), isMemo && row.has("named"))
            << row;
    }
}

TEST(SavedValues, anAlarmWithoutAReadableTimeIsOff)
{
    KV_Savedvalue saved;
    for (int n : {1, 2, 3})
        saved.setAlarmEnabled(n, true);
    Record record = saved.record();
    record[4] = "6.30";
    record[7] = "06:30";
    record[13] = "25:00";
    EXPECT_EQ(joined(saved.take(record)),
              "time of alarm 1 \"6.30\"; time of alarm 4 \"25:00\"; alarm 1 is now off");
    EXPECT_EQ(saved(SavedValue::AlarmEnabled), Value(false));
    EXPECT_TRUE(saved.alarmEnabled(2));
    EXPECT_TRUE(saved.alarmEnabled(3));
    EXPECT_EQ(saved(12), Value()) << "one that was off is left as it was";
}

class RecoveryFileTest : public ::testing::Test
{
protected:
    /// A run of the program: what its settings file holds, and what the officer does in it.
    KV_Savedvalue run(const std::function<void(KV_Savedvalue&)>& act)
    {
        KV_Savedvalue saved;
        RecoveryFile recovery(files, questions, clock);
        recovery.offer(saved);
        act(saved);
        EXPECT_EQ(recovery.keep(saved), "");
        return saved;
    }
    static void setAlarm(KV_Savedvalue& saved) { saved.setAlarmEnabled(3, true); }
    static void doNothing(KV_Savedvalue&) {}

    FakeFiles files;
    FakeQuestions questions;
    FakeClock clock; // 2005-03-14 09:45
};

TEST_F(RecoveryFileTest, bringsBackWhatAKilledProgramHadSet)
{
    run(doNothing);
    EXPECT_TRUE(files.files.empty()) << "nothing has changed";
    run(setAlarm);
    EXPECT_TRUE(
        files.files["KV_KORVEL recovery.ini"].starts_with("\"2005/03/14 09:45\"\r\n#TRUE#"));

    clock.time += 1;
    questions.will("Yes; Yes; No");
    EXPECT_TRUE(run(doNothing).alarmEnabled(3));
    EXPECT_THAT(questions.asked.back(), HasSubstr("as they were at 2005/03/14 09:45"));
    EXPECT_EQ(files.saves, 1) << "what was taken over lies there already";

    EXPECT_TRUE(run([](KV_Savedvalue& saved) { saved.setTD(-5); }).alarmEnabled(3));
    EXPECT_FALSE(run(doNothing).alarmEnabled(3));
    EXPECT_TRUE(files.files.empty()) << "what was declined is not asked for again";
}

TEST_F(RecoveryFileTest, isWrittenOnceForAChangeAndGoesWithACleanExit)
{
    KV_Savedvalue saved;
    RecoveryFile recovery(files, questions, clock);
    recovery.offer(saved);
    setAlarm(saved);
    recovery.keep(saved);
    recovery.keep(saved);
    saved.setTD(3);
    saved.setTD(9);
    EXPECT_EQ(recovery.keep(saved), "");
    EXPECT_EQ(files.saves, 1) << "there and back is no change";
    files.refusal = "disk full";
    saved.setTD(3);
    EXPECT_THAT(recovery.keep(saved), HasSubstr("disk full"));
    EXPECT_THAT(recovery.remove(), HasSubstr("disk full"));
    files.refusal.reset();
    EXPECT_EQ(recovery.keep(saved), "");
    EXPECT_EQ(files.saves, 2) << "what failed is tried again";
    EXPECT_EQ(recovery.remove(), "");
    EXPECT_TRUE(files.files.empty());
}

TEST_F(RecoveryFileTest, saysNothingWhenItSaysTheSame)
{
    files.files["KV_KORVEL recovery.ini"] =
        "\"2005/03/14 09:45\"\r\n" + writeRecord(KV_Savedvalue().record());
    run(doNothing); // an unexpected question would fail
    EXPECT_TRUE(files.files.empty());
}

} // namespace
} // namespace korvel
