// SPDX-License-Identifier: MIT
#include "tests/SourceFolder.h"
#include "tidedata/factors.h"
#include "tools/tidedata/sources.h"
#include "tools/tidedata/station_file.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tidedata
{
namespace
{

const std::filesystem::path root = korvel::sourceFile("");

const Sources& sources()
{
    static const Sources read = readSources(root / "tools/tidedata/sources.json");
    return read;
}

TEST(CommittedData, isWhatTheGeneratorWritesToday)
{
    EXPECT_EQ(korvel::contentOf(root / "data/AF2005.txt"), factorsFile(2005));
    EXPECT_EQ(korvel::contentOf(root / "data/stations.txt"), stationsList(sources()));
    EXPECT_EQ(korvel::contentOf(root / "data/constituents.txt"), constituentsList(sources()));
    const std::filesystem::path folder = root / "data/Harmonic Constants";
    for (const Station& station : sources().stations)
        EXPECT_EQ(korvel::contentOf(folder / ("HC_" + station.place + ".txt")),
                  stationFile(station));
    const auto files = std::distance(std::filesystem::directory_iterator(folder), {});
    EXPECT_EQ(static_cast<std::size_t>(files), sources().stations.size())
        << "a file that the generator does not write";
}

TEST(Sources, aPlaceWithoutOneOfTheFourIsRefusedByName)
{
    const auto file = std::filesystem::temp_directory_path() / "sources without S2.json";
    std::string json = korvel::contentOf(root / "tools/tidedata/sources.json");
    json.replace(json.find("\"S2\":"), 5, "\"X2\":");
    std::ofstream(file, std::ios::binary) << json;
    try {
        readSources(file);
        ADD_FAILURE() << "taken";
    } catch (const std::runtime_error& fault) {
        EXPECT_THAT(fault.what(), ::testing::HasSubstr("Berhala has no constituent S2"));
    }
    std::filesystem::remove(file);
}

// Their arguments in all_constituents.cpp are those of the source with this licence alone; others
// count the 90 degrees of K1, O1 and P1 in.
TEST(Sources, constituentsOfOneConventionComeFromOneSource)
{
    for (const Station& s : sources().stations) {
        for (const char* name : {"2MK5", "2MO5", "T3", "R3", "S3"})
            EXPECT_TRUE(!s.constants.contains(name) || s.licence == "CC BY 4.0")
                << s.place << " " << name;
    }
}

TEST(CommittedData, theMethodsErrorIsListedForEveryRecord)
{
    const std::string accuracy = korvel::contentOf(root / "data/accuracy.txt");
    for (const Station& s : sources().stations) {
        const bool isListed = accuracy.find("\n" + s.place + "\t") != std::string::npos;
        EXPECT_EQ(isListed, !s.source.starts_with("modelled")) << s.place;
    }
    // The manual's table and the list come from one run.
    const std::string manual = korvel::contentOf(root / "docs/manual/frmTIDE.md");
    EXPECT_THAT(accuracy, ::testing::HasSubstr("\nTokyo\t0.029\t0.025\t0.030\t7\t6\n"));
    EXPECT_THAT(manual, ::testing::HasSubstr(
                            "| Tokyo | A | 0.466 | 0.029 (6.2 %) | 0.025 / 0.030 | 7 / 6 |"));
}

TEST(CommittedData, everyPlaceIsDescribedWithItsGrade)
{
    const std::string readme = korvel::contentOf(root / "data/README.md");
    for (const auto* list : {&sources().stations, &sources().withoutSource}) {
        for (const Station& s : *list)
            EXPECT_THAT(readme, ::testing::HasSubstr("| " + s.place + " | " + s.grade + " |"));
    }
}

// The constants of Yokohama worked with another program (Python's complex numbers); c6 is 0.00500
// at 24.98 degrees there, c4 0.0169 at 220.
TEST(StationFile, yokohama)
{
    const auto yokohama = std::ranges::find(sources().stations, "Yokohama", &Station::place);
    ASSERT_NE(yokohama, sources().stations.end());
    EXPECT_EQ(stationFile(*yokohama),
              "Yokohama,9,1.11,134.6,0.449,172.3,0.221,174.7,0.248,146.4,0.194,220,0.0169,25,"
              "0.0050,-0.04,-0.07,-0.09,-0.08,-0.04,0.01,0.06,0.08,0.08,0.06,0.03,-0.00\r\n");
}

TEST(StationFile, estimatesSayThatTheyAre)
{
    for (const Station& station : sources().stations) {
        const bool estimated = station.grade == "C" || station.grade == "D";
        const std::string title = station.place + (estimated ? " (est.)," : ",");
        EXPECT_TRUE(stationFile(station).starts_with(title)) << station.place;
        EXPECT_EQ(estimated || station.grade == "B", !station.uncertainty.empty());
    }
}

TEST(StationFile, angleThatRoundsToAWholeTurnIsZeroAndMissingTermsAreNothing)
{
    Station station;
    station.place = "Nowhere, at all";
    station.grade = "A";
    station.zone = Hours(-3.5);
    station.constants = {{"M2", {1, Degrees(359.97 + 3.5 * 28.9841042)}},
                         {"S2", {0.5, Degrees(105)}},
                         {"K1", {0.1, Degrees(0)}},
                         {"O1", {0.1, Degrees(0)}},
                         {"M4", {0.02, Degrees(2 * (359.97 + 3.5 * 28.9841042) + 359.8)}}};
    EXPECT_THAT(stationFile(station),
                ::testing::StartsWith("Nowhere at all,-3.5,0.00,0.0,1.000,0.0,0.500,"));
    EXPECT_THAT(stationFile(station), ::testing::HasSubstr(",0,0.0200,0,0.0000,0.00,0.00,"));
}

TEST(Sources, faultsNameTheFile)
{
    for (const char* name : {"data/README.md", "nothing.json"})
        EXPECT_THAT([&] { readSources(root / name); },
                    ::testing::ThrowsMessage<std::runtime_error>(::testing::HasSubstr(name)));
}

} // namespace
} // namespace tidedata
