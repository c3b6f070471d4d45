// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/data/TideExtension.h"
#include "forms/frmTIDE/day/StationCheck.h"
#include "forms/frmTIDE/day/TideTables.h"
#include "forms/frmTIDE/stations/StationSearch.h"
#include "forms/frmTIDE/stations/TideHabits.h"
#include "tests/forms/frmTIDE/TideFolder.h"
#include "tests/golden/Golden.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmTIDE/data/TideDates.h"
#include "navlib/angles.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

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
    for (const FoundStation& station : allStations())
        EXPECT_EQ(station.area.find('&'), std::string::npos) << "a mnemonic is no letter";
}

TEST(StationSearch, whatIsSaidOfIt)
{
    const struct {
        const char* typed;
        const char* first;
        const char* notice;
    } rows[] = {
        {"", "", ""},
        {"zzz", "", "No station has \"zzz\" (three letters at least)"},
        {"us", "", "No station has \"us\" (three letters at least)"},
        {"honolulu", "Honolulu", ""},
        {"brothers", "Brothers", "Found too: Brothers (stream)"},
        {"yok", "Yokohama", "Found too: Yokosuka, Yokkaichi"},
    };
    for (const auto& row : rows) {
        const SearchAnswer answer = answerSearch(row.typed);
        EXPECT_EQ(answer.first ? answer.first->place : "", row.first) << row.typed;
        EXPECT_EQ(answer.notice, row.notice) << row.typed;
    }
    EXPECT_TRUE(answerSearch("brothers").first->TideMode);
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
    // Along a meridian a degree is 60 miles.
    const double durbanLatitude = list.notesOf("Durban")->latitude->value();
    const NavFunc113::Degrees northOfIt(durbanLatitude + 10);
    const NavFunc113::DegMin meridian = DegToDegMin(*list.notesOf("Durban")->longitude);
    const auto onMeridian = nearestStations(list, DegToDegMin(northOfIt), meridian, 200);
    EXPECT_NEAR(std::ranges::find(onMeridian, "Durban", &NearStation::place)->distance.value(), 600,
                0.01);
}

