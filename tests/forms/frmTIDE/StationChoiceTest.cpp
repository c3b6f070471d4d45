// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/data/TideExtension.h"
#include "forms/frmTIDE/day/StationCheck.h"
#include "forms/frmTIDE/day/TideTables.h"
#include "forms/frmTIDE/stations/StationSearch.h"
#include "forms/frmTIDE/stations/TideHabits.h"
#include "tests/forms/frmTIDE/TideFolder.h"
#include "tests/golden/Golden.h"

#include "forms/frmTIDE/data/TideDates.h"

#include <cmath>

namespace korvel
{
namespace
{

using korvel::testing::Golden;
using korvel::testing::golden;
using ::testing::HasSubstr;

TEST(StationSearch, byName)
{
    for (const Golden& row : golden("station_search")) {
        std::string found;
        for (const FoundStation& station : findStations(row.text("typed")))
            found += (found.empty() ? "" : ", ") + station.place + (station.TideMode ? "" : " ~");
        EXPECT_EQ(found, row.text("found")) << row;
    }
    EXPECT_EQ(allStations().size(), 114u + 7);
}

TEST(StationSearch, byDistance)
{
    const StationList list(TideFolder::shipped());
    const auto nearest = [&list](double latitude, double longitude) {
        return nearestStations(list, NavFunc113::DegMin(latitude), NavFunc113::DegMin(longitude),
                               3);
    };
    const auto offTokyo = nearest(35.30, 139.45);
    ASSERT_EQ(offTokyo.size(), 3u);
    EXPECT_LT(offTokyo[0].distance, offTokyo[1].distance);
    EXPECT_EQ(nearest(21.18, -157.52)[0].place, "Honolulu") << "west of 180";
    EXPECT_LT(nearest(21.18, -157.52)[0].distance, NavFunc113::Miles(1));
    // Cape Town to Durban along the great circle: 690 miles.
    const auto fromCape =
        nearestStations(list, NavFunc113::DegMin(-33.54), NavFunc113::DegMin(18.26), 200);
    const auto durban = std::ranges::find(fromCape, "Durban", &NearStation::place);
    EXPECT_NEAR(durban->distance.value(), 690, 10);
    EXPECT_EQ(fromCape.size(), 114u);
}

TEST(StationCheck, everyFieldIsNamedAndJudged)
{
    TideFolder beside;
    std::string good = "Inchon,9,4.6";
    for (int i = 0; i < 4; ++i)
        good += ",120.5,1.25";
    good += ",0,0,0,0";
    for (int i = 0; i < 12; ++i)
        good += ",0.1";
    const auto checked = [&beside](const std::string& content) {
        beside.write(tideFileName("Inchon"), content);
        return checkStation(beside.files, TideKind::Tide, "Inchon");
    };
    EXPECT_THAT(checked(good + "\r\n").summary(), HasSubstr("all 27 fields are good"));
    const struct {
        const char* fault;
        std::string from;
        std::string to;
        int questionable;
        std::string summary;
    } rows[] = {
        {"zone in minutes", ",9,", ",540,", 1, "1 of 27"},
        {"zone at its end", ",9,", ",14,", 0, "all 27"},
        {"centimetres", ",4.6,", ",460,", 1, "1 of 27"},
        {"phase beyond a turn", "120.5,1.25", "360.5,1.25", 1, "1 of 27"},
        {"negative amplitude", "120.5,1.25", "120.5,-1.25", 1, "1 of 27"},
        {"a month left out", ",0.1,0.1", ",0.1", 0, "field 27: the field is missing"},
        {"a comma for the point", ",4.6,", ",4,6,", 4, "there is more"},
        {"letters", "120.5", "12o.5", 0, "field 4: \"12o.5\" is not a number"},
        {"no title", "Inchon,9", "\"\",9", 1, "1 of 27"},
    };
    for (const auto& row : rows) {
        std::string content = good;
        content.replace(content.find(row.from), row.from.size(), row.to);
        const StationCheck check = checked(content);
        EXPECT_THAT(check.summary(), HasSubstr(row.summary)) << row.fault;
        EXPECT_EQ(check.questionable(), row.questionable) << row.fault;
    }
    beside.write(streamFileName("Brothers"), syntheticStream);
    const StationCheck stream = checkStation(beside.files, TideKind::Stream, "Brothers");
    EXPECT_THAT(stream.summary(), HasSubstr("all 16 fields are good"));
    EXPECT_EQ(stream.fields.back().name, "Direction of the flood");
    EXPECT_EQ(stream.fields[4].unit, "kn");
    EXPECT_THAT(checkStation(beside.files, TideKind::Tide, "Bombay").summary(),
                HasSubstr("there is no such file"));
}

TEST(StationCheck, whatIsShippedIsGoodAndNoneOfTheShipsOwn)
{
    const StationList list(TideFolder::shipped());
    const FullConstants constants(TideFolder::shipped());
    int files = 0;
    for (const StationNotes& notes : list.all()) {
        if (notes.grade == "none") continue;
        ++files;
        EXPECT_EQ(checkStation(TideFolder::shipped(), TideKind::Tide, notes.place).doubts(), "");
        EXPECT_FALSE(
            StationDays(TideFolder::shipped(), TideKind::Tide, notes.place, list, constants)
                .isOwn())
            << notes.place;
    }
    EXPECT_EQ(files, 108);
}

TEST(TideExtension, isMadeKeptAndTakenBack)
{
    TideFolder beside;
    beside.write("AF2005.txt", TideFolder::shippedFactors());
    int steps = 0;
    EXPECT_FALSE(canUndoExtension(beside.files));
    EXPECT_TRUE(extendFactors(beside.files, 2007, [&steps](int) { ++steps; }).isDone);
    EXPECT_GT(steps, 4);
    EXPECT_EQ(TideDates::label(TideDates::of(beside.files).lastSerial()), "2007/12/31");
    EXPECT_EQ(beside.files.files["AF2005.txt.before"], TideFolder::shippedFactors());
    EXPECT_TRUE(undoExtension(beside.files).isDone);
    EXPECT_EQ(beside.files.files["AF2005.txt"], TideFolder::shippedFactors());
    EXPECT_FALSE(canUndoExtension(beside.files));
    EXPECT_THAT(undoExtension(beside.files).text, HasSubstr("no AF2005.txt.before"));

    beside.files.refusal = "the disk is full";
    const ExtensionResult full = extendFactors(beside.files, 2007, {});
    EXPECT_FALSE(full.isDone);
    EXPECT_THAT(full.text, HasSubstr("the disk is full"));
    EXPECT_EQ(beside.files.files["AF2005.txt"], TideFolder::shippedFactors());
}

TEST(TideExtension, isOfferedForDatesThatAFileCanReach)
{
    EXPECT_EQ(extensionYearFor(*TideDates::dateIn("2050/12/31")), 2050);
    EXPECT_EQ(extensionYearFor(*TideDates::dateIn("2051/1/1")), 2060);
    EXPECT_EQ(extensionYearFor(*TideDates::dateIn("2060/12/31")), 2060);
    EXPECT_FALSE(extensionYearFor(*TideDates::dateIn("2061/1/1")));
    EXPECT_FALSE(extensionYearFor(*TideDates::dateIn("2002/9/30")));
}

TEST(TideHabits, theLastFiveStationsOutliveTheWindow)
{
    TideHabits habits;
    EXPECT_EQ(habits.offeredYear, 0) << "of no year until it was offered";
    habits.offeredYear = 2026;
    habits.drawsAll = false;
    for (const char* place : {"Kobe", "Ube", "Otaru", "Kobe", "Irago", "Sasebo", "Tokyo"})
        habits.remember({true, place});
    habits.remember({false, "Brothers"});
    EXPECT_EQ(habits.stations.size(), 5u) << "as many as the menu shows";
    const TideHabits read =
        habitsOf(readRecord(writeRecord(recordOf(habits)), habitKinds()).record);
    std::string places;
    for (const StationChoice& station : read.stations)
        places += station.place + (station.TideMode ? " " : "~ ");
    EXPECT_EQ(places, "Brothers~ Tokyo Sasebo Irago Kobe ");
    EXPECT_EQ(read.offeredYear, 2026);
    EXPECT_FALSE(read.drawsAll);
    EXPECT_FALSE(read.showsDetails);
    for (const std::size_t kept : {5u, 0u}) {
        habits.stations.resize(kept);
        habits.showsDetails = true;
        const ReadRecord open = readRecord(writeRecord(recordOf(habits)), habitKinds());
        EXPECT_EQ(open.damageText(), "");
        EXPECT_TRUE(habitsOf(open.record).showsDetails);
        EXPECT_EQ(habitsOf(open.record).stations, habits.stations) << "beside the mark";
    }
    habits.stations = {{true, "../AF2005"}, {true, "Brothers"}};
    EXPECT_EQ(habitsOf(recordOf(habits)).stations.size(), 1u) << "only what the menus have";
}

} // namespace
} // namespace korvel
