// SPDX-License-Identifier: MIT
#include "app/working/WorkingPaper.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

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

TEST(WorkingPaper, noFileSystemRefusesAnOfferedName)
{
    WorkingPaper paper{"Tide"};
    paper.place = "Port: \"A/B\" <C>?";
    const PaperHeading heading{"", "", marchDay, marchDay - 9 / 24.0, 9, ""};
    EXPECT_EQ(offeredName(heading, paper, "pdf"), "Tide Port- -A-B- -C-- 2005-03-14.pdf");
}

TEST(WorkingPaper, figuresOfStepsHaveTheirSign)
{
    EXPECT_EQ(figure(-122.5, 3), "-122.500");
    EXPECT_EQ(term(-122.5, 1), "(-122.5)");
    EXPECT_EQ(figure(-0.0004, 3), "0.000") << "what rounds to nothing has no sign";
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
