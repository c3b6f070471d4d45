// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/frmSunSight.h"

#include "forms/frmSunSight/panels/SeriesPicture.h"
#include "forms/frmSunSight/panels/SightLines.h"
#include "forms/frmSunSight/panels/SightPicture.h"
#include "tests/forms/frmSunSight/WorkedSights.h"
#include "tests/shell/PaintedTexts.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QScrollArea>
#include <QTest>

#include <algorithm>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::StartsWith;

class frmSunSightTest : public WindowTest
{
protected:
    /// Three sights of which one is out by twenty miles.
    static void recordThree(QWidget& window)
    {
        const std::pair<const char*, const char*> sights[] = {
            {"11:45:11", "24.350"}, {"15:30:00", "52.220"}, {"18:10:20", "35.34"}};
        type(window, "txtSunDR(0)", "14.020");
        type(window, "txtSunDR(1)", "-52.110");
        type(window, "txtSunRun(0)", "2020/12/17 11:45:11");
        type(window, "txtSunRun(1)", "271");
        type(window, "txtSunRun(2)", "8");
        for (const auto& [time, Hs] : sights) {
            type(window, "txtSunSight(0)", "2020/12/17");
            type(window, "txtSunSight(1)", time);
            type(window, "txtSunSight(4)", Hs);
            type(window, "txtSunSight(5)", "4");
            type(window, "txtSunSight(6)", "2.8");
            click(window, "cmdRecord");
        }
    }
};

TEST_F(frmSunSightTest, theWorksheetFoldsAndIsRemembered)
{
    auto& window = open<frmSunSight>();
    recordThree(window);
    const auto isOpen = [](const QWidget& each) {
        return control(each, "lblSunValue(0)").isVisible();
    };
    EXPECT_EQ(text(window, "lblSunTerm(0)"), "Hs");
    EXPECT_FALSE(isOpen(window));
    click(window, "cmdDetails");
    EXPECT_TRUE(isOpen(window));
    close(window);
    auto& again = open<frmSunSight>();
    EXPECT_TRUE(isOpen(again));
    click(again, "cmdDetails");
    close(again);
    EXPECT_FALSE(isOpen(open<frmSunSight>()));
}

TEST_F(frmSunSightTest, whatIsSaidOfSightsThatDoNotAgreeScrolls)
{
    auto& window = open<frmSunSight>();
    recordThree(window);
    window.resize(1016, 730);
    QTest::qWait(10);
    const auto& without = static_cast<ResultLabel&>(control(window, "lblSunFix(5)"));
    for (const char* time : {"11:45:11", "15:30:00", "18:10:20"})
        EXPECT_THAT(without.text().toStdString(), ::testing::HasSubstr(time));
    EXPECT_FALSE(without.isCut());
    const auto& area = static_cast<QScrollArea&>(control(window, "areaSunFix"));
    EXPECT_GE(area.widget()->height(), without.geometry().bottom());
    EXPECT_LT(without.geometry().right(), area.viewport()->width()) << "up and down only";
    int lowest = -1;
    for (const int sentence : {2, 3, 5, 6, 4}) { // how good it is before where that comes from
        const QWidget& label = control(window, "lblSunFix(" + std::to_string(sentence) + ")");
        EXPECT_EQ(label.parentWidget(), area.widget()) << sentence;
        EXPECT_GT(label.y(), lowest) << sentence;
        lowest = label.y();
    }
    // Boxes of how good the lines are, each with its caption before it.
    for (const auto& [box, words] : {std::pair("txtSunSigma(0)", "Sigma"),
                                     {"txtSunSigma(1)", "Run"},
                                     {"txtSunSigma(2)", "Course"}}) {
        const QWidget& entry = control(window, box);
        const auto labels = entry.parentWidget()->findChildren<QLabel*>();
        const auto caption = std::ranges::find(labels, &entry, &QLabel::buddy);
        ASSERT_NE(caption, labels.end()) << box;
        EXPECT_EQ((*caption)->text(), words);
        EXPECT_LE((*caption)->geometry().right(), entry.geometry().left());
    }
}

