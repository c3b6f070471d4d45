// SPDX-License-Identifier: MIT
#include "shell/controls/NoticeLine.h"
#include "shell/layout/PageBar.h"
#include "shell/screen/WindowPlaces.h"
#include "tests/shell/WholeProgram.h"

#include <QAbstractButton>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace korvel
{
namespace
{

using namespace korvel::testing;

/// Size and place of everything.
class ScreenTest : public WholeProgram
{
protected:
    void zoomTo(int percent)
    {
        Screen& screen = main.program().screen();
        while (screen.choices().zoom != percent)
            screen.zoom(screen.choices().zoom < percent ? 1 : -1);
        QTest::qWait(20);
    }
};

/// Where every control of a window stands, and how large it is.
using Layout = std::vector<std::pair<std::string, QRect>>;

Layout layoutOf(const QWidget& window)
{
    Layout all;
    for (const auto* each : window.findChildren<QWidget*>())
        if (each->isVisible() && each->window() == &window)
            all.emplace_back(nameOf(*each), QRect(each->mapTo(&window, QPoint()), each->size()));
    return all;
}

void expectSame(const Layout& before, const QWidget& window)
{
    const auto after = layoutOf(window);
    std::string names;
    for (const Layout& layout : {before, after}) {
        names += "\n";
        for (const auto& [name, place] : layout)
            names += name + textOf(place) + "; ";
    }
    ASSERT_EQ(before.size(), after.size()) << nameOf(window) << names;
    for (std::size_t i = 0; i < before.size(); ++i)
        EXPECT_TRUE(before[i] == after[i]) << before[i].first << ": " << textOf(before[i].second)
                                           << " became " << textOf(after[i].second);
}

/// Does something on each page of a window, or once where it has none.
void onEveryPage(QWidget& window, const std::function<void()>& look)
{
    auto* bar = window.findChild<PageBar*>();
    const std::size_t pages = bar ? bar->pages() : 1;
    for (std::size_t page = pages; page-- > 0;) { // and back to the first
        if (bar) bar->turnTo(page);
        QTest::qWait(20);
        look();
    }
}

/// A window that is as wide as the screen may be scrolled up and down only.
void expectOneDirection(const QWidget& window)
{
    EXPECT_LE(window.minimumSizeHint().width(), window.width()) << nameOf(window);
    for (const auto* area : window.findChildren<QScrollArea*>())
        EXPECT_TRUE(!area->isVisible() || area->horizontalScrollBar()->maximum() == 0)
            << nameOf(*area) << " needs " << area->widget()->minimumSizeHint().width() << " of "
            << area->viewport()->width();
}

/// No figure, caption or button may have less room than it needs.
void expectTextsFit(QWidget& window, int zoom)
{
    for (auto* each : window.findChildren<QWidget*>()) {
        const auto* caption = qobject_cast<QLabel*>(each);
        const auto* button = qobject_cast<QAbstractButton*>(each);
        if (!each->isVisible() || each->window() != &window || (!caption && !button)) continue;
        if (caption &&
            (caption->wordWrap() || caption->text().isEmpty() || qobject_cast<ResultLabel*>(each)))
            continue;
        // What a label asks for is never less than its least size.
        const QSize needed =
            caption ? caption->fontMetrics().size(Qt::TextShowMnemonic, caption->text())
                    : button->minimumSizeHint();
        EXPECT_EQ(needed.boundedTo(each->size() + QSize(1, 1)), needed)
            << zoom << " %: " << nameOf(*each) << " " << needed.width() << " x " << needed.height()
            << " in " << each->width() << " x " << each->height();
    }
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
    for (int zoom : ScreenChoices::zoomSteps()) {
        zoomTo(zoom);
        for (QWidget* each : windows) {
            onEveryPage(*each, [&] { expectTextsFit(*each, zoom); });
            if (zoom != 200) continue;
            each->resize(1024 - 8, 768 - 34); // with a frame
            QTest::qWait(20);
            EXPECT_LE(each->width(), 1024) << nameOf(*each);
            EXPECT_LE(each->height(), 768) << nameOf(*each);
            onEveryPage(*each, [&] { expectOneDirection(*each); });
        }
    }
    zoomTo(100); // the next test's program begins with the letters of this one
}

/// The captions that are nearest to a place, on its left in its line and above it.
QStringList captionsAt(const QWidget& window, const QWidget& result)
{
    const auto placeOf = [&](const QWidget& each) {
        return QRect(each.mapTo(&window, QPoint()), each.size());
    };
    const QRect at = placeOf(result);
    QString beside, above;
    int left = 0, top = 0;
    for (const auto* each : window.findChildren<QLabel*>()) {
        if (!each->isVisible() || each->window() != &window || each->text().isEmpty() ||
            dynamic_cast<const ResultLabel*>(each))
            continue;
        const QRect place = placeOf(*each);
        const bool isInLine = std::abs(place.center().y() - at.center().y()) < at.height() / 2;
        if (isInLine && place.left() < at.left() && place.left() >= left) {
            left = place.left();
            beside = each->text();
        }
        const bool isAbove = place.left() < at.right() && place.right() > at.left();
        if (isAbove && place.bottom() <= at.top() + 2 && place.bottom() >= top) {
            top = place.bottom();
            above = each->text();
        }
    }
    return {beside, above};
}

/// What an officer reads beside a figure is what a screen reader says of it.
TEST_F(ScreenTest, captionsStandBesideTheirResults)
{
    // Figures of a table stand below its heads; these say themselves what they are, or have letters
    // for a caption.
    const QRegularExpression alone(
        "row|curve of the book|^(Notice|Event|Coefficient|Where|What|How|Formula|Place|Date|Range|"
        "Rise or set|At this moment|The same by|Leaving|Weather|Visibility|Wave|Swell|Volume corr|"
        "Gross standard)",
        QRegularExpression::CaseInsensitiveOption);
    for (QWidget* each : openAll())
        onEveryPage(*each, [&] {
            for (auto* result : each->findChildren<ResultLabel*>()) {
                const QString name = result->accessibleName();
                if (!result->isVisible() || result->window() != each || each == &main ||
                    name.isEmpty() || name.contains(alone))
                    continue;
                const QStringList captions = captionsAt(*each, *result);
                const QRegularExpression word("\\w\\w+");
                bool named = false;
                for (auto at = word.globalMatch(captions.join(' ').remove('&')); at.hasNext();)
                    named = name.contains(at.next().captured(), Qt::CaseInsensitive) || named;
                EXPECT_TRUE(named) << nameOf(*result) << " is called " << name.toStdString()
                                   << " beside " << captions.join(" / ").toStdString();
                for (const char* head : {"in air", "in vacuo", "at 15 °C", "at 60 °F"})
                    EXPECT_TRUE(captions[1] != head || name.contains(head))
                        << nameOf(*result) << " is below " << head;
            }
        });
}

TEST_F(ScreenTest, everyWindowComesBackFromEveryZoomAsItWas)
{
    openAll();
    std::map<QWidget*, Layout> before = {{&main, layoutOf(main)}};
    for (QWidget* each : QApplication::topLevelWidgets()) {
        const auto* foot = dynamic_cast<NoticeLine*>(each->findChild<QWidget*>("lblNotice"));
        if (!foot || !each->isVisible()) continue;
        EXPECT_FALSE((foot->text() + foot->hint()).isEmpty()) << nameOf(*each);
        before[each] = layoutOf(*each);
    }
    EXPECT_EQ(before.size(), 28u);
    for (int zoom : {200, 80, 100})
        zoomTo(zoom);
    for (const auto& [window, layout] : before)
        expectSame(layout, *window);
    main.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    zoomTo(300);
    QTest::keyClick(&main, Qt::Key_0, Qt::ControlModifier);
    QTest::qWait(20);
    for (const auto& [window, layout] : before)
        expectSame(layout, *window);
}

TEST_F(ScreenTest, everyWindowStandsWhereItStoodAfterEveryZoom)
{
    const auto windows = openAll();
    const QRect screen = main.screen()->availableGeometry();
    std::map<QWidget*, QRect> before;
    for (QWidget* each : windows) { // in a corner, where a larger one has to give way
        const QPoint corner(each->frameGeometry().width(), each->frameGeometry().height());
        each->move(screen.bottomRight() - corner);
    }
    QTest::qWait(500); // the desktop has put its frames around them
    for (QWidget* each : windows)
        before[each] = each->geometry();
    for (int zoom : {125, 200, 80, 100})
        zoomTo(zoom);
    for (const auto& [window, place] : before)
        EXPECT_EQ(textOf(window->geometry()), textOf(place)) << nameOf(*window);
    // What was moved by hand in between stays there.
    QWidget& weather = onScreen("frmWeather");
    zoomTo(125);
    QTest::qWait(500); // nobody's hand is faster
    weather.move(20, 30);
    zoomTo(100);
    EXPECT_EQ(weather.pos(), QPoint(20, 30));
}

TEST_F(ScreenTest, theMainWindowIsSmallWithARemarkAndWithout)
{
    const QSize before = main.size();
    for (const double zone : {9.0, 0.0, 9.0}) { // the clock is to keep JST
        clock.zone = zone;
        main.tmrClock_Timer();
        QTest::qWait(20);
        EXPECT_EQ(main.size() == before, zone == 9);
        EXPECT_LE(main.width(), 480);
        EXPECT_LE(main.height(), 170);
        expectTextsFit(main, 100);
    }
}

TEST_F(ScreenTest, windowsStandWhereTheyWere)
{
    const QRect place(60, 70, 520, 420);
    QWidget& wind = window("frmWind");
    const auto isKept = [&](const std::string& kept = "frmWind 60 70 520 420") {
        return files.read(ScreenChoices::file).bytes.find(kept) != std::string::npos;
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return isKept("frmWind "); }, 3000)) << "where it opened";
    wind.setGeometry(place);
    EXPECT_TRUE(QTest::qWaitFor(isKept, 3000)) << "lost by a program that is killed";
    wind.showMaximized();
    QTest::qWait(20);
    EXPECT_NE(wind.geometry(), place);
    wind.close();
    EXPECT_TRUE(isKept()) << "where it stands when it is not enlarged";
    EXPECT_EQ(window("frmWind").geometry(), place);
    // A screen that is gone, and a window larger than the screen.
    window("frmETA").close();
    main.program().screen().keepPlace("frmETA", {5000, -4000, 3000, 2500, 100, false});
    const QRect screen = main.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window("frmETA").geometry()));
    onScreen("frmETA").close();
    choose(main, "mnuReopen");
    choose(main, "mnuClockOnTop");
    EXPECT_TRUE(main.isVisible());
    main.endSession();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    questions.willType(FakeQuestions::acceptDefault);
    frmKORVEL2000 next({questions, clock, files, bell}, calculatorWindows());
    next.start();
    EXPECT_EQ(onScreen("frmWind").geometry(), place);
    EXPECT_TRUE(isTicked(next, "mnuWATCH(4)"));
    EXPECT_TRUE(next.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_FALSE(isTicked(next, "mnuWATCH(3)"));
    next.endSession();
}

