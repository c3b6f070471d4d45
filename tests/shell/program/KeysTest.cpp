// SPDX-License-Identifier: MIT
#include "shell/controls/ResultLabel.h"
#include "shell/layout/PageBar.h"
#include "shell/manual/HelpWindow.h"
#include "tests/shell/WholeProgram.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QButtonGroup>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTimer>

#include <set>

namespace korvel
{
namespace
{

using namespace korvel::testing;

class KeysTest : public WholeProgram
{
protected:
    static void bringToFront(QWidget& window)
    {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window)) << nameOf(window);
    }
    /// A key for whatever has the focus in a window.
    static void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        bringToFront(window);
        QWidget* focus = window.focusWidget() ? window.focusWidget() : &window;
        QTest::keyClick(focus, key, modifiers);
    }
    /// The keys for size, colours and the end of the program, pressed in one window.
    void expectKeysOfTheProgram(QWidget& window)
    {
        const std::string where = nameOf(window);
        Screen& screen = main.program().screen();
        const auto zoomAfter = [&](Qt::Key key) {
            press(window, key, Qt::ControlModifier);
            return screen.choices().zoom;
        };
        EXPECT_GT(zoomAfter(Qt::Key_Plus), 100) << where;
        EXPECT_LT(zoomAfter(Qt::Key_Minus), 110) << where;
        EXPECT_LT(zoomAfter(Qt::Key_Minus), 100) << where;
        EXPECT_EQ(zoomAfter(Qt::Key_0), 100) << where;
        const int step = screen.choices().dimStep;
        for (const auto& [modifiers, isNight] : {std::pair(Qt::ShiftModifier, true),
                                                 {Qt::NoModifier, false},
                                                 {Qt::NoModifier, true}}) {
            press(window, Qt::Key_F8, modifiers);
            EXPECT_EQ(main.program().saved().nightColours(), isNight) << where;
            EXPECT_EQ(screen.choices().dimStep, step) << where;
        }
        press(window, Qt::Key_F8);
        questions.willAnswer(Answer::No);
        const auto asked = questions.asked.size();
        press(window, Qt::Key_Q, Qt::ControlModifier);
        EXPECT_EQ(questions.asked.size(), asked + 1) << where;
    }
};

/// Every shortcut of a window by its keys.
std::map<std::string, int> keysOf(const QWidget& window)
{
    std::map<std::string, int> keys;
    for (const QAction* action : window.findChildren<QAction*>()) {
        // A paper belongs to its calculator and has keys of its own.
        const QObject* owner = action;
        while (!qobject_cast<const QMainWindow*>(owner) && owner != &window)
            owner = owner->parent();
        if (owner != &window) continue;
        for (const QKeySequence& each : action->shortcuts())
            ++keys[each.toString().toStdString()];
    }
    return keys;
}

/// What Alt and a letter lead to in a window: its menus, buttons and captions.
using Letters = std::map<std::string, std::vector<std::string>>;
Letters lettersOf(const QMainWindow& window)
{
    Letters letters;
    const auto note = [&](const QString& caption) {
        const QKeySequence key = QKeySequence::mnemonic(caption);
        if (!key.isEmpty()) letters[key.toString().toStdString()].push_back(caption.toStdString());
    };
    for (const QAction* menu : window.menuBar()->actions())
        if (menu->isVisible()) note(menu->text());
    for (const auto* each : window.findChildren<QAbstractButton*>())
        if (each->window() == &window && each->isVisible()) note(each->text());
    for (const auto* each : window.findChildren<QLabel*>())
        if (each->window() == &window && each->isVisible() && each->buddy()) note(each->text());
    return letters;
}

std::vector<QWidget*> tabStops(QWidget& window)
{
    std::vector<QWidget*> stops;
    QWidget* first = window.focusWidget() ? window.focusWidget() : &window;
    QWidget* at = first;
    do {
        at = at->nextInFocusChain();
        if ((at->focusPolicy() & Qt::TabFocus) && at->isVisibleTo(&window) && at->isEnabled() &&
            at->window() == &window && at != &window)
            stops.push_back(at);
    } while (at != first);
    // From the one that stands first on the screen.
    const auto place = [&](QWidget* each) {
        QPoint p = each->mapTo(&window, QPoint());
        for (QWidget* around = each; around != &window; around = around->parentWidget())
            if (around->parentWidget() && around->objectName() == "qt_scrollarea_viewport")
                p.setY(std::max(p.y(), around->mapTo(&window, QPoint()).y())); // scrolled out
        return 4 * p.y() + p.x(); // columns stand side by side
    };
    const auto start = std::min_element(stops.begin(), stops.end(),
                                        [&](auto* a, auto* b) { return place(a) < place(b); });
    std::rotate(stops.begin(), start, stops.end());
    return stops;
}

