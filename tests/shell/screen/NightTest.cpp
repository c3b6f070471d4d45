// SPDX-License-Identifier: MIT
#include "shell/machine/MessageQuestions.h"
#include "shell/main/frmKORVELstart.h"
#include "tests/shell/Pixels.h"
#include "tests/shell/WholeProgram.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSizeGrip>
#include <QStyleOptionButton>
#include <QTextEdit>
#include <QTimer>
#include <QToolTip>

#include <set>

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
                               {"dim", true, 1, 0.17, 0.02},
                               {"dimmest", true, 2, 0.10, 0.005}};
constexpr double ofText = 4.5, ofControls = 3;

class NightTest : public WholeProgram
{
protected:
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
};

/// Boxes, lists and buttons: what has an outline.
bool isOutlined(const QWidget& widget)
{
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) return box->hasFrame();
    return qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QPushButton*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget);
}

/// The part of a control that is seen, in the coordinates of its window.
QRect seenPart(const QWidget& widget)
{
    const QRect part = widget.visibleRegion().boundingRect();
    return {widget.mapTo(widget.window(), part.topLeft()), part.size()};
}

/// Where a control has text; the thin strokes of a letter or two never come to their full colour.
QRect textPart(const QWidget& widget)
{
    const auto inset = [&](const QWidget& shows) { return seenPart(shows).adjusted(2, 2, -2, -2); };
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text().trimmed().size() > 2 ? inset(widget) : QRect();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text().isEmpty() ? QRect() : inset(widget);
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget))
        return (box->text() + box->placeholderText()).trimmed().isEmpty() ? QRect() : inset(widget);
    if (const auto* list = qobject_cast<const QAbstractItemView*>(&widget))
        return list->model() && list->model()->rowCount(list->rootIndex()) > 0
                   ? inset(*list->viewport())
                   : QRect();
    if (const auto* page = qobject_cast<const QTextEdit*>(&widget)) return inset(*page->viewport());
    if (const auto* page = qobject_cast<const QPlainTextEdit*>(&widget))
        return page->blockCount() > 1 ? inset(*page->viewport()) : QRect();
    return {};
}

/// Where a control has a mark: a tick box, a round one, a handle, the icon of a message.
QRect markPart(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (qobject_cast<const QScrollBar*>(&widget) || (label && !label->pixmap().isNull()))
        return seenPart(widget);
    const bool isRound = qobject_cast<const QRadioButton*>(&widget);
    if (!isRound && !qobject_cast<const QCheckBox*>(&widget)) return {};
    QStyleOptionButton option;
    option.initFrom(&widget);
    return widget.style()
        ->subElementRect(isRound ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator,
                         &option, &widget)
        .translated(widget.mapTo(widget.window(), QPoint()));
}

bool standsOff(const QWidget& widget, const QImage& image, const Look& look)
{
    // Against the ground on one side at least: on the others a neighbour may stand close.
    const QRect part = seenPart(widget);
    const QPoint left(part.left(), part.center().y());
    const QPoint foot(part.center().x(), part.bottom());
    const auto standsOffAt = [&](QPoint edge, QPoint outside) {
        return !image.rect().contains(outside) ||
               contrast(image.pixel(edge), image.pixel(outside), look.strayLight) >= ofControls;
    };
    return standsOffAt(left, left - QPoint(1, 0)) || standsOffAt(foot, foot + QPoint(0, 1));
}

void expectNoDazzle(const QImage& image, const Look& look, const std::string& what)
{
    double brightest = 0;
    for (const auto& [colour, count] : coloursOf(image, image.rect()))
        brightest = std::max(brightest, luminance(colour));
    EXPECT_LE(brightest, look.peak) << look.name << ": " << what;
}

void expectReadable(QWidget& window, const Look& look)
{
    const QImage image = window.grab().toImage();
    expectNoDazzle(image, look, nameOf(window));
    QList<QWidget*> all = window.findChildren<QWidget*>();
    all.prepend(&window);
    for (QWidget* each : all) {
        const QRect part = seenPart(*each);
        if (each->window() != &window || part.size() != each->size() || part.isEmpty()) continue;
        const auto expectContrast = [&](const QRect& of, double needed, const char* what) {
            if (of.isEmpty()) return;
            EXPECT_GE(strongestContrast(image, of, look.strayLight), needed)
                << look.name << ": " << what << " of " << nameOf(*each);
        };
        expectContrast(textPart(*each), each->isEnabled() ? ofText : ofControls, "text");
        expectContrast(markPart(*each), ofControls, "mark");
        if (isOutlined(*each)) {
            EXPECT_TRUE(standsOff(*each, image, look))
                << look.name << ": outline of " << nameOf(*each);
        }
    }
}

