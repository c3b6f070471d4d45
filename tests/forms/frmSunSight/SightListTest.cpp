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

    EXPECT_EQ(list.replace(0, upper), Outcome::Already);
    EXPECT_EQ(list.replace(0, morning2020), Outcome::Recorded) << "its own place is free to it";
    list.remove(0);
    list.remove(7);
    EXPECT_EQ(list.sights().size(), 2U);
}

TEST(SightList, takesBackWhatWasRemovedLast)
{
    SightList list = listOf({morning2020, noon2020});
    list.clear();
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