/// Where two controls of a window stand; one that has scrolled out of a table that the other is not
/// in stands where the table does.
std::pair<QRect, QRect> placesOf(QWidget& one, QWidget& other)
{
    const auto placeOf = [](QWidget& which, const QWidget& against) {
        QWidget* stands = &which;
        for (QWidget* each = &which; each; each = each->parentWidget())
            if (qobject_cast<QScrollArea*>(each) && !each->isAncestorOf(&against)) stands = each;
        return QRect(stands->mapTo(stands->window(), QPoint()), stands->size());
    };
    return {placeOf(one, other), placeOf(other, one)};
}

TEST_F(KeysTest, keysAreOneOfAKindAndTabGoesAsOneReads)
{
    for (QWidget* each : openAll()) {
        const auto keys = keysOf(*each);
        for (const auto& [key, count] : keys)
            EXPECT_EQ(count, 1) << nameOf(*each) << " " << key;
        for (const char* key : {"Shift+F8", "Ctrl+Q", "Ctrl++", "Ctrl+-", "Ctrl+0", "Ctrl+Tab"})
            EXPECT_EQ(keys.count(key), 1u) << nameOf(*each) << " " << key;
        const auto* window = qobject_cast<QMainWindow*>(each);
        for (const auto& [letter, captions] : window ? lettersOf(*window) : Letters()) {
            EXPECT_THAT(captions, ::testing::SizeIs(1)) << nameOf(*each) << " " << letter;
        }
        const auto stops = tabStops(*each);
        for (std::size_t i = 1; i < stops.size(); ++i) {
            const auto [before, here] = placesOf(*stops[i - 1], *stops[i]);
            // Up only to what stands on the right, left only to what stands below.
            EXPECT_TRUE(here.bottom() > before.top() || here.left() >= before.right())
                << nameOf(*stops[i - 1]) << " before " << nameOf(*stops[i]);
            EXPECT_TRUE(here.right() > before.left() || here.top() >= before.top())
                << nameOf(*stops[i - 1]) << " before " << nameOf(*stops[i]);
        }
    }
}

TEST_F(KeysTest, keysOfTheWindows)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    QTest::keyClick(&main, Qt::Key_2, Qt::ControlModifier);
    QWidget& gc = onScreen("frmGC2000");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&gc));
    QTest::keyClick(&gc, Qt::Key_1, Qt::ControlModifier);
    QPointer<QWidget> cddr(&onScreen("frmCDDR"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(cddr));
    // The main window, then as in the menus.
    QWidget* from = cddr;
    for (QWidget* next : {&gc, static_cast<QWidget*>(&main), cddr.data()}) {
        QTest::keyClick(from, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitForWindowActive(next)) << nameOf(*next);
        from = next;
    }
    type(*cddr, "txtCDDR(0)", "35");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(cddr && cddr->isVisible());
    EXPECT_EQ(text(window("frmCDDR"), "txtCDDR(0)"), "35");
    gc.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&gc));
    QTest::keyClick(&gc, Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(gc.isVisible());
    questions.willAnswer(Answer::No);
    QWidget& wind = window("frmWind");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&wind));
    QTest::keyClick(&wind, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(main.isVisible());
}

