// SPDX-License-Identifier: MIT
#include "app/shell/CalculatorWindow.h"
#include "app/shell/MessageQuestions.h"
#include "app/shell/frmKORVELstart.h"
#include "calculator_windows.h"
#include "tests/shell/Pixels.h"
#include "tests/shell/ShellTesting.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

namespace korvel
{
namespace
{

using namespace korvel::testing;

/// One way the screen can look, and the limits of it.
struct Look {
    const char* name;
    bool night;
    int step;
    double peak;       ///< relative luminance of the brightest pixel
    double strayLight; ///< in the formula of contrast; a dark bridge has less of it
};
constexpr Look looksOfAll[] = {{"day", false, 0, 1, 0.05},
                               {"night", true, 0, 0.30, 0.05},
                               {"dim", true, 1, 0.26, 0.05},
                               {"dimmest", true, 2, 0.10, 0.005}};

std::string nameOf(const QWidget& widget)
{
    return widget.window()->objectName().toStdString() + " " + widget.metaObject()->className() +
           " " + widget.objectName().toStdString();
}

/// The whole program with every window open and something in every box.
class ScreenTest : public ::testing::Test
{
protected:
    ScreenTest()
    {
        questions.willType(FakeQuestions::acceptDefault);
        main.start();
    }
    ~ScreenTest() override { main.endSession(); }

    std::vector<QWidget*> openAll()
    {
        std::vector<QWidget*> windows = {&main};
        for (const CatalogueEntry& entry : calculatorWindows())
            windows.push_back(&window(entry.name));
        for (QWidget* each : windows)
            for (auto* box : each->findChildren<EntryBox*>())
                if (box->text().isEmpty()) box->setText("12.34");
        QApplication::processEvents();
        return windows;
    }
    QWidget& window(const QString& name)
    {
        main.openWindow(name);
        return shown(name);
    }
    static QWidget& shown(const QString& name)
    {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->objectName() == name && each->isVisible()) return *each;
        throw std::runtime_error("no window " + name.toStdString());
    }
    /// With the keys, from whatever window.
    void show(const Look& look, QWidget& from)
    {
        Screen& screen = main.program().screen();
        if (main.program().saved().nightColours() != look.night) QTest::keyClick(&from, Qt::Key_F8);
        for (int i = 0; look.night && i < 3 && screen.choices().dimStep != look.step; ++i)
            QTest::keyClick(&from, Qt::Key_F8, Qt::ShiftModifier);
        EXPECT_EQ(main.program().saved().nightColours(), look.night);
        QApplication::processEvents();
    }

    QTemporaryDir folder;
    FakeQuestions questions;
    FakeClock clock;
    FakeBell bell;
    ProgramFolder files{folder.path()};
    frmKORVEL2000 main{{questions, clock, files, bell}, calculatorWindows()};
};

/// Boxes, lists and buttons: what has an outline.
bool isOutlined(const QWidget& widget)
{
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) return box->hasFrame();
    return qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QPushButton*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget);
}

/// The thin strokes of a letter or two never come to their full colour.
bool hasText(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text().trimmed().size() > 2;
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return !button->text().isEmpty();
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget))
        return !(box->text() + box->placeholderText()).trimmed().isEmpty();
    return false;
}

/// The part of a control that is seen, in the coordinates of its window.
QRect seenPart(const QWidget& widget)
{
    const QRect part = widget.visibleRegion().boundingRect();
    return {widget.mapTo(widget.window(), part.topLeft()), part.size()};
}

