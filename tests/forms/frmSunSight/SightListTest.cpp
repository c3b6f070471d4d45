// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/SightSettings.h"
#include "tests/forms/frmSunSight/WorkedSights.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using namespace worked;
using Outcome = SightList::Outcome;

SightTexts numbered(int minute)
{
    SightTexts texts = noon2020;
    texts.time = "15:" + std::to_string(10 + minute);
    return texts;
}

TEST(SightList, recordsEachSightOnce)
{
    SightList list;
    EXPECT_EQ(list.record(noon2020), Outcome::Recorded);
    EXPECT_EQ(list.record(noon2020), Outcome::Already);
    SightTexts otherWords = noon2020; // the same instant and altitude in ship's time
    otherWords.SMT = true;
    otherWords.TD = "-3";
    otherWords.time = "12:30:00";
    EXPECT_EQ(list.record(otherWords), Outcome::Already);
    EXPECT_EQ(outcomeText(Outcome::Already), "Recorded already!");
    SightTexts upper = noon2020;
    upper.upperLimb = true;
    EXPECT_EQ(list.record(upper), Outcome::Recorded);
    EXPECT_EQ(list.record(morning2020), Outcome::Recorded);
    EXPECT_EQ(list.sights().front().texts, morning2020) << "in the order of their times";
    EXPECT_EQ(list.record({}), Outcome::Unusable);
    SightTexts aSecondLater = noon2020, tenthMore = noon2020, lessThanThat = noon2020;
    aSecondLater.time = "15:30:01";
    tenthMore.Hs = "52.2206";
    lessThanThat.Hs = "52.2204";
    EXPECT_EQ(list.record(lessThanThat), Outcome::Already) << "to the tenth that is shown";
    EXPECT_EQ(listOf({noon2020, aSecondLater}).sights().size(), 2U);
    EXPECT_EQ(listOf({noon2020, tenthMore}).sights().size(), 2U);

    EXPECT_EQ(list.replace(0, upper), Outcome::Already);
    EXPECT_EQ(list.replace(0, morning2020), Outcome::Recorded) << "its own place is free to it";
    SightTexts vega = noon2020, capella = noon2020;
    vega.body = "Vega";
    capella.body = "Capella";
    EXPECT_EQ(listOf({vega, capella}).sights().size(), 2U) << "two stars of one height";
    EXPECT_EQ(list.replace(list.sights().size(), numbered(1)), Outcome::Unusable);
    list.remove(0);
    list.remove(7);
    EXPECT_EQ(list.sights().size(), 2U);
    EXPECT_EQ(listLine({sight("2020/13/17", "15:30:00", "52.220", "", ""), true}), "?");
    EXPECT_EQ(listLine({noon2020, true}), "2020/12/17 15:30:00 UTC  Hs 52.-22'0  Ho 52.-30'6");
}

TEST(SightList, takesBackWhatWasRemovedLast)
{
    SightList list = listOf({morning2020, noon2020});
    list.clear();
    list.clear();          // of nothing
    list.record(noon2020); // again, by hand
    EXPECT_EQ(list.takeBack(), 1U);
    EXPECT_EQ(list.sights().size(), 2U) << "a sight that is there again stays once";
    EXPECT_FALSE(list.canTakeBack());
    list.remove(0);
    list.remove(0);
    EXPECT_EQ(list.takeBack(), 1U) << "the last removal only";
}

TEST(SightList, fullAtForty)
{
    SightList list;
    for (int i = 0; i < int(SightList::most); ++i)
        ASSERT_EQ(list.record(numbered(i)), Outcome::Recorded);
    EXPECT_EQ(list.record(numbered(45)), Outcome::Full);
    list.remove(3);
    EXPECT_EQ(list.record(numbered(45)), Outcome::Recorded);
    EXPECT_EQ(list.takeBack(), 0U) << "no room for it";
    EXPECT_TRUE(list.canTakeBack());
    list.remove(0); // the last removal, in its place
    EXPECT_EQ(list.takeBack(), 1U);
}

