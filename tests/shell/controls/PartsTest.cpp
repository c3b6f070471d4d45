// SPDX-License-Identifier: MIT
// What pages and windows are put together of.
#include "shell/controls/AnswerStrip.h"
#include "shell/controls/ChosenOption.h"
#include "shell/controls/FieldBoxes.h"
#include "shell/controls/NoticeLine.h"
#include "shell/controls/Options.h"
#include "shell/controls/PageParts.h"
#include "shell/layout/PageBar.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QHBoxLayout>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QTest>
#include <QWidget>

#include <cmath>
#include <memory>
#include <string>

namespace korvel
{
namespace
{

constexpr Field fieldsOfAll[] = {
    {"txtName(0)", "Name", "Name", "", FieldKind::Text, "kg"},
    {"txtName(1)", "&Speed", "Speed", "knots", FieldKind::Figure, "kn", 0, 100},
    {"txtName(2)", "Density", "Density", "", FieldKind::Figure, "kg/m3, in air", 0},
    {"txtName(3)", "Latitude", "Latitude", "", FieldKind::Latitude, "N", -90, 90},
    {"txtName(4)", "Longitude", "Longitude", "", FieldKind::Longitude, "E", -180, 180},
    {"txtName(5)", "Time", "Time", "", FieldKind::Moment, "UTC, yyyy/mm/dd hh:mm"},
    {"txtName(6)", "Watch", "Watch", "", FieldKind::Moment, "SMT"},
};

std::string asText(const PaperFigure& figure)
{
    return figure.name + "|" + figure.value + "|" + figure.unit + "|" + figure.shown;
}

/// A way of writing taken for a unit; a unit behind nothing; a date that nobody typed.
TEST(FieldBoxes, tellAPaperWhatWasUnderstood)
{
    QWidget window;
    const FieldBoxes boxes(fieldsOfAll, &window);
    const struct {
        std::size_t field;
        const char *typed, *figure;
    } rows[] = {
        {0, "Kobe", "Name|Kobe|kg|"},
        {0, "", "Name|nothing entered||"},
        {1, "12.50", "Speed|12.5|kn|12.50"},
        {1, "12.5", "Speed|12.5|kn|"},
        {1, "", "Speed|nothing entered||"},
        {2, "870", "Density|870|kg/m3 (in air)|"},
        {3, "35.305", "Latitude|35°30.5' N||35.305"},
        {3, "north", "Latitude|not understood||north"},
        {4, "-139.452", "Longitude|139°45.2' W||-139.452"},
        {5, "2005/3/14 9:45", "Time|2005-03-14 09:45||2005/3/14 9:45"},
        {5, "2005/3/14 9:45:30", "Time|2005-03-14 09:45:30||2005/3/14 9:45:30"},
        {5, "2005/3/14", "Time|2005-03-14||2005/3/14"},
        {6, "9:45", "Watch|09:45|SMT|9:45"},
        {6, "9:45:30", "Watch|09:45:30|SMT|9:45:30"},
        {6, "later", "Watch|not understood||later"},
    };
    for (const auto& [field, typed, figure] : rows) {
        boxes[field]->setText(typed);
        EXPECT_EQ(asText(boxes.paperFigure(field)), figure);
    }
    EXPECT_EQ(boxes[1]->limits(), "0 to 100");
    EXPECT_EQ(boxes[2]->limits(), "from 0");
    EXPECT_EQ(limitsInWords(-HUGE_VAL, 40), "to 40");
    EXPECT_EQ(limitsInWords(-HUGE_VAL, HUGE_VAL), "");
    EXPECT_EQ(limitsInWords(-12.5, 1234567.5), "-12.5 to 1234567.5");
}

TEST(FieldBoxes, whatIsClearedComesBackWhole)
{
    QWidget window;
    FieldBoxes boxes(fieldsOfAll, &window);
    const auto texts = [&] {
        std::string all;
        for (const EntryBox* box : boxes.all())
            all += box->text().toStdString() + " ";
        return all;
    };
    const auto undo = [&](std::size_t field) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier);
        QApplication::sendEvent(boxes[field], &key);
    };
    for (std::size_t i = 0; i < boxes.size(); ++i)
        boxes[i]->setText(QString::number(i));
    boxes.clear(1, 3);
    EXPECT_EQ(texts(), "0    4 5 6 ");
    boxes.clear(1, 3); // there is nothing left that could be lost
    undo(3);
    EXPECT_EQ(texts(), "0 1 2 3 4 5 6 ");
    boxes.clear(1, 3);
    boxes[2]->setText("9");
    undo(1);
    EXPECT_EQ(texts(), "0 1 9  4 5 6 ") << "of the box alone, when there was typed since";
}