/// A menu with an entry chosen.
void expectReadable(QMenu& menu, const Look& look)
{
    menu.ensurePolished();
    emit menu.aboutToShow(); // some know only then which entries are grey
    menu.resize(menu.sizeHint());
    QImage image;
    for (QAction* entry : menu.actions()) {
        if (entry->isSeparator() || !entry->isVisible()) continue;
        if (image.isNull()) {
            menu.setActiveAction(entry);
            image = menu.grab().toImage();
            expectNoDazzle(image, look, entry->text().toStdString());
        }
        const double needed = entry->isEnabled() ? ofText : ofControls;
        EXPECT_GE(strongestContrast(image, menu.actionGeometry(entry), look.strayLight), needed)
            << look.name << ": " << entry->text().toStdString();
    }
    menu.setActiveAction(nullptr);
}

TEST_F(NightTest, everyWindowCanBeReadAndDazzlesNobody)
{
    const auto windows = openAll();
    for (const Look& look : looksOfAll) {
        show(look, *windows.back());
        for (QWidget* each : windows)
            expectReadable(*each, look);
        for (QWidget* each : windows)
            for (QMenu* menu : each->findChildren<QMenu*>())
                if (!menu->actions().isEmpty()) expectReadable(*menu, look);
        for (const char* page : {"about", "first-start"}) {
            main.help().openPage(page);
            expectReadable(onScreen("frmHelp"), look);
        }
    }
    // What stands in boxes that are empty.
    fillBoxes(windows, "");
    for (const Look& look : looksOfAll) {
        show(look, *windows.back());
        for (QWidget* each : windows)
            expectReadable(*each, look);
    }
}

/// Light that a window gives, as a part of that of a white one.
double lightOf(QWidget& window)
{
    const QImage image = window.grab().toImage();
    double all = 0;
    for (const auto& [colour, count] : coloursOf(image, image.rect()))
        all += luminance(colour) * static_cast<double>(count);
    return all / (static_cast<double>(image.width()) * image.height());
}

TEST_F(NightTest, eachStepIsDarkerForTheEyeToo)
{
    const auto windows = openAll();
    std::map<const QWidget*, double> before;
    for (const Look& look : looksOfAll) {
        if (!look.night) continue;
        show(look, *windows.back());
        for (QWidget* each : windows) {
            const double light = lightOf(*each);
            if (before.count(each)) {
                EXPECT_LE(light, 0.6 * before[each]) << look.name << ": " << nameOf(*each);
            }
            before[each] = light;
        }
    }
}

TEST_F(NightTest, everyDialogToo)
{
    MessageQuestions real;
    QPrinter printer;
    for (const Look& look : looksOfAll) {
        show(look, main);
        const Look& other = look.night ? looksOfAll[0] : looksOfAll[1];
        // Seen, and there and back from within, for the colours change under an open question too.
        const auto inTheBox = [&](auto open) {
            QTimer attendant;
            QObject::connect(&attendant, &QTimer::timeout, &attendant, [&] {
                auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                if (!box || !box->isVisible()) return; // it comes when the machine has the time
                attendant.stop();
                expectReadable(*box, look);
                for (const Look* next : {&other, &look}) {
                    QTest::keyClick(box, Qt::Key_F8);
                    QApplication::processEvents();
                    expectReadable(*box, *next);
                }
                box->reject();
            });
            attendant.start(50); // a list of files comes after the dialog
            open();
        };
        inTheBox([&] {
            real.ask({"Do you set this alarm enabled？", programTitle, Buttons::YesNo});
        });
        inTheBox([&] { real.ask({"Incorrect value.", programTitle, Buttons::Ok}); });
        inTheBox([&] { real.input("Input ALARM Time( hh:mm )", programTitle, "06:30"); });
        inTheBox([&] { choose(window("frmWind"), "mnuPaper(1)"); });
        inTheBox([&] { QFileDialog(nullptr, "Where", folder.path()).exec(); });
        inTheBox([&] { QPrintDialog(&printer).exec(); });
    }
}

