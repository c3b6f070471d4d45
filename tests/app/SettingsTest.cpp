// SPDX-License-Identifier: MIT
#include "app/KV_Savedvalue.h"
#include "app/SettingsFile.h"
#include "tests/app/FakeMachine.h"

#include <limits>

namespace korvel
{
namespace
{

using korvel::testing::FakeFiles;
using korvel::testing::FakeQuestions;
using ::testing::HasSubstr;

TEST(SettingsRecord, writesEachKindOfValue)
{
    const struct {
        Value value;
        const char* text;
    } rows[] = {{Value(), ""},
                {true, "#TRUE#"},
                {false, "#FALSE#"},
                {-9.5, "-9.5"},
                {9.3f, "9.3"},
                {1e-7, "0.0000001"},
                {123456789.0, "123456789"},
                {-0.0, "0"},
                {std::numeric_limits<double>::infinity(), "0"},
                {std::string("a,\"港\"\r\nc"), "\"a,'港'  c\""}};
    for (const auto& row : rows)
        EXPECT_EQ(writeRecord(Record{row.value}), row.text + std::string("\r\n"));
}

TEST(SettingsRecord, readsBackWhatItWrites)
{
    const Record record = {std::string("a, b"), 139.4523, true, Value(), 1.0 / 3, std::string()};
    const std::vector<Kind> kinds = {Kind::Text,   Kind::Number, Kind::Tick,
                                     Kind::Number, Kind::Number, Kind::Text};
    EXPECT_EQ(readRecord(writeRecord(record), kinds), record);
}

TEST(SettingsRecord, readsWhatIsMeantAllTheSame)
{
    const std::vector<Kind> kinds = {Kind::Text, Kind::Number};
    const Record expected = {std::string("35.3"), 2.0};
    for (const char* text :
         {"\"35.3\"\n2", "35.3\r\n2\r\n\r\n", "\"35.3\",2\r\n", "\xEF\xBB\xBF\"35.3\"\r\n2\r\n",
          "\"35.3\"\r\n2\r\nsurplus\r\n", " \"35.3\" \r\n +2.0 \r\n"})
        EXPECT_EQ(readRecord(text, kinds), expected) << text;
}

TEST(SettingsRecord, refusesWhatIsNotTheRecord)
{
    const std::vector<Kind> kinds = {Kind::Text, Kind::Number, Kind::Tick};
    const struct {
        const char* text;
        const char* reason;
    } rows[] = {
        {"", "ends after 0 of 3"},
        {"\"a\"\r\n1\r\n", "ends after 2 of 3"},
        {"\"a\r\n1\r\n#TRUE#\r\n", "no closing quote"},
        {"\"a\"b\r\n1\r\n#TRUE#\r\n", "goes on behind"},
        {"\"a\"\r\n1x\r\n#TRUE#\r\n", "value 2 is not a number"},
        {"\"a\"\r\n1\r\n1\r\n", "value 3 is not #TRUE#"},
        {"\"\xC3(\"\r\n1\r\n#TRUE#\r\n", "UTF-8"},
        {"\"a\"\r\n1e999\r\n#TRUE#\r\n", "value 2 is not a number"},
    };
    for (const auto& [text, reason] : rows) {
        try {
            readRecord(text, kinds);
            ADD_FAILURE() << "accepted: " << text;
        } catch (const RecordError& error) {
            EXPECT_THAT(error.what(), HasSubstr(reason)) << text;
        }
    }
    EXPECT_THROW(readRecord(std::string("\"a\0b\"\r\n1\r\n#TRUE#", 16), kinds), RecordError);
}

TEST(SettingsFile, isNotOverwrittenBeforeTheOfficerAgrees)
{
    FakeFiles files;
    FakeQuestions questions;
    files.files["KV_X.ini"] = "damaged";
    SettingsFile settings(files, questions, "KV_X.ini", {Kind::Number});

    questions.willAnswer(Answer::Ok);
    EXPECT_FALSE(settings.load());
    EXPECT_THAT(questions.asked.back(), HasSubstr("\"KV_X.ini\" cannot be read"));
    EXPECT_EQ(settings.saveQuietly({1.0}), "");
    questions.willAnswer(Answer::No);
    EXPECT_FALSE(settings.saveAtClose({1.0}));
    EXPECT_EQ(files.files["KV_X.ini"], "damaged");
    questions.willAnswer(Answer::Yes);
    EXPECT_TRUE(settings.saveAtClose({1.0}));
    EXPECT_EQ(files.files["KV_X.ini"], "1\r\n");
}

TEST(SettingsFile, aFailedSaveMayBeTriedAgainOrLeft)
{
    FakeFiles files;
    FakeQuestions questions;
    SettingsFile settings(files, questions, "KV_X.ini", {Kind::Number});
    EXPECT_FALSE(settings.load()) << "a missing file is no message";
    files.refusal = "disk full";
    EXPECT_THAT(settings.saveQuietly({1.0}), HasSubstr("KV_X.ini\" could not be saved: disk full"));
    questions.willAnswer(Answer::Yes, [&] { files.refusal.reset(); });
    EXPECT_TRUE(settings.saveAtClose({2.0}));
    EXPECT_EQ(files.files["KV_X.ini"], "2\r\n");
    files.refusal = "disk full";
    questions.willAnswer(Answer::Yes);
    questions.willAnswer(Answer::No);
    EXPECT_FALSE(settings.saveAtClose({3.0}));
    EXPECT_EQ(files.files["KV_X.ini"], "2\r\n");
}

TEST(SavedValues, aNewInstallation)
{
    EXPECT_EQ(
        writeRecord(KV_Savedvalue().record()),
        "#TRUE#\r\n\r\n\r\n\r\n\"00:00\"\r\n\r\n\r\n\"00:00\"\r\n\r\n\r\n\"00:00\"\r\n\r\n\r\n"
        "\"00:00\"\r\n\r\n\r\n\"00:00\"\r\n\r\n\r\n\r\n\r\n\r\n1\r\n0\r\n0\r\n0\r\n9\r\n");
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
    saved.take(record);
    EXPECT_EQ(saved.clockZone(), ClockZone::SMT) << "the first of several ticks";
    EXPECT_EQ(saved.earth(), NavFunc113::Earth::Spheroid);
    EXPECT_EQ(saved.TD(), 9.3f);
    record[1] = record[2] = Value();
    record[26] = 99.0;
    saved.take(record);
    EXPECT_EQ(saved.clockZone(), ClockZone::JST);
    EXPECT_EQ(saved.TD(), 9.0f);
}

} // namespace
} // namespace korvel