TEST_F(frmSunSightTest, keysAndPointerMoveThePlot)
{
    auto& window = open<frmSunSight>();
    recordThree(window);
    auto& picture = dynamic_cast<SightPicture&>(control(window, "picSunSight"));
    const auto view = [&]() -> const PlotView& { return picture.plot().view; };
    const auto press = [&](int key) { QTest::keyClick(&picture, Qt::Key(key)); };
    press(Qt::Key_Plus);
    EXPECT_LT(view().half, 40);
    const double zoomed = view().half;
    press(Qt::Key_Right);
    EXPECT_GT(view().centre.x, 0);
    EXPECT_EQ(view().centre.y, 0);
    press(Qt::Key_Up);
    EXPECT_GT(view().centre.y, 0);
    EXPECT_EQ(view().half, zoomed);
    press(Qt::Key_End);
    const PlotView all = viewOfAll(picture.plot());
    EXPECT_EQ(view().half, all.half);
    EXPECT_EQ(view().centre.x, all.centre.x);
    const UserScale& scale = picture.userScale();
    EXPECT_NEAR(scale.right - scale.left, 2 * all.half, 1e-9) << "as wide as high";
    EXPECT_NEAR(scale.top - scale.bottom, 2 * all.half, 1e-9);
    EXPECT_NEAR(scale.top, all.centre.y + all.half, 1e-9);
    press(Qt::Key_Home);
    EXPECT_EQ(view().half, 40);
    EXPECT_EQ(view().centre.x, 0);
    // Its scale is the round number from a quarter of that half on.
    for (const auto& [half, miles] : {std::pair(80, "20 nm"), {82, "50 nm"}, {201, "100 nm"}}) {
        SightPlot plot = picture.plot();
        plot.view.half = half;
        picture.showPlot(plot);
        EXPECT_EQ(picture.lettering()[0].words, miles) << half;
    }
    press(Qt::Key_Home);
    EXPECT_EQ(window.notice().toStdString().find("outside the plot"), std::string::npos);
    for (int step = 0; step < 20; ++step)
        press(Qt::Key_Plus);
    EXPECT_EQ(view().half, 2);
    EXPECT_THAT(window.notice().toStdString(), ::testing::HasSubstr("lies outside the plot"));
    // Dragged, the chart goes with the pointer.
    press(Qt::Key_Home);
    const auto pixel = [&](double x, double y) { return picture.toPixel(x, y).toPoint(); };
    QTest::mousePress(&picture, Qt::LeftButton, {}, pixel(0, 0));
    const QPoint there = pixel(10, -5);
    QMouseEvent drag(QEvent::MouseMove, there, picture.mapToGlobal(there), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&picture, &drag);
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, there);
    EXPECT_NEAR(view().centre.x, -10, 0.3);
    EXPECT_NEAR(view().centre.y, 5, 0.3);
}

TEST_F(frmSunSightTest, wordsOfThePlotKeepOffEachOtherAndOffTheLines)
{
    auto& window = open<frmSunSight>();
    recordThree(window);
    auto& picture = static_cast<SightPicture&>(control(window, "picSunSight"));
    for (const QSize size : {QSize(360, 300), QSize(420, 480), QSize(560, 490), QSize(1200, 900)}) {
        picture.resize(size);
        EXPECT_TRUE(QRectF(picture.rect()).contains(picture.plotArea()));
        EXPECT_NEAR(picture.plotArea().width(), picture.plotArea().height(), 1);
        EXPECT_LT(picture.width() - picture.plotArea().width(),
                  picture.height() < picture.width() ? picture.width() : picture.width() / 2);
        const auto letters = picture.lettering();
        ASSERT_EQ(letters.size(), 9U) << "scale, fix, DR, three fixes without, three lines";
        for (std::size_t i = 0; i < letters.size(); ++i) {
            const std::string words = letters[i].words.toStdString();
            EXPECT_TRUE(picture.plotArea().contains(letters[i].room)) << words;
            for (std::size_t other = 0; other < i; ++other)
                EXPECT_FALSE(letters[i].room.intersects(letters[other].room))
                    << words << " on " << letters[other].words.toStdString();
            for (const PlotLine& line : picture.plot().lines)
                for (const auto& run : line.runs)
                    for (const PlotPoint& point : run)
                        EXPECT_FALSE(letters[i].room.contains(picture.toPixel(point.x, point.y)))
                            << words << " on line " << line.label << " at " << size.width();
        }
    }
}