TEST_F(NightTest, whateverElseComesUp)
{
    QToolTip::setPalette(QPalette(Qt::black, Qt::white)); // as a desktop gives it
    QWidget& weather = window("frmWeather");
    QWidget& oil = window("frmCRUDE");
    for (const Look& look : looksOfAll) {
        show(look, main);
        frmKORVELstart title;
        title.show();
        AlarmBoxes alarms(bell);
        alarms.show({{"06:30 call the master", true}});
        auto& list = *oil.findChild<QComboBox*>();
        list.showPopup();
        QApplication::processEvents();
        QToolTip::showText(QPoint(50, 50), "35°27.9' N", &weather);
        std::set<std::string> seen;
        for (QWidget* each : QApplication::topLevelWidgets()) {
            if (!each->isVisible() || each == &main || each == &weather || each == &oil) continue;
            expectReadable(*each, look);
            seen.insert(each->metaObject()->className());
        }
        EXPECT_THAT(seen, ::testing::ElementsAre("QComboBoxPrivateContainer", "QMessageBox",
                                                 "QTipLabel", "QWidget"))
            << look.name;
        const QImage picture = title.grab().toImage();
        EXPECT_GE(strongestContrast(picture, picture.rect(), look.strayLight), ofText);
        list.hidePopup();
        QToolTip::hideText();
        const std::unique_ptr<QMenu> menu(
            weather.findChild<EntryBox*>()->createStandardContextMenu());
        expectReadable(*menu, look);
    }
}

TEST_F(NightTest, focusAndSelectionAreSeen)
{
    const auto windows = openAll();
    for (const Look& look : looksOfAll) {
        show(look, main);
        for (QWidget* window : windows) {
            QApplication::setActiveWindow(window);
            for (QWidget* stop : window->findChildren<QWidget*>()) {
                if (!(stop->focusPolicy() & Qt::TabFocus) || !stop->isEnabled() ||
                    stop->window() != window || seenPart(*stop).size() != stop->size())
                    continue;
                if (QWidget* now = QApplication::focusWidget()) now->clearFocus();
                const QImage without = stop->grab().toImage();
                stop->setFocus(Qt::TabFocusReason);
                const QImage with = stop->grab().toImage();
                int clear = 0;
                for (int y = 0; y < with.height(); ++y)
                    for (int x = 0; x < with.width(); ++x) {
                        const QRgb one = with.pixel(x, y), other = without.pixel(x, y);
                        if (one == other) continue;
                        clear += contrast(one, other, look.strayLight) >= ofControls;
                    }
                EXPECT_GE(clear, stop->width() / 2) << look.name << ": " << nameOf(*stop);
                auto* box = qobject_cast<EntryBox*>(stop);
                if (!box || !box->hasSelectedText()) continue;
                EXPECT_GE(
                    strongestContrast(with, with.rect().adjusted(4, 4, -4, -4), look.strayLight),
                    ofText)
                    << look.name << ": " << nameOf(*stop);
            }
        }
    }
}

TEST_F(NightTest, linesOfPicturesStandOffAndTheMainWindowHasItsColours)
{
    for (const Look& look : looksOfAll) {
        show(look, main);
        const ColourScheme& colours = main.program().colours();
        EXPECT_GE(contrast(colours.ink.rgb(), colours.paper.rgb(), look.strayLight), ofText);
        for (const QColor& line : {colours.grid, colours.equator, colours.route, colours.secondary,
                                   colours.tertiary, colours.marker, colours.curve, colours.datum})
            EXPECT_GE(contrast(line.rgb(), colours.paper.rgb(), look.strayLight), ofControls)
                << look.name << ": " << line.name().toStdString();
        for (const auto& [name, colour] : {std::pair("lblTime", colours.clock),
                                           {"lblMEMO", colours.memo},
                                           {"lbl1NM", colours.unit}}) {
            const QImage label = control(main, name).grab().toImage();
            EXPECT_EQ(coloursOf(label, label.rect()).count(colour.rgb()), 1u)
                << look.name << ": " << name;
        }
    }
}

