// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/data/TideData.h"

#include "forms/frmTIDE/data/TideExtension.h"
#include "forms/frmTIDE/stations/StationList.h"
#include "forms/frmTIDE/stations/Stations.h"
#include "tests/forms/frmTIDE/TideFolder.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using ::testing::HasSubstr;

std::string stationFault(FileStore& files, const std::string& place)
{
    try {
        readTideStation(files, place);
        return "read";
    } catch (const TideDataFault& fault) {
        return fault.what();
    }
}

TEST(Factors, aDayIsReachedByItsBytePosition)
{
    const auto day = readDaysFactors(TideFolder::shipped(), 286); // 2003-07-14
    EXPECT_EQ(day.nextDay[0].angle, NavFunc113::Degrees(30))
        << "2003-07-15 by the method's check values";
    const auto next = readDaysFactors(TideFolder::shipped(), 287);
    EXPECT_EQ(next.thisDay[1].angle, day.nextDay[1].angle);

    EXPECT_EQ(readDaysFactors(TideFolder::shipped(), 0).thisDay[0].angle, NavFunc113::Degrees(209));
    EXPECT_EQ(readDaysFactors(TideFolder::shipped(), 1187).nextDay[3].factor, 1.39);
    EXPECT_THROW(readDaysFactors(TideFolder::shipped(), 1188), TideDataFault);
    EXPECT_THROW(readDaysFactors(TideFolder::shipped(), -1), TideDataFault);
}

TEST(Factors, malformedFilesAreReadOrRefused)
{
    const std::string lines = TideFolder::shippedFactors().substr(0, 46L * 8);
    const auto with = [&lines](std::size_t at, std::size_t count, const std::string& text) {
        return std::string(lines).replace(at, count, text);
    };
    std::string lfOnly = lines;
    std::erase(lfOnly, '\r');
    const std::string none;
    const struct {
        const char* name;
        std::string content;
        long day;
        std::string fault; // empty: reads
    } rows[] = {
        {"no line end after the last line", lines.substr(0, 46 * 8 - 2), 6, none},
        {"blanks for commas", with(46 * 3 + 8, 1, " "), 3, none},
        {"an old-style key", with(46UL * 3, 8, "00000004"), 3, none},
        {"trouble elsewhere is none of this day's", with(0, 1, "x"), 3, none},
        {"short by its last line", lines, 7, "AF2005.txt, line 9: the line is missing"},
        {"a character behind the last line", lines + "x", 7, "line 9: the line has 1 characters"},
        {"the half of a line end behind it", lines + "\r", 7, "line 9: the line has 0 characters"},
        {"a short line before", with(46 * 2 + 5, 1, ""), 4, "AF2005.txt, line 3: the line has 43"},
        {"an over-long line", with(46 * 4 + 5, 0, "0"), 4, "AF2005.txt, line 5: the line has 45"},
        {"two lines run together", with(46 * 4 - 2, 2, "00"), 4, "line 4: the line has 90"},
        {"the next day's line is long", with(46 * 5 + 5, 0, "0"), 4, "line 6: the line has 45"},
        {"LF only, later day", lfOnly, 5, "AF2005.txt, line 1: the line ends with LF alone"},
        {"byte-order mark, later day", "\xEF\xBB\xBF" + lines, 5, "begins with a byte-order mark"},
        {"a letter", with(46 * 4 + 9, 3, "2O9"), 4, "line 5, field 2: \"2O9\" is not a number"},
        {"no number that counts", with(46 * 5 + 9, 3, "nan"), 4, "line 6, field 2: \"nan\""},
        {"an empty field", with(46 * 4 + 8, 2, ",,"), 4, "line 5, field 2: the field is empty"},
        {"eight fields", with(46 * 4 + 39, 1, "0"), 4, "line 5, field 9: the field is missing"},
        {"ten fields", with(46 * 4 + 42, 1, ","), 4, "line 5, field 10: the line has more"},
        {"nothing", "", 0, "line 1: the line is missing"},
    };
    TideFolder beside;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        beside.write("AF2005.txt", row.content);
        try {
            readDaysFactors(beside.files, row.day);
            EXPECT_EQ(row.fault, none);
        } catch (const TideDataFault& fault) {
            EXPECT_FALSE(row.fault.empty()) << fault.what();
            EXPECT_THAT(fault.what(), HasSubstr(row.fault));
        }
    }
    beside.files.files.erase("AF2005.txt");
    EXPECT_THROW(readDaysFactors(beside.files, 0), TideDataFault);
}

/// A disk of which the first lines of the factors can be read, and no more.
class FailingDisk : public korvel::testing::FakeFiles
{
public:
    Content readAt(const std::string& name, std::int64_t offset, std::size_t length) override
    {
        if (name == "AF2005.txt" && length < 1000) return FakeFiles::readAt(name, offset, length);
        return {Content::Status::Unreadable, {}, "the disk fails", {}};
    }
};