TEST_F(frmSunSightTest, thePointerReadsThePosition)
{
    auto& window = open<frmSunSight>();
    type(window, "txtSunDR(0)", "14.020");
    type(window, "txtSunDR(1)", "-52.110");
    auto& picture = static_cast<SightPicture&>(control(window, "picSunSight"));
    EXPECT_NEAR(picture.plotArea().width(), picture.plotArea().height(), 1) << "angles are true";
    const auto point = [&](QPointF pixel) {
        QMouseEvent move(QEvent::MouseMove, pixel, picture.mapToGlobal(pixel), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&picture, &move);
    };
    point(picture.toPixel(-20, 30));
    EXPECT_THAT(text(window, "lblSunCursor(0)"), StartsWith("  14.-3")) << "30 miles north";
    EXPECT_THAT(text(window, "lblSunCursor(1)"), StartsWith("052.-3")) << "20 miles west";
    point({1, 1});
    EXPECT_EQ(text(window, "lblSunCursor(0)"), "");
    point(picture.toPixel(-20, 30));
    EXPECT_NE(text(window, "lblSunCursor(1)"), "");
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&picture, &leave);
    EXPECT_EQ(text(window, "lblSunCursor(0)") + text(window, "lblSunCursor(1)"), "");
}

TEST_F(frmSunSightTest, fitsASmallScreenWithPlotAndEightSights)
{
    auto& window = open<frmSunSight>();
    for (int i = 0; i < 8; ++i) {
        type(window, "txtSunSight(0)", "2020/12/17\r15:3" + std::to_string(i) + "\r");
        type(window, "txtSunSight(4)", "52.220");
        click(window, "cmdRecord");
    }
    window.resize(1016, 730); // the test's own screen is narrower
    QApplication::processEvents();
    auto* area = window.findChild<QScrollArea*>();
    const QSize asked = area->widget()->minimumSizeHint();
    const QSize around = window.minimumSizeHint() - area->minimumSizeHint();
    const QSize frame(4, 30); // of a window manager
    EXPECT_LE(asked.width() + around.width() + frame.width(), 1024);
    EXPECT_LE(asked.height() + around.height() + frame.height(), 768);
    area->widget()->resize(asked);
    QApplication::processEvents();
    const auto& sights = static_cast<QListWidget&>(control(window, "lstSunSight"));
    EXPECT_TRUE(sights.viewport()->rect().contains(sights.visualItemRect(sights.item(7))));
    EXPECT_LT(sights.minimumSizeHint().height(), 9 * sights.sizeHintForRow(0));
    EXPECT_GE(control(window, "picSunSight").height(), 340);
    EXPECT_GE(control(window, "picSunSight").width(), 400);
    EXPECT_LE(sights.sizeHintForColumn(0), sights.viewport()->width()) << "residuals cut off";
}