/// Every key in every window, by what it does. Size and colours are those of all open windows, so
/// each window stands with the clock alone; where it stands among all others the kinds of windows
/// stand for theirs: a key that another window has as well does nothing in any of them.
TEST_F(KeysTest, eachKeyDoesTheSameInEveryWindow)
{
    for (const CatalogueEntry& entry : calculatorWindows()) {
        QWidget& alone = window(entry.name);
        fillBoxes({&alone}, "12.34");
        expectKeysOfTheProgram(alone);
        alone.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    const std::vector<QWidget*> all = openAll();
    for (const char* name : {"frmWind", "frmPaper", "frmJournal", "frmHelp"})
        expectKeysOfTheProgram(onScreen(name));
    expectKeysOfTheProgram(main);
    for (QWidget* each : all)
        for (int i = 0; i < 9; ++i) {
            QWidget& opened = onScreen(calculatorWindows()[std::size_t(i)].name);
            if (&opened == each) continue;
            press(*each, Qt::Key(Qt::Key_1 + i), Qt::ControlModifier);
            EXPECT_TRUE(QTest::qWaitForWindowActive(&opened)) << nameOf(*each) << " Ctrl+" << i + 1;
        }
}

/// The page that F1 opens from each window, and the window that it leaves.
TEST_F(KeysTest, helpComesAtItsPageAndGoes)
{
    for (const CatalogueEntry& entry : calculatorWindows()) {
        QWidget& each = window(entry.name);
        press(each, Qt::Key_F1);
        auto& help = dynamic_cast<HelpWindow&>(onScreen("frmHelp"));
        EXPECT_EQ(help.view().page(), Manual::pageOf(entry.name)) << nameOf(each);
    }
    press(onScreen("frmHelp"), Qt::Key_F1);
    auto& view = dynamic_cast<HelpWindow&>(onScreen("frmHelp")).view();
    EXPECT_EQ(view.textCursor().selectedText(), "In the manual");
    press(onScreen("frmHelp"), Qt::Key_Escape);
    EXPECT_EQ(shown("frmHelp"), nullptr);
}

TEST_F(KeysTest, nextWindowGoesThroughAllThatAreOpen)
{
    const auto windows = openAll();
    std::set<QWidget*> seen;
    QWidget* at = &main;
    bringToFront(main);
    for (std::size_t i = 0; i < windows.size(); ++i) {
        press(*at, Qt::Key_Tab, Qt::ControlModifier);
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() != at; }))
            << nameOf(*at);
        at = QApplication::activeWindow();
        seen.insert(at);
    }
    EXPECT_EQ(at, &main);
    EXPECT_EQ(seen, std::set<QWidget*>(windows.begin(), windows.end()));
}