/// A record of a later version, or one that somebody wrote.
TEST(PageParts, aChoiceThatIsNoneChangesNothing)
{
    QWidget window;
    QComboBox* list = makeList(&window, "lstUnit", "Unit", {"m", "ft", "fm"});
    const PageRecord::Choice unit = choiceOf(list);
    EXPECT_EQ(unit.get(), 0);
    for (const auto& [choice, chosen] : {std::pair(2, 2), {3, 2}, {-1, 2}, {99, 2}, {0, 0}}) {
        unit.set(choice);
        EXPECT_EQ(list->currentIndex(), chosen) << choice;
    }
    Options options(&window, "optClock", {{"SMT", "Ship's time"}, {"UTC", "World time"}});
    EXPECT_EQ(options.chosen(), 0) << "the first at the start";
    const PageRecord::Choice clock = choiceOf(&options);
    for (const auto& [choice, chosen] : {std::pair(1, 1), {2, 1}, {-1, 1}, {0, 0}}) {
        clock.set(choice);
        EXPECT_EQ(clock.get(), chosen) << choice;
    }
    EXPECT_EQ(options.button(1)->objectName(), "optClock(1)");
    EXPECT_EQ(options.button(1)->accessibleName(), "World time");
}

TEST(PageBar, onePageIsSeenAndOneNameIsAStop)
{
    QWidget body;
    auto* column = new QVBoxLayout(&body);
    auto* bar = new PageBar;
    column->addWidget(bar);
    std::vector<QWidget*> pages, stops;
    for (const char* name : {"&Entries", "&List", "&Chart"}) {
        auto* content = new QWidget;
        new QHBoxLayout(content);
        stops.push_back(new EntryBox);
        content->layout()->addWidget(new QLabel("of the page"));
        content->layout()->addWidget(stops.back());
        pages.push_back(addScrolledPage(body, *bar, content, name,
                                        QString("cmdPage(%1)").arg(pages.size()), "words"));
    }
    body.show();
    const auto seen = [&] {
        std::string all;
        for (std::size_t i = 0; i < pages.size(); ++i) {
            auto* name = body.findChild<QAbstractButton*>(QString("cmdPage(%1)").arg(i));
            EXPECT_EQ(name->accessibleName(), "words");
            EXPECT_EQ(bar->isTurnedAway(*stops[i]), !pages[i]->isVisible());
            all += pages[i]->isVisible() ? "seen" : "-";
            all += name->isChecked() ? " chosen" : "";
            all += name->focusPolicy() & Qt::TabFocus ? " stop; " : "; ";
        }
        return all;
    };
    EXPECT_EQ(seen(), "seen chosen stop; -; -; ");
    int turned = 0;
    QObject::connect(bar, &PageBar::turned, [&] { ++turned; });
    bar->turnTo(2);
    EXPECT_EQ(seen(), "-; -; seen chosen stop; ");
    for (const std::size_t none : {std::size_t(2), std::size_t(3)})
        bar->turnTo(none);
    EXPECT_EQ(turned, 1) << "nothing was turned";
    // A stroke under the name of the page that is shown, a hairline under the others.
    for (const bool isShown : {true, false}) {
        auto* name = body.findChild<QAbstractButton*>(isShown ? "cmdPage(2)" : "cmdPage(0)");
        name->clearFocus();
        const QImage image = name->grab().toImage();
        const auto colour = [&](int fromFoot) {
            return image.pixelColor(2, image.height() - 1 - fromFoot);
        };
        const QPalette& palette = name->palette();
        EXPECT_EQ(colour(0), palette.color(isShown ? QPalette::Highlight : QPalette::Dark));
        EXPECT_EQ(colour(2) == palette.color(QPalette::Highlight), isShown);
        EXPECT_NE(colour(6), palette.color(QPalette::Highlight));
        EXPECT_NE(colour(6), palette.color(QPalette::Dark));
    }
    EXPECT_EQ(bar->page(), 2u);
    body.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&body));
    QTest::mouseClick(body.findChild<QAbstractButton*>("cmdPage(1)"), Qt::LeftButton);
    EXPECT_EQ(seen(), "-; seen chosen stop; -; ");
    EXPECT_EQ(body.focusWidget(), stops[1]) << "its first box";
}