TEST(SightList, theLastThatIsOn)
{
    SightList list = listOf({noon2020, morning2020});
    const auto at = [](const std::optional<NavFunc113::DateTime>& time) {
        return time ? Format(*time, "hh:mm") : std::string("none");
    };
    EXPECT_EQ(at(list.lastOn()), "15:30");
    EXPECT_EQ(at(list.lastOn(1)), "11:45") << "but for the one being edited";
    EXPECT_EQ(at(list.lastOn(0)), "15:30");
    list.setOn(1, false);
    EXPECT_EQ(at(list.lastOn()), "11:45");
    EXPECT_EQ(at(list.lastOn(0)), "none");
}

TEST(SightList, textsThatAreNoSightAreKept)
{
    SightTexts odd = noon2020;
    odd.watchError = "0;0";
    EXPECT_EQ(SightList::textWithoutBody(odd),
              "SIGHT;on;UTC;L;2020/12/17;15:30:00;;0 0;52.220;4.0;2.8;;;");
    const SightList list = SightList::fromTexts(
        {"SIGHT;on;UTC", "", "SIGHT;off;SMT;U;2020/12/17;12:30:00;-3;;52.220", "tail"});
    EXPECT_EQ(list.unreadable(), (std::vector<std::string>{"SIGHT;on;UTC", "tail"}));
    ASSERT_EQ(list.sights().size(), 1U);
    EXPECT_FALSE(list.sights()[0].on);
    EXPECT_TRUE(list.sights()[0].texts.SMT && list.sights()[0].texts.upperLimb);
    SightList cleared = list;
    cleared.clear();
    EXPECT_TRUE(cleared.unreadable().empty() && cleared.canTakeBack());
    EXPECT_EQ(cleared.takeBack(), 3U);
    EXPECT_EQ(cleared.unreadable(), list.unreadable());
    EXPECT_EQ(cleared.texts().size(), SightList::most);
    // Of a removal alone nothing else comes back.
    cleared.clear();
    cleared.record(morning2020);
    cleared.remove(0);
    EXPECT_EQ(cleared.takeBack(), 1U);
    EXPECT_TRUE(cleared.unreadable().empty());
    SightList full = SightList::fromTexts(std::vector<std::string>(SightList::most - 1, "tail"));
    EXPECT_EQ(full.record(morning2020), SightList::Outcome::Recorded);
    EXPECT_NE(full.record(noon2020), SightList::Outcome::Recorded) << "no row is left for it";
}

TEST(SightSettings, roundTrip)
{
    SightSettings settings;
    settings.sight = morning1990;
    settings.sight.SMT = true;
    settings.track = track1990;
    settings.options = {"0.5", "10", "1", true};
    SightTexts ofShipsTime = noon2020;
    ofShipsTime.SMT = true;
    settings.list = listOf({morning2020, ofShipsTime});
    settings.list.setOn(1, false);
    const std::string file = writeRecord(recordOf(settings));
    const SightSettings back = settingsOf(readRecord(file, sightKinds()).record);
    EXPECT_EQ(back.sight, settings.sight);
    EXPECT_EQ(back.track.time, settings.track.time);
    EXPECT_TRUE(back.options.measured);
    EXPECT_EQ(back.list.sights(), settings.list.sights());
    EXPECT_EQ(settingsOf({}).sight, SightTexts()) << "a record without anything";
}

TEST(SightSettings, damageLosesNoReadableSight)
{
    SightSettings settings;
    settings.list = listOf({morning2020, noon2020, morning1990});
    Record record = recordOf(settings);
    const std::size_t first = record.size() - SightList::most;
    record[first + 1] = std::string("SIGHT;on;UTC;L;2020/12/17;99:99;;;x");
    const SightSettings back = settingsOf(readRecord(writeRecord(record), sightKinds()).record);
    EXPECT_EQ(back.list.sights().size(), 2U);
    ASSERT_EQ(back.list.unreadable().size(), 1U);
    EXPECT_THAT(back.list.texts(), ::testing::Contains(back.list.unreadable()[0]))
        << "written back as it stands";

    // A file cut off in the middle of a line, its head gone too.
    const std::string file = writeRecord(recordOf(settings));
    const std::size_t last = file.rfind("SIGHT;");
    const std::string cut = file.substr(20, last + 60 - 20);
    EXPECT_FALSE(readRecord(cut, sightKinds()).damage.empty());
    const SightList salvaged = SightList::salvaged(cut);
    EXPECT_EQ(salvaged.sights(), settings.list.sights());
    EXPECT_TRUE(SightList::salvaged("no record at all").sights().empty());
}

} // namespace
} // namespace korvel
