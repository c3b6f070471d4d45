// SPDX-License-Identifier: MIT
// A paper, and the journal that papers go into.
#include "app/working/WorkingPaper.h"
#include "app/working/Interpolation.h"
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
    FakeFiles empty;
    EXPECT_FALSE(JournalSearch(empty, "Osaka").goOn());
}

constexpr NavFunc113::DateTime marchDay = 38425.40625; // 2005-03-14 09:45

TEST(WorkingPaper, listsAreReadBackAsTheyWere)
{
    const ExportTable list{{"place", "height (m)"},
                           {{"Kobe, Japan", "-0.50"},
                            {"the \"Bund\"", ""},
                            {"=1+1", "+0.5"},
                            {"'s Gravenzande", "-"}}};
    EXPECT_EQ(csvText(list), "place,height (m)\r\n\"Kobe, Japan\",-0.50\r\n"
                             "\"the \"\"Bund\"\"\",\r\n"
                             "'=1+1,+0.5\r\n''s Gravenzande,'-\r\n");
    for (const auto& [cell, text] : {std::pair("'=1+1", "=1+1"), std::pair("-0.50", "-0.50"),
                                     std::pair("''s Gravenzande", "'s Gravenzande")})
        EXPECT_EQ(textOfCell(cell), text);
}

TEST(WorkingPaper, itsTextHasEverythingInItsPlace)
{
    WorkingPaper paper{"Tide"};
    paper.inputs = {{"Latitude", "35.5", "°", "35.30"}, {"Speed", "12", "knots", ""}};
    paper.results = {{"Course", "45", "°", "045.0"}};
    paper.tables = {{"Waters", {"time", "m"}, {{"00:10", "1.5"}, {"06:20", "0.3"}}}};
    Working working{"Course", {"by tables", "north positive"}, {}};
    working.step("Run", "D", "3 + 4", "7", "miles");
    working.step("Set", "s", "", "2");
    working.tables = {{"Weights", {"w"}, {}}};
    working.whyNone = "no distance";
    paper.workings = {working};
    paper.remarks = {"careful"};
    paper.limits = {"a mile", "a degree"};
    const PaperHeading heading{"", "V1", marchDay, marchDay - 9 / 24.0, 9, "P 1.0"};
    EXPECT_EQ(paperText(heading, paper),
              "Tide\n====\n"
              "Ship: ____________________\nVoyage: V1\n"
              "Ship's mean time (SMT): 2005-03-14 09:45\nUTC: 2005-03-14 00:45\n"
              "Time difference (TD): 9.0 hE, SMT = UTC + TD\nProgram: P 1.0\n"
              "\nInputs as understood\n--------------------\n"
              "Latitude: 35.5°   (typed 35.30)\nSpeed: 12 knots\n"
              "\nResults\n-------\nCourse: 45°   (in the window 045.0)\n"
              "\nWaters\n------\ntime\tm\n00:10\t1.5\n06:20\t0.3\n"
              "\nWorking: Course\n---------------\n- by tables\n- north positive\n"
              "1. Run: D = 3 + 4 = 7 miles\n2. Set: s = 2\n"
              "\nWeights\n-------\nw\nno distance\n"
              "\nRemarks\n-------\n- careful\n"
              "\nLimits of accuracy\n------------------\n- a mile\n- a degree\n");
    EXPECT_EQ(resultsText(paper), "Course\t45\t°\ntime\tm\n00:10\t1.5\n06:20\t0.3\n");
    const PaperHeading west{"S", "", marchDay, marchDay, -4.5, ""};
    EXPECT_EQ(headingLines(west)[4].value, "4.5 hW, SMT = UTC + TD");
    EXPECT_EQ(headingLines({"S", "", marchDay, marchDay, 0, ""})[4].value.substr(0, 6), "0.0 hE");
    for (const auto& [unit, text] :
         {std::pair{"", "5"}, {"'", "5'"}, {"° true", "5° true"}, {"h", "5 h"}})
        EXPECT_EQ(figureText("5", unit), text);
}

TEST(WorkingPaper, noFileSystemRefusesAnOfferedName)
{
    WorkingPaper paper{"Tide"};
    paper.place = "Port: \"A/B\" <C>?";
    const PaperHeading heading{"", "", marchDay, marchDay - 9 / 24.0, 9, ""};
    EXPECT_EQ(offeredName(heading, paper, "pdf"), "Tide Port- -A-B- -C-- 2005-03-14.pdf");
}

TEST(WorkingPaper, figuresOfStepsHaveTheirSign)
{
    EXPECT_EQ(figure(-122.5, 3) + figure(12.4, 0), "-122.50012");
    EXPECT_EQ(term(-122.5, 1), "(-122.5)");
    EXPECT_EQ(figure(-0.0004, 3), "0.000") << "what rounds to nothing has no sign";
    EXPECT_EQ(directionFigure(NavFunc113::Degrees(359.99996), 4), "0.0000");
    EXPECT_EQ(directionFigure(NavFunc113::Degrees(359.99994), 4), "359.9999");
    EXPECT_EQ(lagrangeFigures({{0, 0}, {1, -2}}, 0.5), "(0.0 × 0.5000000 + (-2.0) × 0.5000000)");
    Working working{"angles", {}, {}};
    working.angleStep("south", "φ", NavFunc113::DegMin(-0.305));
    EXPECT_EQ(working.steps.front().figures, "-(0 + 30.5 / 60)");
    EXPECT_EQ(working.steps.front().value, "-0.508333");
}

TEST(WorkingPaper, aPaperWithoutResultsSaysWhy)
{
    WorkingPaper paper{"Course"};
    EXPECT_EQ(whyNoResults(paper), "No results: nothing was entered.");
    paper.remarks = {"Departure latitude not within -90 to 90 degrees"};
    EXPECT_EQ(resultsText(paper), "No results: the remarks below say why.\n");
    paper.workings.push_back({"Course", {}, {}, {}, "no distance"});
    EXPECT_EQ(whyNoResults(paper), "No results: no distance");
    paper.results = {{"Course", "35°30.5'N", "", "35-.30'5N"}};
    EXPECT_EQ(whyNoResults(paper), "");
    EXPECT_EQ(resultsText(paper), "Course\t35°30.5'N\n");
}

} // namespace
} // namespace korvel