/// Rows of a picture in which anything stands on the white in a part of it: the first and the last.
std::pair<int, int> inkOf(const QImage& image, const QRect& part)
{
    std::pair<int, int> rows{-1, -1};
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            if (image.rect().contains(x, y) && qGray(image.pixel(x, y)) < 192) {
                if (rows.first < 0) rows.first = y;
                rows.second = y;
            }
    return rows;
}

/// A unit that hangs above or below the line of its figure.
TEST(AnswerStrip, aUnitStandsOnTheLineOfItsFigure)
{
    AnswerStrip strip;
    auto* answer = new ResultLabel;
    answer->declare("Course", {}, Weight::Answer);
    answer->setRoom("000");
    strip.add("Course", answer, "nm");
    strip.setStyleSheet("background: white; color: black");
    answer->setText("111");
    strip.resize(400, 100);
    strip.show();
    QCoreApplication::sendPostedEvents();
    const QImage image = strip.grab().toImage();
    const auto placeOf = [&](const QWidget& part) {
        return QRect(part.mapTo(&strip, QPoint()), part.size());
    };
    const QLabel* unit = nullptr;
    for (const QLabel* each : strip.findChildren<QLabel*>())
        if (each->text() == "nm") unit = each;
    ASSERT_TRUE(unit);
    const auto figure = inkOf(image, placeOf(*answer)), letters = inkOf(image, placeOf(*unit));
    ASSERT_GT(figure.first, 0);
    EXPECT_NEAR(letters.second, figure.second, 1);
    EXPECT_GT(letters.first, figure.first) << "the figure is the larger one";
}

/// Options without a group beside options of one: each has a stop of its own, at the chosen one.
TEST(ChosenOption, optionsOfAGroupAreNotThoseBesideThem)
{
    QWidget window;
    Options clock(&window, "optClock", {{"S", "Ship's time"}, {"U", "World time"}});
    auto *north = new QRadioButton("N", &window), *south = new QRadioButton("S", &window);
    south->setChecked(true);
    clock.choose(1);
    keepFocusAtChosenOptions(window);
    const auto stops = [&] {
        std::string all;
        for (const QAbstractButton* each :
             {clock.button(0), clock.button(1), static_cast<QAbstractButton*>(north),
              static_cast<QAbstractButton*>(south)})
            all += each->focusPolicy() & Qt::TabFocus ? '+' : '-';
        return all;
    };
    EXPECT_EQ(stops(), "-+-+");
    QTest::keyClick(south, Qt::Key_N);
    EXPECT_TRUE(north->isChecked());
    EXPECT_EQ(stops(), "-++-");
    QTest::keyClick(clock.button(1), Qt::Key_S);
    EXPECT_EQ(clock.chosen(), 0) << "its letter, not that of the others";
    EXPECT_TRUE(north->isChecked());
    EXPECT_EQ(stops(), "+-+-");
    QTest::keyClick(north, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(north->isChecked());
}

/// A notice that has no room, or takes that of the figures.
TEST(NoticeLine, isAsWideAsItsWindowAndTwoLinesHigh)
{
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    auto* foot = new NoticeLine;
    column->addWidget(new QWidget, 1);
    column->addWidget(foot);
    window.resize(300, 300);
    window.show();
    const int least = window.minimumSizeHint().width();
    foot->say("1", QString(40, 'W'));
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(foot->width(), column->contentsRect().width());
    EXPECT_EQ(foot->height(), 2 * foot->fontMetrics().lineSpacing());
    EXPECT_EQ(window.minimumSizeHint().width(), least);
}

/// A sign that runs into the words beside it, or into their second line.
TEST(NoticeLine, theSignHasARoomOfItsOwn)
{
    for (const NoticeLevel level : {NoticeLevel::Done, NoticeLevel::Remark, NoticeLevel::Fault}) {
        NoticeLine foot;
        foot.setColours({Qt::black, Qt::black, Qt::black, Qt::black});
        foot.setStyleSheet("background: white");
        const int line = foot.fontMetrics().lineSpacing();
        foot.resize(20 * line, foot.sizeHint().height());
        foot.say("~1", "      ", level);
        const QImage image = foot.grab().toImage();
        const auto sign = inkOf(image, QRect(0, 0, line, 2 * line));
        EXPECT_GE(sign.first, 1);
        EXPECT_LT(sign.second, line);
        EXPECT_EQ(inkOf(image, QRect(line, 0, 3 * line, 2 * line)).first, -1);
    }
}

} // namespace
} // namespace korvel
