// SPDX-License-Identifier: MIT
// What pages and windows are put together of.
#include "shell/controls/AnswerStrip.h"
#include "shell/controls/ChartBox.h"
#include "shell/controls/ChosenOption.h"
#include "shell/controls/FieldBoxes.h"
#include "shell/controls/NoticeLine.h"
#include "shell/controls/Options.h"
#include "shell/controls/PageParts.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

#include <array>
#include <cmath>
#include <memory>
#include <string>

namespace korvel
{
namespace
{

constexpr std::array<Field, 7> fieldsOfAll = {{
    {"txtName(0)", "Name", "Name", "", FieldKind::Text, "kg"},
    {"txtName(1)", "&Speed", "Speed", "knots", FieldKind::Figure, "kn", 0, 100},
    {"txtName(2)", "Density", "Density", "", FieldKind::Figure, "kg/m3, in air", 0},
    {"txtName(3)", "Latitude", "Latitude", "", FieldKind::Latitude, "N", -90, 90},
    {"txtName(4)", "Longitude", "Longitude", "", FieldKind::Longitude, "E", -180, 180},
    {"txtName(5)", "Time", "Time", "", FieldKind::Moment, "UTC, yyyy/mm/dd hh:mm"},
    {"txtName(6)", "Watch", "Watch", "", FieldKind::Moment, "SMT"},
}};

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
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_N, Qt::NoModifier, "n");
    QApplication::sendEvent(south, &letter);
    EXPECT_TRUE(north->isChecked() && letter.isAccepted()) << "and nobody else's";
    EXPECT_EQ(stops(), "-++-");
    QTest::keyClick(clock.button(1), Qt::Key_S);
    EXPECT_EQ(clock.chosen(), 0) << "its letter, not that of the others";
    EXPECT_TRUE(north->isChecked());
    EXPECT_EQ(stops(), "+-+-");
    QTest::keyClick(north, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(north->isChecked());
    // An option that a record or another box chooses takes the focus from nobody.
    auto* box = new QLineEdit(&window);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    box->setFocus();
    south->setChecked(true);
    EXPECT_TRUE(box->hasFocus());
    south->setFocus();
    north->setChecked(true);
    EXPECT_TRUE(north->hasFocus());
}

/// A chart that tells what it is asked for.
class AskedChart : public ChartBox
{
public:
    std::string asked;

private:
    void zoomBy(double factor, QPointF at) override { tell(factor > 1 ? "more" : "less", at); }
    void moveBy(QPointF by) override { tell("by", by); }
    void showHome() override { asked += "home "; }
    void draw(QPainter&) override {}
    void tell(const char* what, QPointF at)
    {
        asked += std::string(what) + " " + std::to_string(std::lround(at.x())) + "," +
                 std::to_string(std::lround(at.y())) + " ";
    }
};

TEST(ChartBox, keysAndWheelMoveAndZoom)
{
    AskedChart chart;
    chart.resize(200, 100);
    chart.setUserScale({100, 500, 180, 420}); // left, top, right, bottom: half as wide is 40
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Plus,
                              Qt::Key_Equal, Qt::Key_Minus, Qt::Key_Home, Qt::Key_A})
        QTest::keyClick(&chart, key);
    EXPECT_EQ(chart.asked, "by -10,0 by 10,0 by 0,10 by 0,-10 less 140,460 less 140,460 "
                           "more 140,460 home ");
    for (const int turned : {120, -120}) {
        chart.asked.clear();
        QWheelEvent wheel({50, 25}, {50, 25}, {}, {0, turned}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&chart, &wheel);
        EXPECT_EQ(chart.asked, turned > 0 ? "less 120,480 " : "more 120,480 ");
    }
    chart.asked.clear();
    for (const auto& [pressed, button] : {std::pair(Qt::RightButton, Qt::RightButton),
                                          {Qt::RightButton, Qt::LeftButton},
                                          {Qt::LeftButton, Qt::LeftButton}}) {
        QTest::mousePress(&chart, pressed, {}, {50, 50});
        QMouseEvent move(QEvent::MouseMove, QPointF(100, 50), QPointF(100, 50), Qt::NoButton,
                         button, Qt::NoModifier);
        QApplication::sendEvent(&chart, &move);
        QTest::mouseRelease(&chart, button, {}, {100, 50});
    }
    EXPECT_EQ(chart.asked, "by -20,0 ") << "drawn along by the left button alone";
}

} // namespace
} // namespace korvel
