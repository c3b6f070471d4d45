// SPDX-License-Identifier: MIT
#include "app/records/QuoteSigns.h"
#include "app/records/ScreenChoices.h"
#include "app/records/SettingsFile.h"
#include "tests/app/FakeMachine.h"
#include "tests/golden/Golden.h"
#include <gtest/gtest.h>

#include <limits>

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
                {std::string("a,\"港\"\r\nc\td"), "\"a,'港'  c d\""},
                {std::string("\xC2\x85"
                             "a\0b\x1B\x7F°",
                             9),
                 "\"ab°\""}};
    for (const auto& row : rows)
        EXPECT_EQ(writeRecord(Record{row.value}), row.text + std::string("\r\n"));
}

TEST(SettingsRecord, readsBackWhatItWrites)
{
    const Record record = {std::string("a, b"), 139.4523, true, Value(), 1.0 / 3, std::string()};
    const std::vector<FieldKind> kinds = {FieldKind::Text,   FieldKind::Number, FieldKind::Tick,
                                          FieldKind::Number, FieldKind::Number, FieldKind::Text};
    EXPECT_EQ(readRecord(writeRecord(record), kinds).record, record);
}

/// The values of a record between bars.
std::string values(const Record& record)
{
    std::string text = writeRecord(record);
    text.erase(text.size() - 2);
    for (std::size_t at = 0; (at = text.find("\r\n", at)) != std::string::npos;)
        text.replace(at, 2, "|");
    return text;
}

constexpr FieldKind textNumberTick[] = {FieldKind::Text, FieldKind::Number, FieldKind::Tick};

TEST(SettingsRecord, takesWhatCanBeReadAndNamesTheDamage)
{
    for (const Golden& row : golden("settings_records")) {
        const ReadRecord read = readRecord(row.text("file"), textNumberTick);
        EXPECT_EQ(values(read.record), row.text("taken")) << row;
        EXPECT_EQ(read.damageText(), row.text("damage")) << row;
    }
    const std::vector<FieldKind> figures(5, FieldKind::Number);
    EXPECT_TRUE(readRecord("a\nb\nc\nd\ne\n", figures).damageText().ends_with("; and 2 more"));
}

TEST(SettingsRecord, putsRightWhatALostLineHasShifted)
{
    using enum FieldKind;
    constexpr FieldKind kinds[] = {Text,   Figure,   Latitude,  Longitude, Text,
                                   Figure, Latitude, Longitude, Moment};
    for (const Golden& row : golden("shifted_records")) {
        std::string file = '"' + row.text("file") + "\"\r\n";
        for (std::size_t at = 0; (at = file.find('|', at)) != std::string::npos;)
            file.replace(at, 1, "\"\r\n\"");
        std::string taken = values(readRecord(file, kinds).record);
        std::erase(taken, '"');
        EXPECT_EQ(taken, row.text("taken")) << row;
    }
}

TEST(SettingsRecord, isUtf8)
{
    const struct {
        std::string file;
        const char* taken;
    } rows[] = {{"\xEF\xBB\xBF\"°港😀\"", "\"°港😀\""},
                {"\"\xC3(\"", ""},
                {"\"\xE6\xB8\"", ""},
                {"\"\x80\"", ""},
                {"\"\xC0\x80\"", ""},
                {std::string("\"a\0b\"", 5), ""}};
    for (const auto& [file, taken] : rows)
        EXPECT_EQ(values(readRecord(file + "\r\n", std::span(textNumberTick, 1)).record), taken);
}

class SettingsFileTest : public ::testing::Test
{
protected:
    FakeFiles files;
    FakeQuestions questions;
    FakeClock clock; // 2005-03-14 09:45
    SettingsFile settings{
        files, questions, clock, "KV_X.ini", {FieldKind::Number, FieldKind::Text}};
};