void expectReadable(QWidget& window, const Look& look)
{
    const QImage image = window.grab().toImage();
    double brightest = 0;
    for (const auto& [colour, count] : coloursOf(image, image.rect()))
        brightest = std::max(brightest, luminance(colour));
    EXPECT_LE(brightest, look.peak) << look.name << ": " << nameOf(window);
    for (QWidget* each : window.findChildren<QWidget*>()) {
        const QRect part = seenPart(*each);
        if (each->window() != &window || part.size() != each->size() || part.isEmpty()) continue;
        const double needed = each->isEnabled() ? 4.5 : 3;
        if (hasText(*each)) {
            EXPECT_GE(strongestContrast(image, part.adjusted(2, 2, -2, -2), look.strayLight),
                      needed)
                << look.name << ": " << nameOf(*each);
        }
        if (isOutlined(*each)) {
            // Against the ground on one side at least: on the others a neighbour may stand close.
            const QPoint left(part.left(), part.center().y());
            const QPoint foot(part.center().x(), part.bottom());
            const auto standsOff = [&](QPoint edge, QPoint outside) {
                return !image.rect().contains(outside) ||
                       contrast(image.pixel(edge), image.pixel(outside), look.strayLight) >= 3;
            };
            EXPECT_TRUE(standsOff(left, left - QPoint(1, 0)) ||
                        standsOff(foot, foot + QPoint(0, 1)))
                << look.name << ": outline of " << nameOf(*each);
        }
    }
}

TEST_F(ScreenTest, everyWindowCanBeReadAndDazzlesNobody)
{
    const auto windows = openAll();
    for (const Look& look : looksOfAll) {
        show(look, *windows.back());
        for (QWidget* each : windows)
            expectReadable(*each, look);
        for (QMenu* menu : main.menuBar()->findChildren<QMenu*>()) {
            menu->ensurePolished();
            menu->adjustSize();
            const QImage image = menu->grab().toImage();
            EXPECT_GE(strongestContrast(image, image.rect(), look.strayLight), 4.5) << look.name;
        }
    }
}

TEST_F(ScreenTest, everyDialogToo)
{
    MessageQuestions real;
    QPrinter printer;
    for (const Look& look : looksOfAll) {
        show(look, main);
        const auto inTheBox = [&](auto run) {
            QTimer::singleShot(0, [&, run] {
                auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                ASSERT_NE(box, nullptr);
                expectReadable(*box, look);
                run(*box);
                box->reject();
            });
        };
        inTheBox([](QDialog&) {});
        real.ask({"Do you set this alarm enabled？", programTitle, Buttons::YesNo});
        // There and back from within a question, which goes with the colours.
        inTheBox([&](QDialog& box) {
            QTest::keyClick(&box, Qt::Key_F8);
            QApplication::processEvents();
            expectReadable(box, look.night ? looksOfAll[0] : looksOfAll[1]);
            QTest::keyClick(&box, Qt::Key_F8);
        });
        real.input("Input ALARM Time( hh:mm )", programTitle, "06:30");
        QFileDialog file(nullptr, "Where", folder.path());
        QPrintDialog print(&printer);
        frmKORVELstart title;
        for (QWidget* each : {static_cast<QWidget*>(&file), static_cast<QWidget*>(&print),
                              static_cast<QWidget*>(&title)}) {
            each->show();
            QApplication::processEvents();
            expectReadable(*each, look);
        }
        choose(window("frmWind"), "mnuPaper(0)");
        QApplication::processEvents();
        expectReadable(shown("frmPaper"), look);
        shown("frmPaper").close();
        AlarmBoxes alarms(bell);
        alarms.show({{"06:30 call the master", true}});
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->objectName() == "alarmBox") expectReadable(*each, look);
    }
}