TEST(TideFiles, whatCannotBeReadIsSaidOfTheWholeFileAndNothingIsWrittenOverIt)
{
    FailingDisk disk;
    disk.files["AF2005.txt"] = "short";
    EXPECT_THAT([&disk] { readDaysFactors(disk, 0); },
                ::testing::ThrowsMessage<TideDataFault>(
                    "AF2005.txt: the file cannot be read: the disk fails."));
    EXPECT_EQ(stationFault(disk, "X"),
              "Harmonic Constants/HC_X.txt: the file cannot be read: the disk fails.");
    EXPECT_THAT(extendFactors(disk, 2006, {}).text, HasSubstr("/AF2005.txt: the disk fails."));
    EXPECT_EQ(disk.files["AF2005.txt"], "short");
}

TEST(StationFile, readsWhatSequentialInputReads)
{
    const std::string numbers = "8,1.5,10,1,20,0.5,30,.25,40,-0.125,50,+0.01,60,1e-3,"
                                "0.1,0.2,0.3,0.4,0.5,0.6,0.7,0.8,0.9,1.0,1.1,1.2";
    std::string blanks = numbers;
    std::ranges::replace(blanks, ',', ' ');
    std::string lines = numbers;
    std::ranges::replace(lines, ',', '\n');
    const struct {
        const char* name;
        std::string content;
        std::string title;
    } rows[] = {
        {"plain", "Cape Town," + numbers + "\r\n", "Cape Town"},
        {"byte-order mark",
         "\xEF\xBB\xBF"
         "Cape Town," +
             numbers,
         "Cape Town"},
        {"quoted title with a comma", "\"Town, Cape\"," + numbers, "Town, Cape"},
        {"blanks between numbers", "Cape Town , " + blanks, "Cape Town"},
        {"LF, a field a line", "Cape Town\n" + lines + "\n", "Cape Town"},
        {"more fields than wanted", "Cape Town," + numbers + ",tail,1", "Cape Town"},
    };
    TideFolder beside;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        beside.write("Harmonic Constants/HC_3' east, of Cape.txt", row.content);
        const TideStation station = readTideStation(beside.files, "3' east, of Cape");
        EXPECT_EQ(station.title, row.title);
        EXPECT_EQ(station.zone, NavFunc113::Hours(8));
        EXPECT_EQ(station.meanLevel, 1.5);
        EXPECT_EQ(station.constituents[2].amplitude, 0.25);
        EXPECT_EQ(station.constituents[3].phase, NavFunc113::Degrees(40));
        EXPECT_EQ(station.shallowWater.sixthCoefficient, 1e-3);
        EXPECT_EQ(station.monthlyCorrections.back(), 1.2);
    }
}

TEST(StationFile, faultsNameFileLineAndField)
{
    TideFolder beside;
    const auto faultOf = [&beside](const std::string& content) {
        beside.write("Harmonic Constants/HC_X.txt", content);
        return stationFault(beside.files, "X");
    };
    EXPECT_THAT(faultOf("X,8,1.5,10,l.0,20"), HasSubstr("HC_X.txt, line 1, field 5: \"l.0\""));
    EXPECT_THAT(faultOf("X\n8\n1.5\n10 m"), HasSubstr("line 4, field 5: \"m\""));
    EXPECT_THAT(faultOf("X,8,,10"), HasSubstr("field 3: the field is empty"));
    EXPECT_THAT(faultOf(syntheticStream), HasSubstr("field 17: the field is missing"))
        << "a stream file under a tide station's name";
    EXPECT_THAT(faultOf("\"X,8"), HasSubstr("field 1: the closing quote"));
    EXPECT_THAT(faultOf("X,inf"), HasSubstr("field 2: \"inf\""));
    EXPECT_THAT(faultOf(""), HasSubstr("field 1: the field is missing"));
    EXPECT_THAT(faultOf("X,100000000"), HasSubstr("field 3: the field is missing"));
    EXPECT_THAT(faultOf("X,-100000001"),
                HasSubstr("field 2: \"-100000001\" is no figure of a tide"));
    EXPECT_THAT(stationFault(beside.files, "Bombay"),
                ::testing::AllOf(HasSubstr("HC_Bombay.txt"), HasSubstr("27 fields")));
}

TEST(Stations, everyPlaceOfTheMenusHasAFileOrAReason)
{
    const StationList list(TideFolder::shipped());
    std::size_t places = 0;
    for (const StationArea& area : tideAreas()) {
        for (const std::string_view caption : area.places) {
            const std::string place(caption);
            ++places;
            const StationNotes* notes = list.notesOf(place);
            ASSERT_TRUE(notes) << place;
            EXPECT_FALSE(notes->source.empty()) << place;
            if (notes->grade == "none")
                EXPECT_THROW(readTideStation(TideFolder::shipped(), place), TideDataFault);
            else
                EXPECT_THAT(readTideStation(TideFolder::shipped(), place).title,
                            ::testing::StartsWith(place));
        }
    }
    EXPECT_EQ(places, 114u);
    EXPECT_THAT(list.notesOf("Wonsan")->source,
                HasSubstr("no open record on the Korean or Russian coast"));
    EXPECT_FALSE(list.notesOf("Atlantis"));
    EXPECT_EQ(list.notesOf("Berhala")->uncertainty, "amplitude +-25 %, time +-50 min");
    EXPECT_TRUE(isTideStation("Los Angels Harbour"));
    EXPECT_FALSE(isTideStation("Philip Channel"));
    EXPECT_TRUE(isStreamStation("3' east of Berhanti"));
    EXPECT_FALSE(isStreamStation("../HC_Brothers"));
}

} // namespace
} // namespace korvel
