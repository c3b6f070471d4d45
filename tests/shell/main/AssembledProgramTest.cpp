// SPDX-License-Identifier: MIT
#include "calculator_windows.h"
#include "shell/window/CalculatorWindow.h"
#include "tests/golden/Golden.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTest>

#include <set>

namespace korvel
{
namespace
{

using namespace korvel::testing;

/// No two entries of a menu may want the same key; entries without one are left alone.
void expectUniqueMnemonics(const QString& window, const QList<QAction*>& entries)
{
    std::set<QString> letters;
    for (const QAction* entry : entries) {
        const auto letter =
            QRegularExpression("&([^&])").match(entry->text()).captured(1).toLower();
        EXPECT_TRUE(letter.isEmpty() || letters.insert(letter).second)
            << window.toStdString() << ": " << entry->text().toStdString();
        if (entry->menu()) expectUniqueMnemonics(window, entry->menu()->actions());
    }
}

QAction& entryNamed(const QString& window, const QString& caption)
{
    for (QAction* entry : shown(window)->findChildren<QAction*>())
        if (entry->text() == caption) return *entry;
    throw std::runtime_error(window.toStdString() + " has no entry " + caption.toStdString());
}

/// The whole program, every window of it.
class AssembledProgramTest : public ::testing::Test
{
protected:
    AssembledProgramTest()
    {
        questions.willType(FakeQuestions::acceptDefault);
        main.start();
    }

    void remember(double latitude, double longitude, double single)
    {
        KV_Savedvalue& saved = main.program().saved();
        saved.setPositionMemo(NavFunc113::DegMin(latitude), NavFunc113::DegMin(longitude));
        saved.setSingleMemo(single);
    }

    QTemporaryDir folder;
    FakeQuestions questions;
    FakeClock clock;
    FakeBell bell;
    ProgramFolder files{folder.path()};
    const WindowCatalogue catalogue = calculatorWindows();
    frmKORVEL2000 main{{questions, clock, files, bell}, calculatorWindows()};
};

TEST_F(AssembledProgramTest, everyEntryAndEveryLinkOpensWhatItSays)
{
    EXPECT_EQ(catalogue.size(), 27u);
    expectUniqueMnemonics("frmKORVEL2000", main.menuBar()->actions());
    for (const CatalogueEntry& entry : catalogue) {
        choose(main, entry.entryName().toStdString());
        auto* window = qobject_cast<QMainWindow*>(shown(entry.name));
        ASSERT_NE(window, nullptr) << entry.name.toStdString();
        EXPECT_TRUE(isTicked(main, entry.entryName().toStdString()));
        expectUniqueMnemonics(entry.name, window->menuBar()->actions());
    }
    for (const CatalogueEntry& from : catalogue) {
        if (from.name == "frmTIDE") continue; // has no links
        for (const CatalogueEntry& to : catalogue) {
            if (to.name == from.name) continue;
            shown(to.name)->hide();
            entryNamed(from.name, to.caption).trigger();
            ASSERT_NE(shown(to.name), nullptr)
                << from.name.toStdString() << " to " << to.name.toStdString();
        }
    }
}

/// What a menu offers, a line between groups: "frmCDDR 1 Ctrl+1 | ..".
std::string entriesOf(const QMenu& menu)
{
    std::string entries;
    for (const QAction* entry : menu.actions()) {
        if (entry->menu()) continue;
        entries +=
            entry->isSeparator()
                ? "| "
                : (entry->objectName() + " " + entry->shortcut().toString() + "; ").toStdString();
    }
    return entries;
}

/// A number in a menu's array that two entries have, or none; a key given to another window, a
/// window without the key that it always had; a line that is lost.
TEST_F(AssembledProgramTest, entriesKeepTheirNumbersKeysAndLines)
{
    const auto menu = [&](const char* name) { return entriesOf(*main.findChild<QMenu*>(name)); };
    EXPECT_EQ(menu("mnuNAV"), "mnuNAV(1) Ctrl+1; mnuNAV(2) Ctrl+2; mnuNAV(3) Ctrl+3; "
                              "| mnuNAV(4) ; mnuNAV(5) ; ");
    EXPECT_EQ(menu("mnuWATCH"),
              "mnuWATCH(1) Ctrl+4; mnuWATCH(2) Ctrl+5; mnuWATCH(3) Ctrl+6; mnuWATCH(4) Ctrl+7; "
              "mnuWATCH(5) Ctrl+8; | mnuWATCH(6) Ctrl+B; mnuWATCH(7) ; mnuWATCH(8) ; ");
    EXPECT_EQ(menu("mnuUTIL"), "mnuTide Ctrl+T; ");
    std::string conversions = "mnuCONV(1) Ctrl+9; ";
    for (int i = 2; i <= 13; ++i)
        conversions += (i == 7 ? "| mnuCONV(" : "mnuCONV(") + std::to_string(i) + ") ; ";
    EXPECT_EQ(menu("mnuCONV"), conversions);
}

/// A unit that no letters find, or that opens another window or another box.
TEST_F(AssembledProgramTest, everyUnitIsFoundByItsSymbolAndHasTheKeyboard)
{
    int found = 0;
    for (const CatalogueEntry& entry : catalogue) {
        if (!entry.places) continue;
        for (const CatalogueEntry::Place& unit : entry.places()) {
            if (unit.symbol.isEmpty()) continue;
            main.program().goTo(main);
            QApplication::processEvents();
            QWidget* box = shown("dlgGoTo");
            ASSERT_NE(box, nullptr);
            box->findChild<QLineEdit*>("txtGoTo")->setText(unit.symbol);
            QTest::keyClick(box->findChild<QLineEdit*>("txtGoTo"), Qt::Key_Return);
            QApplication::processEvents();
            ASSERT_NE(shown(entry.name), nullptr) << unit.caption.toStdString();
            ASSERT_EQ(shown(entry.name)->focusWidget()->objectName(), unit.place)
                << unit.caption.toStdString();
            ++found;
        }
    }
    EXPECT_GT(found, 120);
}

/// Recalls into the boxes and stores from them what the memories hold.
TEST_F(AssembledProgramTest, everyMemoEntryMovesWhatItSays)
{
    KV_Savedvalue& saved = main.program().saved();
    const auto run = [&](const QString& window, const std::string& entry) {
        questions.willAnswer(Answer::Yes);
        choose(*shown(window), entry);
    };
    for (const Golden& row : golden("memo_entries")) {
        const QString window = QString::fromStdString(row.text("window"));
        const bool isPosition = row.has("longitude");
        main.openWindow(window);
        remember(12.34, -56.18, 7.25);
        run(window, row.text("recall"));
        EXPECT_EQ(text(*shown(window), row.text("box")), isPosition ? "12.34" : "7.25") << row;
        if (isPosition) {
            EXPECT_EQ(text(*shown(window), row.text("longitude")), "-56.18") << row;
        }
        if (!row.has("store")) continue;
        remember(1, 1, 1);
        run(window, row.text("store"));
        EXPECT_EQ(numberOf(saved(isPosition ? 23 : 25)), isPosition ? 12.34 : 7.25) << row;
        EXPECT_EQ(numberOf(saved(24)), isPosition ? -56.18 : 1) << row;
    }
}

} // namespace
} // namespace korvel