/// Every shortcut of a window by its keys.
std::map<std::string, int> keysOf(const QWidget& window)
{
    std::map<std::string, int> keys;
    for (const QAction* action : window.findChildren<QAction*>())
        for (const QKeySequence& each : action->shortcuts())
            ++keys[each.toString().toStdString()];
    return keys;
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
        const QPoint p = each->mapTo(&window, QPoint());
        return p.y() + p.x();
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

TEST_F(ScreenTest, keysAreOneOfAKindAndTabGoesAsOneReads)
{
    for (QWidget* each : openAll()) {
        const auto keys = keysOf(*each);
        for (const auto& [key, count] : keys)
            EXPECT_EQ(count, 1) << nameOf(*each) << " " << key;
        for (const char* key :
             {"F8", "Shift+F8", "Ctrl+Q", "Ctrl++", "Ctrl+-", "Ctrl+0", "Ctrl+Tab"})
            EXPECT_EQ(keys.count(key), 1u) << nameOf(*each) << " " << key;
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

TEST_F(ScreenTest, theFocusIsSeenWhereverTabStops)
{
    for (const bool night : {false, true}) {
        show({"", night, 0, 0, 0}, main);
        for (const char* name : {"frmCDDR", "frmTIDE", "frmSunSight", "frmCRUDE"}) {
            QWidget& each = window(name);
            QApplication::setActiveWindow(&each);
            for (QWidget* stop : tabStops(each)) {
                if (seenPart(*stop).size() != stop->size()) continue;
                if (QWidget* now = QApplication::focusWidget()) now->clearFocus();
                const QImage without = stop->grab().toImage();
                stop->setFocus(Qt::TabFocusReason);
                EXPECT_NE(stop->grab().toImage(), without) << nameOf(*stop);
            }
        }
    }
}

TEST_F(ScreenTest, keysOfTheWindows)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    QTest::keyClick(&main, Qt::Key_2, Qt::ControlModifier);
    QWidget& gc = shown("frmGC2000");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&gc));
    QTest::keyClick(&gc, Qt::Key_1, Qt::ControlModifier);
    QPointer<QWidget> cddr(&shown("frmCDDR"));
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

/// No figure may have less room than it needs.
void expectTextsFit(QWidget& window, int zoom)
{
    for (auto* label : window.findChildren<ResultLabel*>()) {
        if (!label->isVisible() || label->text().trimmed().isEmpty() || label->wordWrap() ||
            label->text().contains('\n') ||
            label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored ||
            label->text().size() > 60)
            continue;
        EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width() + 2)
            << zoom << " %: " << nameOf(*label) << " " << label->text().toStdString();
    }
}

TEST_F(ScreenTest, everyWindowAtEveryZoom)
{
    const auto windows = openAll();
    const QSize before = main.size();
    for (int zoom : ScreenChoices::zoomSteps()) {
        while (main.program().screen().choices().zoom != zoom)
            main.program().screen().zoom(main.program().screen().choices().zoom < zoom ? 1 : -1);
        QTest::qWait(20);
        for (QWidget* each : windows) {
            expectTextsFit(*each, zoom);
            if (zoom != 200) continue;
            each->resize(1024 - 8, 768 - 34); // with a frame
            QApplication::processEvents();
            EXPECT_LE(each->width(), 1024) << nameOf(*each);
            EXPECT_LE(each->height(), 768) << nameOf(*each);
        }
    }
    main.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    QTest::keyClick(&main, Qt::Key_0, Qt::ControlModifier);
    QTest::qWait(20);
    EXPECT_EQ(main.size(), before);
    EXPECT_LE(before.width(), 480);
    EXPECT_LE(before.height(), 170);
}

TEST_F(ScreenTest, windowsStandWhereTheyWere)
{
    const QRect place(60, 70, 520, 420);
    QWidget& wind = window("frmWind");
    wind.setGeometry(place);
    wind.close();
    EXPECT_EQ(window("frmWind").geometry(), place);
    // A screen that is gone, and a window larger than the screen.
    window("frmETA").close();
    main.program().screen().keepPlace("frmETA", {5000, -4000, 3000, 2500, 100, false});
    const QRect screen = main.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window("frmETA").geometry()));
    shown("frmETA").close();
    choose(main, "mnuReopen");
    main.endSession();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    questions.willType(FakeQuestions::acceptDefault);
    frmKORVEL2000 next({questions, clock, files, bell}, calculatorWindows());
    next.start();
    EXPECT_EQ(shown("frmWind").geometry(), place);
    EXPECT_TRUE(isTicked(next, "mnuWATCH(4)"));
    EXPECT_FALSE(isTicked(next, "mnuWATCH(3)"));
    next.endSession();
}

} // namespace
} // namespace korvel