TEST(StationList, errorsStandInTheirColumns)
{
    TideFolder beside;
    beside.write("accuracy.txt", "# place, errors\r\n\r\nX\t0.1\t0.2\t0.3\t4\t5\r\n");
    beside.write("stations.txt", "X\tA\t\tfrom here\tfree\t1.5\t-2.5\testimated\trecord\n"
                                 "Honolulu\tB\tlarge\tfrom there\tfree\t21.3");
    const StationList list(beside.files);
    const MethodError error = list.errorOf("X").value();
    EXPECT_EQ(error.rms, 0.1);
    EXPECT_EQ(error.highRms, 0.2);
    EXPECT_EQ(error.lowRms, 0.3);
    EXPECT_EQ(error.highMinutes, 4);
    EXPECT_EQ(error.lowMinutes, 5);
    EXPECT_FALSE(list.errorOf("Honolulu"));
    const StationNotes& x = *list.notesOf("X");
    EXPECT_EQ(x.grade + x.uncertainty + x.source + x.licence, "Afrom herefree");
    EXPECT_EQ(x.latitude, NavFunc113::Degrees(1.5));
    EXPECT_EQ(x.longitude, NavFunc113::Degrees(-2.5));
    EXPECT_TRUE(x.isLevelEstimated);
    EXPECT_FALSE(x.areMonthsEstimated);
    EXPECT_EQ(list.notesOf("Honolulu")->source, "from there") << "the last line without its end";
    EXPECT_FALSE(list.notesOf("Honolulu")->longitude);
    EXPECT_TRUE(nearestStations(list, NavFunc113::DegMin(0), NavFunc113::DegMin(0), 9).empty())
        << "of no menu, or of no place";
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

/// Fields of a station file behind its title: what each is, and what it may be.
struct FieldSaid {
    const char* name;
    const char* unit;
    const char* low;
    const char* high;
};

void expectJudged(TideKind kind, const std::vector<FieldSaid>& said)
{
    TideFolder beside;
    const std::string file =
        kind == TideKind::Tide ? tideFileName("Brothers") : streamFileName("Brothers");
    const auto checkedWith = [&](std::size_t field, const std::string& value) {
        std::string content = "Brothers";
        for (std::size_t i = 0; i < said.size(); ++i)
            content += "," + (i == field ? value : "0");
        beside.write(file, content);
        return checkStation(beside.files, kind, "Brothers");
    };
    for (std::size_t i = 0; i < said.size(); ++i) {
        const FieldSaid& field = said[i];
        SCOPED_TRACE(field.name);
        for (const char* good : {field.low, field.high})
            EXPECT_EQ(checkedWith(i, good).doubts(), "") << good;
        const std::string below = Format(readNumber(field.low) - 0.01, "0.##");
        const std::string above = Format(readNumber(field.high) + 0.01, "0.##");
        for (const std::string& bad : {below, above}) {
            const StationCheck check = checkedWith(i, bad);
            std::ostringstream doubts;
            doubts << file << ": 1 of " << said.size() + 1
                   << " fields lies outside what such a figure can be. Field " << i + 2 << ", "
                   << field.name << " " << bad << ": not within " << field.low << " to "
                   << field.high << " " << field.unit << ".";
            EXPECT_EQ(check.doubts(), doubts.str());
            EXPECT_EQ(check.fields.at(i + 1).unit, field.unit);
        }
    }
}

TEST(StationCheck, everyFieldHasItsNameUnitAndRange)
{
    std::vector<FieldSaid> tide = {
        {"Zone time, east positive", "h", "-12", "14"},
        {"Mean level above chart datum", "m", "-1", "12"},
        {"Phase of M2", "degrees", "0", "360"},
        {"Amplitude of M2", "m", "0", "6"},
        {"Phase of S2", "degrees", "0", "360"},
        {"Amplitude of S2", "m", "0", "6"},
        {"Phase of K1", "degrees", "0", "360"},
        {"Amplitude of K1", "m", "0", "6"},
        {"Phase of O1", "degrees", "0", "360"},
        {"Amplitude of O1", "m", "0", "6"},
        {"Phase of the quarter-diurnal term", "degrees", "0", "360"},
        {"Coefficient of the quarter-diurnal term", "per m", "0", "2"},
        {"Phase of the sixth-diurnal term", "degrees", "0", "360"},
        {"Coefficient of the sixth-diurnal term", "per square m", "0", "6"},
    };
    std::vector<FieldSaid> stream = tide;
    stream[1] = {"Mean stream, flood positive", "kn", "-5", "5"};
    stream[3] = {"Rate of M2", "kn", "0", "12"};
    stream[5] = {"Rate of S2", "kn", "0", "12"};
    stream[7] = {"Rate of K1", "kn", "0", "12"};
    stream[9] = {"Rate of O1", "kn", "0", "12"};
    stream[11].unit = "per kn";
    stream[13].unit = "per square kn";
    stream.push_back({"Direction of the flood", "degrees true", "0", "360"});
    for (const char* month :
         {"Correction of January", "Correction of February", "Correction of March",
          "Correction of April", "Correction of May", "Correction of June", "Correction of July",
          "Correction of August", "Correction of September", "Correction of October",
          "Correction of November", "Correction of December"})
        tide.push_back({month, "m", "-1", "1"});
    expectJudged(TideKind::Tide, tide);
    expectJudged(TideKind::Stream, stream);
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
    habits.offeredYear = 20000; // of no calendar
    EXPECT_EQ(habitsOf(recordOf(habits)).offeredYear, 0);
    habits.stations = {{true, "../AF2005"}, {true, "Brothers"}};
    EXPECT_EQ(habitsOf(recordOf(habits)).stations.size(), 1u) << "only what the menus have";
}

} // namespace
} // namespace korvel