/// A window that is a pixel off, or moved though it is on the screen; one that does not fit.
TEST(WindowPlaces, whatIsOffTheScreenComesToItsEdge)
{
    QWidget window;
    window.show();
    const QRect inside = window.geometry(), frame = window.frameGeometry();
    const QRect room = window.screen()->availableGeometry().adjusted(
        inside.left() - frame.left(), inside.top() - frame.top(), inside.right() - frame.right(),
        inside.bottom() - frame.bottom());
    const QSize size(200, 100);
    const auto broughtTo = [&](const QPoint& from, const QSize& wanted) {
        window.setGeometry({from, wanted});
        bringOntoScreen(window);
        return textOf(window.geometry());
    };
    const QPoint corner = room.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
    for (const QPoint& at : {room.topLeft(), corner, QPoint(50, 60)})
        EXPECT_EQ(broughtTo(at, size), textOf({at, size})) << "as it stands";
    EXPECT_EQ(broughtTo(corner + QPoint(1, 0), size), textOf({corner, size}));
    EXPECT_EQ(broughtTo(corner + QPoint(0, 1), size), textOf({corner, size}));
    EXPECT_EQ(broughtTo(corner + QPoint(90, 40), size), textOf({corner, size}));
    EXPECT_EQ(broughtTo(room.topLeft() - QPoint(30, 20), size), textOf({room.topLeft(), size}));
    EXPECT_EQ(broughtTo(QPoint(50, 60), room.size() + QSize(10, 20)), textOf(room));
    EXPECT_EQ(roomOnScreen(window), room.size());
}

TEST_F(ScreenTest, windowsStayClosedAsLongAsNobodyTickedIt)
{
    window("frmWind");
    main.endSession();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    questions.willType(FakeQuestions::acceptDefault);
    frmKORVEL2000 next({questions, clock, files, bell}, calculatorWindows());
    next.start();
    EXPECT_EQ(shown("frmWind"), nullptr);
    next.endSession();
}

} // namespace
} // namespace korvel