TEST_F(SettingsFileTest, keepsADamagedFileAsideBeforeItIsOverwritten)
{
    const std::string damaged = "7\r\n\"cut o";
    files.files["KV_X.ini"] = damaged;
    files.files["KV_X damaged 2005-03-14 0945.ini"] = "of a minute ago";
    questions.willAnswer(Answer::Ok);
    EXPECT_EQ(values(settings.load({1.0, std::string("default")}).value()), "7|\"default\"");
    EXPECT_EQ(questions.asked.back(),
              "The settings file \"KV_X.ini\" is damaged: value 2 has no closing quote.\r"
              "What could be read is taken over: check every value.\rBefore anything is written "
              "over the file, it is kept as \"KV_X damaged 2005-03-14 0945 2.ini\".");
    EXPECT_EQ(files.files["KV_X.ini"], damaged) << "looking at it changes nothing";
    EXPECT_TRUE(settings.isProtected());

    files.renameRefusal = "no right";
    EXPECT_THAT(settings.saveQuietly({1.0, Value()}), HasSubstr("0945 2.ini\": no right"));
    EXPECT_EQ(files.files["KV_X.ini"], damaged);
    files.renameRefusal.reset();
    EXPECT_EQ(settings.saveQuietly({2.0, Value()}), "");
    EXPECT_EQ(settings.saveQuietly({3.0, Value()}), "");
    EXPECT_EQ(files.files["KV_X.ini"], "3\r\n\r\n");
    EXPECT_EQ(files.files["KV_X damaged 2005-03-14 0945 2.ini"], damaged);
    EXPECT_EQ(files.files.size(), 3u) << "kept aside once";

    files.files["KV_X.ini"] = "x\r\n\"text\"";
    questions.willAnswer(Answer::Ok);
    EXPECT_EQ(values(settings.load({1.0, std::string("default")}).value()), "1|\"text\"");
    files.files["KV_X damaged 2005-03-14 0945 3.ini"] = "of another program meanwhile";
    EXPECT_EQ(settings.saveQuietly({3.0, Value()}), "");
    EXPECT_EQ(files.files["KV_X damaged 2005-03-14 0945 3.ini"], "of another program meanwhile");
    EXPECT_EQ(files.files["KV_X damaged 2005-03-14 0945 4.ini"], "x\r\n\"text\"");
}

TEST_F(SettingsFileTest, opensWithDefaultsWhenNothingCanBeRead)
{
    EXPECT_FALSE(settings.load()) << "a missing file is no message";
    files.files["KV_X.ini"] = std::string(50, '\0');
    questions.willAnswer(Answer::Ok);
    EXPECT_FALSE(settings.load({1.0, Value()}));
    EXPECT_THAT(questions.asked.back(), HasSubstr("opens with its defaults"));
    EXPECT_EQ(settings.damagedText(), std::string(50, '\0'));
}

TEST_F(SettingsFileTest, aFailedSaveMayBeTriedAgainOrLeft)
{
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

TEST(QuoteSigns, aTextComesBackAsItWas)
{
    for (const std::string text :
         {"M/V \"Prüfling\"", "100 %", "%22", "%2522", "\"%22\"", "%", "", "%2"}) {
        const std::string written = withoutQuoteSigns(text);
        EXPECT_EQ(written.find('"'), written.npos) << text;
        EXPECT_EQ(withQuoteSigns(written), text) << written;
    }
    EXPECT_EQ(withQuoteSigns("M/V 'Star' 100 %"), "M/V 'Star' 100 %") << "as written by 1.0";
}

TEST(ScreenChoices, onlyWholePlacesAreTaken)
{
    const struct {
        const char *text, *names;
        bool ownFrames = false;
    } cases[] = {
        {"frmETA 1 -2 1 1 100 1", "frmETA "},
        {"frmETA 1 2 0 300 100 1;frmWind 1 2 400 300 100 0", "frmWind "},
        {"frmETA 1 2 400 0 100 1", ""},
        {"frmETA 1 2 400 300 100", ""},
        {"frmETA 1 2 400 300 100 yes", ""},
        {"frmETA 1 2 400 300.5 100 1", ""},
        {"frmETA 100001 2 400 300 100 1", ""},
        {"frmETA 100000 2 400 300 100 1;ownFrames", "frmETA ", true},
        {"ownFrames", "", true},
        {"notownFrames", ""},
        {"ownFrames;frmETA 1 2 400 300 100 1", "frmETA "},
    };
    for (const auto& [text, names, ownFrames] : cases) {
        const ScreenChoices choices = ScreenChoices::of({1.0, 125.0, true, false, text});
        std::string found;
        for (const auto& [name, place] : choices.places)
            found += name + " ";
        EXPECT_EQ(found, names) << text;
        EXPECT_EQ(choices.ownFrames, ownFrames) << text;
    }
    EXPECT_EQ(ScreenChoices::of({1.0, 125.0, true, false}), ScreenChoices()) << "cut short";
    EXPECT_EQ(ScreenChoices::of({3.0, 126.0, false, false, ""}), ScreenChoices());
}

TEST(ScreenChoices, theLargestZoomIsThreeTimesTheUsual)
{
    ScreenChoices choices = ScreenChoices::of({1.0, 250.0, true, false, ""});
    EXPECT_TRUE(choices.changeZoom(1));
    EXPECT_EQ(choices.zoom, 300);
    EXPECT_FALSE(choices.changeZoom(1));
    EXPECT_TRUE(choices.changeZoom(0));
    EXPECT_EQ(choices.zoom, 100);
}

} // namespace
} // namespace korvel
