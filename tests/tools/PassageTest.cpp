// SPDX-License-Identifier: MIT
#include "tests/SourceFolder.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace
{

namespace fs = std::filesystem;
using korvel::contentOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

// A folder with a blank in its name, as officers have them.
class Passage : public ::testing::Test
{
protected:
    Passage()
    {
        std::string pattern = (fs::temp_directory_path() / "ship passage XXXXXX").string();
        folder = mkdtemp(pattern.data());
        fs::copy(korvel::sourceFile("tests/routes/whole.rtz"), folder / "a route.rtz");
    }
    ~Passage() override { fs::remove_all(folder); }

    /// Status of the command in the folder; what it says lies in out and err.
    int run(const std::string& arguments) const
    {
        const std::string command = "cd '" + folder.string() + "' && '" KORVEL_PASSAGE "' " +
                                    arguments + " >out 2>err </dev/null";
        return WEXITSTATUS(std::system(command.c_str()));
    }
    std::string out() const { return contentOf(folder / "out"); }
    std::string err() const { return contentOf(folder / "err"); }

    fs::path folder;
};

TEST_F(Passage, writesThePlanOfAFile)
{
    EXPECT_EQ(run("'a route.rtz'"), 0) << err();
    EXPECT_THAT(out(), StartsWith("name,lat_deg,lon_deg,leg,course_deg,distance_nm,distance_to_go_"
                                  "nm,speed_kn,stay_h,eta_utc\r\n"
                                  "Pilot,35.2500000,139.7500000,,,,"));
    EXPECT_THAT(out(), HasSubstr("\r\nOff the cape,34.8833333,139.9000000,rhumb,161.4"));
    EXPECT_THAT(out(), HasSubstr(",12.5,6.5,2026-11-10T00:51:2"));
    EXPECT_THAT(out(), HasSubstr("\r\n,-41.5000000,-179.9999900,great circle,"));
    EXPECT_THAT(
        err(), HasSubstr("passage: a route.rtz: the file has the arrival at 2026/11/25 10:00 UTC"));
    const std::string sphere = out();
    EXPECT_EQ(run("--spheroid 'a route.rtz'"), 0);
    EXPECT_NE(out(), sphere);
}

TEST_F(Passage, convertsThereAndBack)
{
    EXPECT_EQ(run("'a route.rtz'"), 0);
    const std::string plan = out();
    EXPECT_EQ(run("'a route.rtz' --to csv 'a list.csv'"), 0) << err();
    EXPECT_EQ(out(), "");
    EXPECT_EQ(contentOf(folder / "a list.csv"), plan);
    EXPECT_EQ(run("--to rtz 'b.rtz' 'a route.rtz'"), 0) << err();
    EXPECT_THAT(contentOf(folder / "b.rtz"), HasSubstr("RTZ/1/2\"")) << "the version of the file";
    EXPECT_EQ(run("b.rtz"), 0);
    EXPECT_EQ(out(), plan);
    EXPECT_EQ(run("'a list.csv' --to rtz1.0 c.rtz"), 0);
    EXPECT_THAT(contentOf(folder / "c.rtz"), HasSubstr("RTZ/1/0\""));
    EXPECT_EQ(run("c.rtz"), 0);
    EXPECT_EQ(out(), plan);
    EXPECT_EQ(run("'a route.rtz' --to gpx d.gpx"), 0);
    EXPECT_THAT(err(), HasSubstr("no circles"));
    EXPECT_EQ(run("d.gpx"), 0);
    EXPECT_THAT(out(), HasSubstr("\r\nOff the cape,34.8833333,139.9000000,rhumb,161.4"));
}

TEST_F(Passage, namesWhatItCannotTakeAndWritesNothing)
{
    std::ofstream(folder / "b.csv") << "name,lat,lon\nA,95,0\n";
    std::ofstream(folder / "out.rtz") << "as it was";
    mkfifo((folder / "pipe").c_str(), 0600);
    for (const char* arguments :
         {"b.csv --to rtz out.rtz", "none.rtz --to rtz out.rtz", "/dev/zero --to rtz out.rtz",
          "'a route.rtz' --to rtz none/out.rtz", "'a route.rtz' --to csv pipe", "."}) {
        EXPECT_EQ(run(arguments), 1) << arguments;
        EXPECT_THAT(err(), StartsWith("passage: ")) << arguments;
    }
    EXPECT_EQ(run("b.csv"), 1);
    EXPECT_EQ(err(), "passage: b.csv: line 2, lat: 95 is not within -90 to 90 degrees\n");
    for (const char* arguments :
         {"", "--to", "'a route.rtz' --to kml out.rtz", "'a route.rtz' --to rtz", "a b c",
          "--unknown", "'' --to rtz out.rtz", "'a route.rtz' --to rtz9.9 out.rtz"})
        EXPECT_EQ(run(arguments), 2) << arguments;
    EXPECT_EQ(contentOf(folder / "out.rtz"), "as it was");
    EXPECT_EQ(run("--help"), 0);
    EXPECT_THAT(out(), StartsWith("usage: "));
    for (const auto& each : fs::directory_iterator(folder))
        EXPECT_THAT(
            (std::vector<std::string>{"a route.rtz", "b.csv", "out.rtz", "pipe", "out", "err"}),
            ::testing::Contains(each.path().filename().string()));
}

} // namespace
