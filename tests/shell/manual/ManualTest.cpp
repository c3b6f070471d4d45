// SPDX-License-Identifier: MIT
#include "shell/manual/Manual.h"
#include "shell/manual/FoundLines.h"
#include "shell/manual/LibrariesInUse.h"
#include "shell/manual/ManualPlaces.h"
#include "shell/manual/ProgramFacts.h"
#include "tests/app/FakeMachine.h"
#include "tests/shell/PaintedTexts.h"

#include <gtest/gtest.h>

#include <QListWidget>
#include <QPainter>
#include <QTextDocument>

namespace korvel
{
namespace
{

/// The first line that fits somehow taken for the one that has the name.
TEST(ManualPlaces, theLineThatSaysTheMostOfANameIsItsPlace)
{
    QTextDocument page;
    page.setMarkdown("# Page\n\n## Course / Track\n\n| Name | What it is |\n|---|---|\n"
                     "| Speed… | any |\n| Speed over ground | by the fix |\n| … | whatever |\n"
                     "| Memo: Store now / Store later | both |\n| Input …: 5… | asked |\n"
                     "| Data: Turn round | entry |\n| Edit: Turn round | later |\n");
    const struct {
        const char *name, *line;
    } rows[] = {{"Speed over ground", "Speed over ground – by the fix"},
                {"SPEED", ""},
                {"Speed made good", "Speed… – any"},
                {"track", "Course / Track"},
                {"Store later", "Memo: Store now / Store later – both"},
                {"Turn round", "Data: Turn round – entry"},
                {"Input 7: 5 knots", "Input …: 5… – asked"},
                {"Name", ""},
                {"by the fix", ""},
                {"", ""}};
    for (const auto& [name, line] : rows) {
        const auto place = placeOf(page, name);
        EXPECT_EQ(place ? place->text.toStdString() : "", line) << name;
    }
    ASSERT_EQ(sectionsOf(page).size(), 1u);
    EXPECT_EQ(sectionsOf(page).front().text, "Course / Track");
    EXPECT_EQ(linesOf(page).size(), 10u);
}

TEST(ManualPlaces, theWordsOfALinkAndNoOthersHaveItsColour)
{
    QTextDocument page;
    page.setMarkdown("Before it, [the other page](other.md) and what is behind it.");
    QPalette palette;
    palette.setColor(QPalette::Link, QColor(12, 34, 56));
    dressPage(page, palette);
    for (auto part = page.begin().begin(); !part.atEnd(); ++part)
        EXPECT_EQ(part.fragment().charFormat().foreground().color() == QColor(12, 34, 56),
                  part.fragment().text() == "the other page")
            << part.fragment().text().toStdString();
}

TEST(ProgramFacts, tellWhatLiesBesideTheProgram)
{
    FakeFiles files;
    for (const auto& [file, name] : {std::pair("libicuuc.so.72.1", "icuuc 72.1"),
                                     {"libsystemd-252.so", "systemd 252"},
                                     {"libglib-2.0.so.0.7400.6", "glib 0.7400.6"},
                                     {"libqoffscreen.so", ""}})
        EXPECT_EQ(nameAndVersion(file), name);
    auto facts = programFacts(files);
    EXPECT_EQ(facts["records"], "folder");
    EXPECT_EQ(facts["packages"], "none: it uses the system's own");
    EXPECT_TRUE(facts["licence"].endsWith("/copyright"));
    files.files["LICENSE"] = "MIT";
    files.files["licences/packages"] = "libicu (72.1) Unicode\nlibpng (1.6) zlib\n";
    facts = programFacts(files);
    EXPECT_EQ(facts["packages"], "libicu, libpng; their terms lie in the folder `licences`");
    EXPECT_EQ(facts["licence"], "LICENSE");
}

TEST(Manual, aPageThatIsNotThereSaysWhereItShouldBe)
{
    FakeFiles files;
    const Manual manual(files);
    EXPECT_TRUE(manual.text("frmETA").startsWith("# No manual\n\nThis page should lie in\n\n    "));
    EXPECT_FALSE(manual.has("frmETA"));
}

TEST(FoundLine, startsShortlyBeforeTheWord)
{
    EXPECT_EQ(foundLine("Tide curve", {"tide"}), "Tide curve");
    EXPECT_EQ(foundLine("one two three four five six tides", {"tides"}), "… five six tides");
    EXPECT_EQ(foundLine("one two six tide", {"tide"}), "one two six tide");
    EXPECT_EQ(foundLine("averyveryverylongword(tide)", {"tide"}), "… tide)");
    EXPECT_EQ(foundLine("a\nb  tide and much before the ebb", {"tide", "ebb"}).left(8), "a b tide");
    QListWidget list;
    list.addItem("Tide and ebb, tide again");
    FoundLines lines;
    lines.setWords({"tide", "ebb"});
    QStyleOptionViewItem option;
    option.initFrom(&list);
    option.rect = {0, 0, 400, 40};
    testing::PaintedTexts sheet({400, 40});
    QPainter painter(&sheet);
    lines.paint(&painter, option, list.model()->index(0, 0));
    painter.end();
    QStringList pieces;
    for (const testing::PaintedText& each : sheet.texts())
        pieces << each.text.trimmed();
    EXPECT_EQ(pieces.join('|').toStdString(), "Tide|and|ebb|,|tide|again") << "found words apart";
}

} // namespace
} // namespace korvel