TEST(SeriesPicture, itsScalesEndAtRoundFigures)
{
    SeriesPicture picture;
    picture.resize(400, 300);
    for (const auto& [minutes, residual, marks] :
         {std::tuple(1.8, 2.5, "-5.0' 0' +5.0' -2 min0 min+2 minSun"),
          {1.0, 4.6, "-5.0' 0' +5.0' -2 min0 min+2 minSun"},
          {0.4, 9.0, "-10.0' 0' +10.0' -0.5 min0 min+0.5 minSun"}}) {
        SightSeries series;
        for (const double sign : {-1.0, 1.0})
            series.shots.push_back({0, sign * minutes / 1440, NavFunc113::Miles(sign * residual)});
        picture.showSeries({series});
        PaintedTexts sheet(picture.size());
        picture.render(&sheet);
        QString written;
        for (const PaintedText& each : sheet.texts())
            written += each.text;
        EXPECT_EQ(written.toStdString(), marks);
    }
}

/// What an officer would plot himself, by the places of the plot.
TEST(SightPicture, drawsArrowScaleAndNorthAndWritesOnItsMargins)
{
    SightPicture picture;
    picture.resize(500, 400);
    picture.showPlot(
        DrawLOP(CalculateFix(worked::listOf({worked::morning2020}), worked::track2020, {}, {}),
                {{3, -4}, 20}));
    PaintedTexts sheet(picture.size());
    picture.render(&sheet, {}, {}, QWidget::DrawChildren);
    const QRectF area = picture.plotArea();
    EXPECT_NEAR(area.width(), area.height(), 1) << "angles are true";
    const auto at = [&](const PlotPoint& point) { return picture.toPixel(point.x, point.y); };
    const auto isAt = [](QPointF one, QPointF other) { return QLineF(one, other).length() < 0.6; };
    const PlotLine& line = picture.plot().lines.at(0);
    const QPointF tip = at(line.arrowTo), north = area.topRight();
    int barbs = 0, arms = 0, scales = 0;
    for (const QLineF& each : sheet.lines()) {
        if (isAt(each.p1(), tip)) {
            const double angle = each.angleTo(QLineF(tip, at(line.foot)));
            barbs += std::abs(std::remainder(angle, 360)) < 30;
        }
        arms += isAt(each.center(), at({})) && each.length() < 60;
        scales += each.dy() == 0 && std::abs(each.length() - (at({5, 0}) - at({})).x()) < 0.01;
        if (each.x1() > area.right() + 1 && each.x2() > area.right() + 1) {
            EXPECT_GT(each.x1(), north.x());
            EXPECT_LE(std::min(each.y1(), each.y2()), north.y() + 0.5);
        }
    }
    EXPECT_EQ(barbs, 2);
    EXPECT_EQ(arms, 2);
    EXPECT_EQ(scales, 1) << "5 miles";
    double right = 0;
    for (const PaintedText& each : sheet.texts()) {
        if (each.text.endsWith('N')) {
            EXPECT_TRUE(each.text == "N" || each.at.x() + each.width < area.left());
        }
        if (!each.text.endsWith('W')) continue;
        EXPECT_GT(each.at.x(), right);
        EXPECT_GT(each.at.y(), area.bottom());
        right = each.at.x() + each.width;
    }
    EXPECT_GT(right, area.center().x());
}

TEST(SightLines, theResultGoesBelowWhereItHasNoRoomBeside)
{
    SightLines lines(nullptr);
    lines.addItem("");
    lines.showSight(0, "Sun", "3'.0 T", "");
    lines.show();
    const int wide = lines.sizeHint().width();
    for (const auto& [width, text] : {std::pair(wide, "Sun  3'.0 T"),
                                      {wide - 1, "Sun\n3'.0 T"},
                                      {wide - 9, "Sun\n3'.0 T"},
                                      {wide, "Sun  3'.0 T"}}) {
        lines.resize(width, 200);
        EXPECT_EQ(lines.item(0)->text(), text);
    }
    QFont larger = lines.font();
    larger.setPointSizeF(2 * larger.pointSizeF());
    lines.setFont(larger);
    EXPECT_GT(lines.sizeHint().width(), 3 * wide / 2);
}

} // namespace
} // namespace korvel
