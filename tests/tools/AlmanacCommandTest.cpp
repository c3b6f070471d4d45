// SPDX-License-Identifier: MIT
#include "tests/SourceFolder.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

#include <sys/wait.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace
{

namespace fs = std::filesystem;
using korvel::testing::Golden;
using korvel::testing::golden;
using ::testing::HasSubstr;

struct Answer {
    int status;
    std::string output, complaints;
};

class AlmanacCommand : public ::testing::Test
{
protected:
    AlmanacCommand()
    {
        std::string pattern = (fs::temp_directory_path() / "almanac XXXXXX").string();
        folder = mkdtemp(pattern.data());
    }
    ~AlmanacCommand() override { fs::remove_all(folder); }

    Answer run(const std::string& arguments, const std::string& input) const
    {
        std::ofstream(folder / "input", std::ios::binary) << input;
        const std::string command = "cd '" + folder.string() + "' && '" KORVEL_ALMANAC "' " +
                                    arguments + " <input >output 2>complaints";
        const int status = WEXITSTATUS(std::system(command.c_str()));
        return {status, korvel::contentOf(folder / "output"),
                korvel::contentOf(folder / "complaints")};
    }

    fs::path folder;
};

TEST_F(AlmanacCommand, answersAndRefuses)
{
    for (const Golden& row : golden("almanac_command")) {
        const Answer done = run(row.text("arguments"), row.text("input"));
        EXPECT_EQ(done.status, row.integer("status")) << row << "\n" << done.complaints;
        EXPECT_THAT(done.output, HasSubstr(row.text("says"))) << row;
        if (row.has("complains"))
            EXPECT_THAT(done.complaints, HasSubstr(row.text("complains"))) << row;
        else
            EXPECT_EQ(done.complaints, "") << row;
    }
}

/// A table of cases as plain CSV: without its comments.
std::string plainTable(const std::string& name)
{
    std::istringstream lines(
        korvel::contentOf(korvel::sourceFile("tests/golden/" + name + ".csv")));
    std::string plain;
    for (std::string line; std::getline(lines, line);)
        if (!line.starts_with('#')) plain += line + "\n";
    return plain;
}

std::vector<std::vector<std::string>> cellsOf(const std::string& table)
{
    std::vector<std::vector<std::string>> rows;
    std::istringstream lines(table);
    for (std::string line; std::getline(lines, line);) {
        auto& row = rows.emplace_back();
        std::istringstream cells(line);
        for (std::string cell; std::getline(cells, cell, ',');)
            row.push_back(cell);
    }
    return rows;
}

TEST_F(AlmanacCommand, writesEveryPublishedPlaceInItsColumn)
{
    std::ofstream(folder / "places.csv") << plainTable("almanac_places");
    const Answer done = run("places.csv", "");
    EXPECT_EQ(done.status, 0) << done.complaints;
    const auto rows = cellsOf(done.output);
    ASSERT_EQ(rows.size(), 121u);
    EXPECT_THAT(rows[0], ::testing::ElementsAre("ut", "body", "gha_deg", "dec_deg", "sha_deg",
                                                "hp_min", "sd_min", "gha_aries_deg"));
    const auto published = golden("almanac_places");
    for (std::size_t i = 0; i < published.size(); ++i) {
        const Golden& row = published[i];
        for (std::size_t column = 0; column < rows[0].size(); ++column) {
            const std::string& cell = rows[i + 1].at(column);
            const std::string& expected = row.text(rows[0][column]);
            if (column < 2 || expected.empty())
                EXPECT_EQ(cell, expected) << row;
            else
                EXPECT_LE(std::fabs(std::remainder(std::stod(cell) - std::stod(expected), 360)),
                          0.0012)
                    << row << " " << rows[0][column];
        }
    }
}

TEST_F(AlmanacCommand, anotherEditionsFileIsUsedOrNamedByItsLine)
{
    std::istringstream rows(korvel::contentOf(korvel::sourceFile("data/sky/wmm2025.csv")));
    std::string file = "2030.0 WMM-TEST 11/13/2029\n", row;
    std::getline(rows, row);
    while (std::getline(rows, row)) {
        for (char& letter : row)
            if (letter == ',') letter = ' ';
        file += row + "\n";
    }
    std::ofstream(folder / "WMM.COF") << file << std::string(48, '9') << "\n";
    const std::string wanted = "decimal_year,height_km,lat,lon\n2030.0,54,82,87\n";
    EXPECT_THAT(run("--variation --model WMM.COF", wanted).output, HasSubstr(",54.88"));
    std::ofstream(folder / "cut.cof") << file.substr(0, file.size() / 2);
    const Answer cut = run("--variation --model cut.cof", wanted);
    EXPECT_EQ(cut.status, 1);
    EXPECT_EQ(cut.output, "");
    EXPECT_THAT(cut.complaints, HasSubstr("of the coefficient file"));
}

TEST_F(AlmanacCommand, endsWithWhatIsEndlessOrFull)
{
    EXPECT_THAT(run("/dev/zero", "").complaints, HasSubstr("line 1 has more than 4096 letters"));
    std::string wrong = "ut,body\n";
    for (int i = 0; i < 1000; ++i)
        wrong += "x,y\n";
    const Answer stopped = run("", wrong);
    EXPECT_EQ(stopped.status, 1);
    EXPECT_THAT(stopped.complaints, HasSubstr("line 21: "));
    EXPECT_THAT(stopped.complaints, ::testing::Not(HasSubstr("line 22: ")));
    EXPECT_THAT(stopped.complaints, HasSubstr("the rest was not read"));
    EXPECT_EQ(WEXITSTATUS(std::system(("'" KORVEL_ALMANAC "' --bodies >/dev/full 2>/dev/null"))), 1)
        << "a full disk";
}

} // namespace
