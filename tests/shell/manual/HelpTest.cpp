// SPDX-License-Identifier: MIT
#include "calculator_windows.h"
#include "shell/controls/Boxes.h"
#include "shell/controls/NoticeLine.h"
#include "shell/controls/ResultLabel.h"
#include "shell/manual/HelpWindow.h"
#include "shell/manual/ManualPlaces.h"
#include "tests/SourceFolder.h"
#include "tests/shell/ShellTesting.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QImage>
#include <QInputDialog>
#include <QListWidget>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <QToolTip>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>

namespace korvel
{
namespace
{

using namespace korvel::testing;

HelpWindow* help()
{
    return qobject_cast<HelpWindow*>(shown("frmHelp"));
}

/// The whole program with its manual beside it, the page of the first start seen and left.
class HelpTest : public ::testing::Test
{
protected:
    HelpTest()
    {
        std::filesystem::copy(sourceFile("docs/manual"), folder.filePath("manual").toStdString(),
                              std::filesystem::copy_options::recursive);
        questions.willType(FakeQuestions::acceptDefault);
        main = std::make_unique<frmKORVEL2000>(Machine{questions, clock, files, bell},
                                               calculatorWindows());
        main->start();
        if (!QTest::qWaitFor([] { return help() != nullptr; })) return;
        help()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(help()));
        coversNothing = !help()->frameGeometry().intersects(main->frameGeometry()) &&
                        help()->screen()->geometry().contains(help()->frameGeometry());
        firstPage = help()->view().toPlainText().toStdString();
        QTest::keyClick(help(), Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    std::vector<QMainWindow*> allWindows()
    {
        std::vector<QMainWindow*> windows = {main.get()};
        for (const CatalogueEntry& entry : calculatorWindows()) {
            main->openWindow(entry.name);
            windows.push_back(qobject_cast<QMainWindow*>(shown(entry.name)));
        }
        main->findChild<QAction*>("mnuJournal")->trigger();
        windows.back()->findChild<QAction*>("mnuPaper(0)")->trigger();
        for (const char* name : {"frmJournal", "frmPaper"}) {
            windows.push_back(qobject_cast<QMainWindow*>(shown(name)));
            EXPECT_EQ(HelpDesk::topicOf(*windows.back()).pages.front(), "paper") << name;
        }
        return windows;
    }

    bool hasPlace(const HelpTopic& topic)
    {
        for (const QString& page : topic.pages) {
            std::unique_ptr<QTextDocument>& document = pages[page];
            if (!document) {
                document = std::make_unique<QTextDocument>();
                document->setMarkdown(main->help().manual().text(page));
            }
            if (const auto found = placeOf(*document, topic.name)) {
                EXPECT_FALSE(found->text.contains(" – the same"))
                    << "as a row that is out of sight";
                return true;
            }
        }
        return false;
    }

    std::string firstPage;
    bool coversNothing = false;
    QTemporaryDir folder;
    FakeQuestions questions;
    FakeClock clock;
    FakeBell bell;
    ProgramFolder files{folder.path()};
    std::unique_ptr<frmKORVEL2000> main;
    std::map<QString, std::unique_ptr<QTextDocument>> pages;
};

std::vector<const QAction*> entriesOf(const QList<QAction*>& actions)
{
    std::vector<const QAction*> entries;
    for (const QAction* each : actions) {
        if (each->isSeparator()) continue;
        if (!each->menu())
            entries.push_back(each);
        else
            for (const QAction* inner : entriesOf(each->menu()->actions()))
                entries.push_back(inner);
    }
    return entries;
}

/// What an officer can act on or read: the echo beside a box is told with the box.
bool isControl(const QWidget& widget)
{
    const QString name = widget.objectName();
    if (name.startsWith("echo ") || name.startsWith("qt_") || name == "lblNotice") return false;
    if (qobject_cast<const QLabel*>(&widget)) return qobject_cast<const ResultLabel*>(&widget);
    return widget.focusPolicy() != Qt::NoFocus;
}

/// A box without a row, an entry that came without a word, a caption changed in one place only.
TEST_F(HelpTest, everythingInAWindowHasItsPlaceInTheManual)
{
    for (const QMainWindow* window : allWindows()) {
        const std::string where = window->objectName().toStdString() + ": ";
        for (const QWidget* each : window->findChildren<QWidget*>())
            if (isControl(*each) && !qobject_cast<const QMenu*>(each)) {
                const HelpTopic topic = HelpDesk::topicOf(*each);
                EXPECT_TRUE(hasPlace(topic)) << where << topic.name.toStdString() << " ("
                                             << each->objectName().toStdString() << ')';
            }
        for (const QAction* entry : entriesOf(window->menuBar()->actions())) {
            const HelpTopic topic = HelpDesk::topicOf(*entry, *window);
            EXPECT_TRUE(hasPlace(topic)) << where << topic.name.toStdString();
        }
    }
}

/// What a page says of a box: names / of / several – what they take – a range, or each its own.
/// @return as the box says it; nothing where the page has words alone
QString rangeIn(const QString& row, const QString& name)
{
    const QStringList cells = row.split(" – ");
    const QStringList names = cells.front().split(" / ");
    const QStringList ranges = QString(cells.value(2)).replace("−", "-").split(", ");
    const QString range =
        ranges.value(ranges.size() < names.size() ? 0 : names.indexOf(name), ranges.front());
    static const QRegularExpression eachWay("^([0-9.]+) each way"), upTo("^to ([0-9.]+)"),
        between("^(from [0-9.]+|-?[0-9.]+ to -?[0-9.]+)");
    for (const auto& [form, words] :
         {std::pair(&eachWay, "-%1 to %1"), {&upTo, "0 to %1"}, {&between, "%1"}})
        if (const auto found = form->match(range); found.hasMatch())
            return QString(words).arg(found.captured(1));
    return {};
}

/// A range that was changed in one place only.
TEST_F(HelpTest, boxesTakeWhatTheManualSays)
{
    int seen = 0;
    for (const QMainWindow* window : allWindows())
        for (const EntryBox* box : window->findChildren<EntryBox*>()) {
            if (box->limits().isEmpty()) continue;
            const HelpTopic topic = HelpDesk::topicOf(*box);
            QTextDocument page;
            page.setMarkdown(main->help().manual().text(topic.pages.front()));
            const auto found = placeOf(page, topic.name);
            ASSERT_TRUE(found) << topic.name.toStdString();
            const QString range = rangeIn(found->text, topic.name);
            if (range.isEmpty()) continue;
            EXPECT_EQ(box->limits().toStdString(), range.toStdString())
                << window->objectName().toStdString() << ": " << found->text.toStdString();
            ++seen;
        }
    EXPECT_GE(seen, 150);
}

/// Every notice that a scene sees whole.
TEST_F(HelpTest, everyNoticeHasItsPlaceAmongTheMessages)
{
    const std::regex whole("^ *notice \"((?:[^\"\\\\]|\\\\.)+)\"");
    int seen = 0;
    for (const auto& file : std::filesystem::directory_iterator(sourceFile("tests/scenes"))) {
        std::ifstream lines(file.path());
        for (std::string line; std::getline(lines, line);) {
            std::smatch notice;
            if (!std::regex_search(line, notice, whole)) continue;
            const QString said = QString::fromStdString(notice[1]).replace("\\\"", "\"");
            EXPECT_TRUE(hasPlace({{"messages"}, said.section("; ", 0, 0)})) << line;
            ++seen;
        }
    }
    EXPECT_GE(seen, 10);
}

const QObject* windowOf(const QObject* object)
{
    while (object && !qobject_cast<const QMainWindow*>(object))
        object = object->parent();
    return object;
}

/// Two entries of one name, a row that is left out. View alone has gaps in its numbers.
TEST_F(HelpTest, namesOfAWindowAreCountedThrough)
{
    static const QRegularExpression numbered("^(\\w+)\\((\\d+)\\)$");
    for (const QMainWindow* window : allWindows()) {
        std::map<QString, std::multiset<int>> numbers;
        for (const QObject* each : window->findChildren<QObject*>())
            if (const auto name = numbered.match(each->objectName());
                name.hasMatch() && windowOf(each) == window && name.captured(1) != "mnuView")
                numbers[name.captured(1)].insert(name.captured(2).toInt());
        for (const auto& [name, all] : numbers) {
            int next = *all.begin();
            for (const int number : all)
                EXPECT_EQ(number, next++)
                    << window->objectName().toStdString() << ": " << name.toStdString();
        }
    }
}

/// A control that a screen reader passes by, a result or a box whose figure it does not hear.
TEST_F(HelpTest, assistiveToolsHearNameAndValueOfEverything)
{
    for (const QMainWindow* window : allWindows())
        for (QWidget* each : window->findChildren<QWidget*>()) {
            if (!isControl(*each)) continue;
            const std::string who =
                window->objectName().toStdString() + ' ' + each->objectName().toStdString();
            QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(each);
            ASSERT_NE(heard, nullptr) << who;
            EXPECT_FALSE(heard->text(QAccessible::Name).isEmpty()) << who;
            if (auto* box = qobject_cast<QLineEdit*>(each)) {
                EXPECT_EQ(heard->text(QAccessible::Value), box->text()) << who;
            } else if (auto* label = qobject_cast<ResultLabel*>(each)) {
                label->setText("12.3");
                EXPECT_EQ(heard->text(QAccessible::Value), "12.3") << who;
                EXPECT_THAT(heard->text(QAccessible::Name).toStdString(),
                            ::testing::EndsWith(": 12.3"))
                    << who;
            }
        }
}

/// Selected line of the page: what F1 went to.
std::string lineInHand()
{
    return help() ? help()->view().textCursor().block().text().toStdString() : "no help";
}

TEST_F(HelpTest, comesOnceAtTheFirstStartAndGoesWithOneKey)
{
    EXPECT_THAT(firstPage, ::testing::HasSubstr(folder.path().toStdString()));
    EXPECT_TRUE(coversNothing) << "the clocks, or the edge of the screen";
    EXPECT_EQ(help(), nullptr);
    main.reset(); // killed: what it kept is the recovery file
    questions.willType(FakeQuestions::acceptDefault);
    main = std::make_unique<frmKORVEL2000>(Machine{questions, clock, files, bell},
                                           calculatorWindows());
    main->start();
    QTest::qWait(300);
    EXPECT_EQ(help(), nullptr);
}

/// A page that is there, and the name on the next one of those that may have it.
TEST_F(HelpTest, opensThePageThatHasTheName)
{
    for (const char* first : {"frmWind", "no page"}) {
        main->help().open({{first, "messages"}, "Input time difference…"});
        EXPECT_EQ(help()->view().page(), "messages") << first;
        EXPECT_EQ(lineInHand(), "Input time difference…") << first;
    }
    main->help().open({{"frmWind", "messages"}, "no such name"});
    EXPECT_EQ(help()->view().page(), "frmWind");
    EXPECT_EQ(help()->view().verticalScrollBar()->value(), 0);
    // The contents go along: the page with its sections below it.
    const auto& contents = dynamic_cast<const QListWidget&>(control(*help(), "lstHelp"));
    for (const char* page : {"frmTIDE", "frmCDDR"}) {
        main->help().openPage(page);
        EXPECT_EQ(contents.currentItem()->text(), main->help().manual().title(page));
        EXPECT_TRUE(contents.item(contents.currentRow() + 1)->text().startsWith("    "));
        EXPECT_GT(contents.count(), Manual::pages().size());
    }
}

TEST_F(HelpTest, saysWhatTheProgramIsMadeOf)
{
    const std::string about = main->help().manual().text("about").toStdString();
    for (const char* part :
         {"Version | 1.", "Qt 6.", "GCC ", "libstdc++", "icuuc ", "Qt6Widgets ", "| Fonts | ",
          "TICON-4 (2025)", "CC BY 4.0", "Not a substitute for approved means of navigation"})
        EXPECT_THAT(about, ::testing::HasSubstr(part));
    EXPECT_THAT(about, ::testing::Not(::testing::HasSubstr("{")));
}

TEST_F(HelpTest, aPageIsSeenAgainWhereItWasLeft)
{
    main->help().openPage("frmTIDE");
    QScrollBar& bar = *help()->view().verticalScrollBar();
    bar.setValue(bar.maximum() / 2);
    const int before = bar.value();
    main->help().openPage("frmWind");
    QTest::keyClick(&help()->view(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(help()->view().page(), "frmTIDE");
    EXPECT_GT(before, 0);
    EXPECT_EQ(bar.value(), before);
    // The same by the buttons, which are grey where there is nothing.
    const auto press = [](const char* button) {
        EXPECT_TRUE(control(*help(), button).isEnabled()) << button;
        click(*help(), button);
        return help()->view().page();
    };
    EXPECT_EQ(press("cmdForward"), "frmWind");
    EXPECT_FALSE(control(*help(), "cmdForward").isEnabled());
    EXPECT_EQ(press("cmdBack"), "frmTIDE");
    EXPECT_EQ(bar.value(), before);
    EXPECT_EQ(help()->windowTitle(), "Tides and tidal streams – KORVEL2000 manual");
}

TEST_F(HelpTest, opensAtTheBoxTheEntryAndTheQuestionInHand)
{
    main->openWindow("frmWind");
    QWidget& wind = *shown("frmWind");
    wind.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&wind));
    control(wind, "txtWind(2)").setFocus();
    QTest::keyClick(&control(wind, "txtWind(2)"), Qt::Key_F1);
    EXPECT_EQ(lineInHand(), "Apparent wind from the bow");
    EXPECT_EQ(help()->view().page(), "frmWind");

    QMenu& menu = *main->findChild<QMenu*>("mnuPROPERTY");
    menu.popup({});
    menu.setActiveAction(main->findChild<QAction*>("mnuDIST"));
    QTest::keyClick(&menu, Qt::Key_F1);
    EXPECT_EQ(lineInHand(), "Property: 1nm=1' of latitude");
    EXPECT_FALSE(menu.isVisible());

    QInputDialog question(&wind);
    question.setLabelText("Input time difference.");
    question.setModal(true);
    question.show();
    QTest::keyClick(&question, Qt::Key_F1);
    auto* inFront = question.findChild<HelpWindow*>();
    ASSERT_NE(inFront, nullptr) << "the question keeps the keyboard from it";
    EXPECT_EQ(inFront->view().textCursor().block().text(), "Input time difference…");
}

TEST_F(HelpTest, theFootAndTheTipHelpWithoutAKey)
{
    main->openWindow("frmCDDR");
    QWidget& window = *shown("frmCDDR");
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const char* const typed[] = {"35.08", "139.46", "88.1", "600"};
    for (int i = 0; i < 4; ++i)
        type(window, memberName("txtCDDR", 4 + i).toStdString(), typed[i]);
    const auto& notices = dynamic_cast<NoticeLine&>(control(window, "lblNotice"));
    EXPECT_EQ(notices.hint().toStdString(), "Dead reckoning distance, nautical miles; 0 to 10800");
    QWidget& reached = control(window, "lblCDDR(2)");
    QHelpEvent hover(QEvent::ToolTip, {}, reached.mapToGlobal(QPoint()));
    QApplication::sendEvent(&reached, &hover);
    EXPECT_EQ(QToolTip::text(), "35°27.9' N");
}

TEST_F(HelpTest, findsInAllPagesAndGoesBack)
{
    main->help().openPage("frmWind");
    const auto search = [](const char* words) {
        help()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(help()));
        QTest::keyClick(help(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), words);
    };
    search("meridional parts");
    auto& found = dynamic_cast<QListWidget&>(control(*help(), "lstHelp"));
    ASSERT_GE(found.count(), 3);
    QTest::keyClick(&found, Qt::Key_Return);
    EXPECT_EQ(help()->view().page(), "frmCDDR");
    EXPECT_THAT(lineInHand(), ::testing::HasSubstr("Meridional parts"));
    QTest::keyClick(&help()->view(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(help()->view().page(), "frmWind");
    search("Beaufort");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(help()->view().textCursor().selectedText(), "Beaufort");
    EXPECT_EQ(help()->view().extraSelections().size(),
              help()->view().toPlainText().count("Beaufort", Qt::CaseInsensitive));
    EXPECT_EQ(help()->view().extraSelections().front().cursor.selectedText(), "Beaufort");
    for (const char* next : {"lstHelp", "txtManual"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), next);
    }
    main->help().openPage("frmSunSight");
    help()->view().mark("e");
    EXPECT_EQ(help()->view().extraSelections().size(), 400) << "no page is marked for ever";
    main->help().openPage("frmWind");
    search("meridional parts");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(help()->view().page(), "frmCDDR") << "what is not in the page is opened";
    search("Beaufort xyzzy");
    EXPECT_EQ(found.item(0)->text(), "Nothing found");
}

TEST_F(HelpTest, aSearchGoesOnAtTheOtherEnd)
{
    main->help().openPage("frmWind");
    HelpView& view = help()->view();
    for (const bool backwards : {false, true}) {
        view.moveCursor(backwards ? QTextCursor::Start : QTextCursor::End);
        EXPECT_TRUE(view.findNext("wind", backwards));
        EXPECT_EQ(view.textCursor().selectedText().toLower(), "wind");
    }
    const int last = view.textCursor().position();
    EXPECT_TRUE(view.findNext("wind", true) && view.textCursor().position() < last);
    const int at = view.textCursor().position();
    EXPECT_TRUE(!view.findNext("xyzzy", false) && view.textCursor().position() == at);
}

TEST_F(HelpTest, aWindowMovesUpForThePageBelowIt)
{
    QWidget window;
    window.show();
    const QRect screen = window.screen()->availableGeometry();
    const struct {
        const char* fault;
        QPoint at;
        int height;
        bool moves, isBelow;
    } rows[] = {
        {"moved without need", {40, 20}, 150, false, true},
        {"no room for the page", {40, screen.bottom() - 150}, 150, true, true},
        {"the page beyond the edge", {screen.right() - 200, 20}, 150, false, true},
        {"less than half of the screen left", {40, screen.height() * 3 / 5 - 150}, 150, true, true},
        {"nowhere to move to", {40, 0}, screen.height(), false, false},
    };
    for (const auto& [fault, at, height, moves, isBelow] : rows) {
        window.resize(200, height);
        window.move(screen.topLeft() + at);
        main->help().openBelow(window, "frmWind");
        const QRect page = help()->frameGeometry();
        EXPECT_EQ(window.pos() - screen.topLeft(), moves ? QPoint(at.x(), 0) : at) << fault;
        EXPECT_TRUE(screen.contains(page)) << fault;
        EXPECT_EQ(page.top() == window.frameGeometry().bottom() + 1, isBelow) << fault;
        if (!isBelow) continue;
        EXPECT_EQ(page.left(), std::min(window.x(), screen.right() + 1 - page.width())) << fault;
    }
}

/// A hit that takes several lines, or whose word lies beyond the edge of the list; a head that is
/// taken for a hit.
TEST_F(HelpTest, aSearchListsOneLineAHitWithTheWordInSight)
{
    main->help().openPage("frmWind");
    dynamic_cast<QLineEdit&>(control(*help(), "txtFindHelp")).setText("harmonic");
    auto& found = dynamic_cast<QListWidget&>(control(*help(), "lstHelp"));
    ASSERT_GE(found.count(), 4);
    EXPECT_EQ(found.item(0)->flags(), Qt::NoItemFlags);
    EXPECT_EQ(found.currentRow(), 1);
    EXPECT_EQ(dynamic_cast<QLineEdit&>(control(*help(), "txtFindHelp")).maxLength(), 100);
    for (int row = 1; row < found.count(); ++row) {
        if (found.item(row)->flags() == Qt::NoItemFlags) continue;
        const QString line = found.item(row)->text();
        const auto at = line.indexOf("harmonic", 0, Qt::CaseInsensitive);
        EXPECT_TRUE(at >= 0 && at <= 14) << line.toStdString();
        EXPECT_LT(found.visualItemRect(found.item(row)).height(),
                  2 * found.fontMetrics().lineSpacing());
    }
}

/// A link that leads to no page, or to a name that the page does not have.
TEST_F(HelpTest, everyLinkLeadsSomewhere)
{
    const std::regex link("\\]\\(([^)]+)\\)");
    for (const QString& page : Manual::pages()) {
        ASSERT_TRUE(main->help().manual().has(page)) << page.toStdString();
        const std::string text = main->help().manual().text(page).toStdString();
        for (std::sregex_iterator at(text.begin(), text.end(), link), end; at != end; ++at) {
            const QUrl url(QString::fromStdString((*at)[1]));
            const QString target = url.path().chopped(3);
            EXPECT_TRUE(main->help().manual().has(target)) << (*at)[1];
            EXPECT_TRUE(url.fragment().isEmpty() ||
                        hasPlace({{target}, url.fragment(QUrl::FullyDecoded)}))
                << (*at)[1];
        }
    }
}

} // namespace
} // namespace korvel