TEST_F(NightTest, windowsDoWithoutTheDesktopsFrameWhereOneWantsThat)
{
    QWidget& wind = window("frmWind");
    const auto title = [](QWidget& of) {
        auto* frame = of.findChild<QWidget*>("ownFrame");
        return frame && frame->isVisible() ? frame->findChild<QLabel*>()->text() : QString("none");
    };
    const auto isFrameless = [](const QWidget& of) {
        return bool(of.windowHandle()->flags() & Qt::FramelessWindowHint);
    };
    const QRect menus = wind.findChild<QMenuBar*>()->geometry();
    QTest::keyClick(&wind, Qt::Key_F8);
    EXPECT_FALSE(isFrameless(wind)) << "where nobody wants it";
    QTest::keyClick(&wind, Qt::Key_F8);
    choose(main, "mnuOwnFrames");
    EXPECT_FALSE(isFrameless(wind)) << "by day";
    QTest::keyClick(&wind, Qt::Key_F8);
    wind.resize(wind.width() + 300, wind.height());
    QTest::qWait(20);
    EXPECT_TRUE(isFrameless(wind) && isFrameless(main));
    EXPECT_EQ(title(wind), wind.windowTitle());
    EXPECT_EQ(wind.findChild<QMenuBar*>()->height(), menus.height()) << "what is below moves";
    main.help().openPage("frmWind");
    QTest::qWait(20);
    EXPECT_EQ(title(onScreen("frmHelp")), onScreen("frmHelp").windowTitle());
    EXPECT_TRUE(isFrameless(onScreen("frmHelp")));
    for (const QWidget* each : {&wind, &onScreen("frmHelp")}) {
        const auto* grip = each->findChild<QSizeGrip*>();
        ASSERT_TRUE(grip) << nameOf(*each);
        EXPECT_EQ(grip->geometry().bottomRight(), each->rect().bottomRight());
    }
    std::set<bool> titled;
    for (int width = wind.width(); width > wind.minimumSizeHint().width(); width -= 3) {
        wind.resize(width, wind.height());
        QApplication::processEvents();
        titled.insert(!title(wind).isEmpty());
        EXPECT_TRUE(title(wind).isEmpty() || title(wind).size() > 3) << "says nothing";
    }
    EXPECT_EQ(titled.size(), 2u) << "it gives way to the menus";
    QWidget& opened = window("frmETA");
    EXPECT_TRUE(isFrameless(opened));
    QTest::mouseClick(opened.findChild<QWidget*>("cmdCloseWindow"), Qt::LeftButton);
    EXPECT_FALSE(opened.isVisible());
    // An older version knows nothing of it, and loses none of the places for it.
    const auto kept = ScreenChoices::of(main.program().screen().choices().record());
    EXPECT_TRUE(kept.ownFrames && kept == main.program().screen().choices());
    QTimer::singleShot(50, [&] {
        auto* question = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(question);
        EXPECT_EQ(title(*question), QString(programTitle));
        QTest::mouseClick(question->findChild<QWidget*>("cmdCloseWindow"), Qt::LeftButton);
    });
    EXPECT_EQ(MessageQuestions().ask({"Are you sure to exit?", programTitle, Buttons::OkCancel}),
              Answer::Cancel);
    QTest::keyClick(&wind, Qt::Key_F8);
    EXPECT_FALSE(isFrameless(wind) || isFrameless(main) || isFrameless(onScreen("frmHelp")));
    EXPECT_EQ(title(onScreen("frmHelp")), "none");
    EXPECT_EQ(title(wind), "none");
}

TEST_F(NightTest, theNextStartBeginsInTheColoursOfTheLast)
{
    ProgramFolder records(folder.path(), ProgramFolder::Remnants::Left);
    EXPECT_FALSE(looksOfLastRun(records).night);
    Screen& screen = main.program().screen();
    screen.toggleNight();
    screen.dim();
    EXPECT_EQ(screen.choices().dimStep, 1) << "a step at a time";
    EXPECT_EQ(looksOfLastRun(records).dimStep, screen.choices().dimStep);
    screen.zoom(1);
    const Looks last{true, screen.choices().dimStep, screen.choices().zoom};
    EXPECT_NE(last, (Looks{true, 0, 100}));
    EXPECT_EQ(looksOfLastRun(records), last) << "after a run that was killed";
    main.endSession();
    EXPECT_EQ(looksOfLastRun(records), last) << "after the end of the session";
}

/// A sheet that stays white by night until something else paints it.
TEST_F(NightTest, aSheetOfPaperFollowsAtOnce)
{
    Paints paints;
    choose(window("frmWind"), "mnuPaper(0)");
    QTest::qWait(20); // until all of it is written
    onScreen("frmPaper").findChild<QTextEdit*>()->viewport()->installEventFilter(&paints);
    show(looksOfAll[1], onScreen("frmPaper"));
    EXPECT_GT(paints.seen, 0);
}

} // namespace
} // namespace korvel
