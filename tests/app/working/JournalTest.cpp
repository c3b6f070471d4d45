// SPDX-License-Identifier: MIT
#include "app/working/Journal.h"
#include "tests/app/FakeMachine.h"

namespace korvel
{
namespace
{

using korvel::testing::FakeFiles;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr std::size_t large = 3 << 20;

TEST(Journal, ofADayBeyondAllDaysTheEndIsShown)
{
    FakeFiles files;
    files.files["Journal 2026-11-21.txt"] = "Kobe, at the very beginning\n" +
                                            std::string(large, '-') + "\nNagoya\n" +
                                            std::string(400000, 'x') + "\nYokohama\n";
    files.files["Journal 2026-11-20.txt"] = "a day's work\n";
    const Journal journal(files);
    EXPECT_EQ(journal.text("2026-11-20"), "a day's work\n");
    EXPECT_EQ(journal.text("2026-11-22"),
              "\"folder/Journal 2026-11-22.txt\" could not be read: it is not there");
    const std::string shown = journal.text("2026-11-21");
    EXPECT_THAT(shown, StartsWith("======== the last 512 kB of 3,463 kB"));
    EXPECT_THAT(shown, Not(HasSubstr("---"))) << "no line of which the beginning is missing";
    EXPECT_THAT(shown, HasSubstr("\nNagoya\n"));
    EXPECT_THAT(shown, EndsWith("x\nYokohama\n"));
    EXPECT_THAT(shown, Not(HasSubstr(std::string(2100, 'x')))) << "a line that takes a second";
}

TEST(Journal, wordsAreFoundAPieceAtATime)
{
    FakeFiles files;
    for (const auto& [day, before] : {std::pair("2026-11-19", large), {"2026-11-20", 262140UL}})
        files.files[Journal::fileName(day)] = std::string(before, '-') + "Left KOBE at dawn\n";
    files.files[Journal::fileName("2026-11-21")] = "nothing of the kind\n";
    JournalSearch search(files, "left Kobe");
    int pieces = 1;
    while (search.goOn())
        ++pieces;
    EXPECT_THAT(search.found(), ElementsAre("2026-11-20", "2026-11-19"));
    EXPECT_GT(pieces, 10);
    JournalSearch none(files, "Osaka");
    while (none.goOn()) {
    }
    EXPECT_THAT(none.found(), ElementsAre());
}

} // namespace
} // namespace korvel