TEST_F(KeysTest, papersAreOpenedAndPrintedByKeysAndEscapeCloses)
{
    for (const CatalogueEntry& entry : calculatorWindows()) {
        QWidget& each = window(entry.name);
        press(each, Qt::Key_F2);
        QPointer<QWidget> paper = &onScreen("frmPaper");
        for (QWidget* prints : {&each, paper.data()}) {
            bool asked = false;
            bringToFront(*prints);
            QTimer::singleShot(0, [&] {
                auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                asked = dialog != nullptr;
                if (dialog) dialog->reject();
            });
            press(*prints, Qt::Key_P, Qt::ControlModifier);
            EXPECT_TRUE(asked) << nameOf(*prints);
        }
        press(*paper, Qt::Key_Escape);
        EXPECT_FALSE(paper && paper->isVisible()) << entry.name.toStdString();
        press(each, Qt::Key_Escape);
        EXPECT_EQ(shown(entry.name), nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(KeysTest, whatTakesTheMouseAndWhatShowsAResultTakesTabAndIsCopied)
{
    for (QWidget* window : openAll()) {
        for (QWidget* each : window->findChildren<QWidget*>()) {
            // Of the toolkit's own parts the arrow of a menu bar that is cut short has no keys.
            const QString name = each->objectName();
            if (each->window() != window || !each->isVisible() || !each->isEnabled() ||
                (name.startsWith("qt_") && name != "qt_menubar_ext_button"))
                continue;
            const bool isControl =
                qobject_cast<QAbstractButton*>(each) || qobject_cast<QLineEdit*>(each) ||
                qobject_cast<QComboBox*>(each) ||
                (qobject_cast<QAbstractItemView*>(each) && !qobject_cast<QHeaderView*>(each));
            auto* result = dynamic_cast<ResultLabel*>(each);
            // The echo beside a box is told with the box.
            const bool shows =
                result && !result->text().isEmpty() && !result->objectName().startsWith("echo ");
            // A group of options is one stop, at the chosen one; arrow keys lead to the others.
            const auto* option = qobject_cast<QAbstractButton*>(each);
            const bool isBesideTheStop = option &&
                                         (each->inherits("QRadioButton") || option->group()) &&
                                         !option->isChecked();
            if ((isControl && !isBesideTheStop) || shows) {
                EXPECT_TRUE(each->focusPolicy() & Qt::TabFocus) << nameOf(*each);
            }
            if (!shows) continue;
            QApplication::clipboard()->clear();
            result->setFocus(Qt::TabFocusReason);
            QTest::keyClick(result, Qt::Key_C, Qt::ControlModifier);
            EXPECT_FALSE(QApplication::clipboard()->text().isEmpty()) << nameOf(*each);
        }
    }
}

/// Boxes of a page that nobody saw stayed empty, and so did those of a sight.
TEST_F(KeysTest, whatAnEntryClearsComesBackWhereverTheFocusWas)
{
    struct Case {
        const char* window;
        const char* entry;
        const char* box;
        const char* typed;
    };
    for (const auto& [name, entry, box, typed] :
         {Case{"frmSky", "mnuAC(1)", "txtSky(10)", "29.35"},
          Case{"frmCompass", "mnuAC(1)", "txtCourses(8)", "250"},
          Case{"frmSunSight", "mnuAC(0)", "txtSunSight(4)", "38.10"},
          Case{"frmCDDR", "mnuAC(1)", "txtCDDR(5)", "148.15"}}) {
        QWidget& opened = window(name);
        static_cast<QLineEdit&>(control(opened, box)).setText(typed);
        choose(opened, entry);
        EXPECT_EQ(text(opened, box), "") << name;
        press(opened, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(text(opened, box), typed) << name;
    }
}

bool haveAWordInCommon(const QLabel& caption, const QWidget& control)
{
    const QStringList words =
        caption.text().remove('&').split(QRegularExpression("\\W+"), Qt::SkipEmptyParts);
    return std::ranges::any_of(words, [&](const QString& word) {
        return word.size() > 1 && control.accessibleName().contains(word, Qt::CaseInsensitive);
    });
}

/// The caption left of a result, in the same line of the same panel; units stand to the right.
const QLabel* captionOf(const ResultLabel& result)
{
    const QLabel* nearest = nullptr;
    const QRect of = result.geometry();
    for (const auto* each :
         result.parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
        const QRect at = each->geometry();
        const bool isBeside = at.top() <= of.center().y() && at.bottom() >= of.center().y() &&
                              at.right() <= of.left();
        if (each->isVisible() && each->text().size() > 2 && isBeside &&
            !dynamic_cast<const ResultLabel*>(each) &&
            (!nearest || at.right() > nearest->geometry().right()))
            nearest = each;
    }
    return nearest;
}

/// A caption beside a box, and what a screen reader calls the box, have a word in common. A menu's
/// caption is what an officer reads, its name what the program calls it; a button's letter stands
/// in its caption and not in its tip.
TEST_F(KeysTest, captionsStandBesideTheirBoxes)
{
    for (const QWidget* window : openAll()) {
        for (const auto* menu : window->findChildren<QMenu*>())
            EXPECT_FALSE(menu->title().startsWith("mnu")) << menu->title().toStdString();
        for (const auto* button : window->findChildren<QAbstractButton*>())
            EXPECT_FALSE(button->toolTip().contains('&')) << button->toolTip().toStdString();
        for (auto* caption : window->findChildren<QLabel*>()) {
            // "Height at" stands before the time that is asked about, "Times of" before a height.
            if (!caption->buddy() || caption->buddy()->objectName().startsWith("txtAt")) continue;
            EXPECT_TRUE(haveAWordInCommon(*caption, *caption->buddy()))
                << nameOf(*caption->buddy()) << " beside " << caption->text().toStdString();
            if (!caption->isVisible() || !caption->buddy()->isVisible()) continue;
            const auto [words, box] = placesOf(*caption, *caption->buddy());
            const bool isInLine = words.top() < box.bottom() && words.bottom() > box.top();
            const bool isAbove = words.left() < box.right() && words.right() > box.left();
            EXPECT_TRUE(isInLine || (isAbove && words.top() < box.top()))
                << caption->text().toStdString() << " stands elsewhere";
        }
    }
}

TEST_F(KeysTest, andThoseOfResultsToo)
{
    // Below each other, of a table, or called by more than "Found", "GOV" or "Leaves".
    const QRegularExpression others(
        "^lbl(\\w+TonsInVacuo|WeightMethod|Date|Place|(Wp\\w+|Tank|Bunker|Moved)\\(.*|"
        "Compass\\(1[0-3]\\)|Noon\\(21\\)|Row\\(1\\)|SunNoon\\(1\\)|Keel\\(4\\))$");
    for (const QWidget* window : openAll()) {
        auto* bar = window->findChild<PageBar*>();
        for (std::size_t page = 0; page < (bar ? bar->pages() : 1); ++page) {
            if (bar) bar->turnTo(page);
            QApplication::processEvents();
            for (const auto* result : window->findChildren<ResultLabel*>()) {
                const QLabel* caption = result->isVisible() && !result->accessibleName().isEmpty()
                                            ? captionOf(*result)
                                            : nullptr;
                EXPECT_TRUE(!caption || others.match(result->objectName()).hasMatch() ||
                            haveAWordInCommon(*caption, *result))
                    << nameOf(*result) << " beside " << caption->text().toStdString();
            }
        }
    }
}

} // namespace
} // namespace korvel
