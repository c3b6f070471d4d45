// SPDX-License-Identifier: MIT
#include "forms/frmGC2000/frmGC2000.h"

#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class frmGC2000Test : public WindowTest
{
protected:
    /// San Francisco to Yokohama.
    frmGC2000& openPacific()
    {
        auto& window = open<frmGC2000>();
        whileTyping(window, "txtGC(0)", "37.49\r-122.25\r35.27\r139.39\r", "lblGC2000(1)");
        return window;
    }
    bool showsRoute(QWidget& window)
    {
        const QImage picture = control(window, "picGC").grab().toImage();
        const QRgb route = program().colours().route.rgb();
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixel(x, y) == route) return true;
        return false;
    }
};

TEST_F(frmGC2000Test, theWholeCaseWithOneHand)
{
    auto& window = openPacific();
    EXPECT_EQ(focused(), "txtGC(0)") << "Enter wraps";
    // Distance, courses and vertex recomputed independently on the sphere.
    EXPECT_EQ(text(window, "lblGC2000(1)"), "4471.'6");
    EXPECT_EQ(text(window, "lblGC2000(0)"), "4737.'2");
    EXPECT_EQ(text(window, "lblInitialCourse"), "<303.2>");
    EXPECT_EQ(text(window, "lblFinalCourse"), "<234.3>");
    EXPECT_EQ(text(window, "lblVertexLat"), "48.35'8N");
    EXPECT_EQ(text(window, "lblVertexLong"), "169.14'0W");
    EXPECT_EQ(text(window, "lblSaving"), "265.'6");
    EXPECT_EQ(text(window, "lblWpLong(1)"), "130.00'0W");
    EXPECT_EQ(text(window, "lblWpNo(11)"), "Arr.");
    EXPECT_TRUE(showsRoute(window));
}

TEST_F(frmGC2000Test, outOfRangeBlanksTableTotalsAndChart)
{
    auto& window = openPacific();
    EXPECT_THAT(whileTyping(window, "txtGC(0)", "65.1\b\b", "lblGC2000(1)"),
                ElementsAre("5576.'1", "3686.'2", "3686.'2", "", "3686.'2", "3686.'2"));
    type(window, "txtGC(0)", "65.1");
    for (const char* label : {"lblWpLat(0)", "lblWpCo(0)", "lblGC2000(0)", "lblGC2000(2)",
                              "lblSaving", "lblVertexRemark", "lblWpNo(0)"})
        EXPECT_EQ(text(window, label), "") << label;
    EXPECT_EQ(text(window, "lblNotice"), "");
    EXPECT_FALSE(showsRoute(window));
}

TEST_F(frmGC2000Test, positionsGoToTheMemoAndTheClipboardInFull)
{
    auto& window = openPacific();
    auto* memo = window.findChild<QMenu*>("mnuMemo");
    emit memo->aboutToShow();
    EXPECT_EQ(memo->actions().at(2)->text().toStdString(),
              "Waypoint 1:  " + text(window, "lblWpLat(1)") + "  130.00'0W");
    EXPECT_TRUE(memo->actions().at(11)->isVisible());
    EXPECT_FALSE(memo->actions().at(12)->isVisible()) << "the last one is the arrival";
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuMemo(2)");
    EXPECT_EQ(program().saved().memoLongitude(), NavFunc113::DegMin(-130));
    EXPECT_NEAR(program().saved().memoLatitude().packed(), 41.17, 0.01);
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuRem(1)");
    EXPECT_EQ(text(window, "txtGC(3)"), "-130");
    EXPECT_EQ(text(window, "lblWpLong(1)"), "130.00'0W");

    QTest::keySequence(&control(window, "lblWpLat(0)"), QKeySequence(QKeySequence::Copy));
    EXPECT_EQ(QApplication::clipboard()->text(), "37°49.0'N 122°25.0'W");
    choose(window, "mnuAC(0)");
    EXPECT_EQ(text(window, "txtGC(3)"), "");
    EXPECT_EQ(focused(), "txtGC(0)");
}

TEST_F(frmGC2000Test, theUnitOfDistanceAndTheFileCount)
{
    writeFile("KV_GC.ini", "\"0\"\r\n\"0\"\r\n\"0\"\r\n\"9,5\"\r\n");
    auto& window = open<frmGC2000>();
    EXPECT_EQ(text(window, "lblGC2000(0)"), "540.'0");
    program().saved().setUnitOfLatitude(false);
    emit program().distanceUnitChanged();
    EXPECT_EQ(text(window, "lblGC2000(0)"), "541.'0") << "the equator in miles of 1852 m";
    close(window);
    EXPECT_EQ(fileText("KV_GC.ini"), "\"0\"\r\n\"0\"\r\n\"0\"\r\n\"9,5\"\r\n");
}

} // namespace
} // namespace korvel
