// SPDX-License-Identifier: MIT
#include "tests/SourceFolder.h"
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace
{

namespace fs = std::filesystem;

// A program's folder, with a blank in its name as officers have them.
class ExtendTides : public ::testing::Test
{
protected:
    ExtendTides()
    {
        std::string pattern = (fs::temp_directory_path() / "ship tides XXXXXX").string();
        folder = mkdtemp(pattern.data());
        fs::copy(korvel::sourceFile("tools/extend-tides"), folder);
        fs::copy(korvel::sourceFile("data/AF2005.txt"), folder);
        fs::create_symlink(KORVEL_TIDEDATA, folder / "tidedata");
        shipped = korvel::contentOf(folder / "AF2005.txt");
    }
    ~ExtendTides() override { fs::remove_all(folder); }

    int run(const std::string& arguments) const
    {
        const std::string command =
            "'" + (folder / "extend-tides").string() + "' " + arguments + " >/dev/null 2>&1";
        return WEXITSTATUS(std::system(command.c_str()));
    }
    std::string factors() const { return korvel::contentOf(folder / "AF2005.txt"); }

    fs::path folder;
    std::string shipped;
};

TEST_F(ExtendTides, longerFileKeepsTheDaysThereWereAndCanBeUndone)
{
    EXPECT_EQ(run("2030"), 0);
    EXPECT_EQ(factors().size(), 46u * 10320) << "to 2031-01-01";
    EXPECT_TRUE(factors().starts_with(shipped));
    EXPECT_EQ(korvel::contentOf(folder / "AF2005.txt.before"), shipped);
    EXPECT_EQ(run("--undo"), 0);
    EXPECT_EQ(factors(), shipped);
    EXPECT_NE(run("--undo"), 0) << "nothing left to undo";
    EXPECT_EQ(factors(), shipped);
    EXPECT_EQ(run("2030"), 0);
    EXPECT_EQ(run("2005"), 0) << "the shipped file, made anew";
    EXPECT_EQ(factors(), shipped);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 4) << "no remnants";
}

TEST_F(ExtendTides, refusesWhatItCannotDoAndChangesNothing)
{
    for (const char* arguments : {"", "2004", "2061", "2050 2051", "abc", "20x0", "''", "-1"})
        EXPECT_NE(run(arguments), 0) << arguments;
    const std::string generator = "'" KORVEL_TIDEDATA "' factors 2030x '";
    EXPECT_NE(std::system((generator + (folder / "x").string() + "' 2>/dev/null").c_str()), 0);
    fs::remove(folder / "tidedata");
    EXPECT_NE(run("2050"), 0) << "no generator";
    fs::create_symlink("/bin/false", folder / "tidedata");
    EXPECT_NE(run("2050"), 0) << "a generator that fails";
    EXPECT_EQ(factors(), shipped);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 3) << "no remnants";
}

TEST_F(ExtendTides, clearsUpAfterAKilledRunAndReplacesFilesAlone)
{
    for (const char* name : {".AF2005.txt.aB3dE6", ".AF2005.txt.before.aB3dE6"})
        std::ofstream(folder / name) << "half";
    EXPECT_EQ(run("2006"), 0);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 4);
    for (const char* name : {"AF2005.txt", "AF2005.txt.before"}) {
        const std::string factorsBefore = factors();
        fs::remove(folder / name);
        fs::create_directory(folder / name);
        EXPECT_NE(run("2030"), 0) << name;
        EXPECT_NE(run("--undo"), 0) << name;
        EXPECT_TRUE(fs::is_directory(folder / name)) << name;
        fs::remove(folder / name);
        std::ofstream(folder / "AF2005.txt", std::ios::binary) << factorsBefore;
    }
}

} // namespace
