// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanChart.h"
#include "navlib/angles.h"
#include "shell/controls/Boxes.h"
#include "shell/controls/PictureBox.h"
#include "tests/forms/frmPassage/PassageWindow.h"

#include <QApplication>
#include <QImage>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstdlib>

// What the eye finds in the window of the plan: where boxes stand, the chart, the Sun of a row.

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::MatchesRegex;

class frmPassageSeenTest : public PassageWindowTest
{
};

/// An hour's turn of the Earth further west, or a month later, the Sun rises at another time.
TEST_F(frmPassageSeenTest, theSunIsThatOfTheRowInHand)
{
    auto& window = open<frmPassage>();
    type(window, "txtPlanTime", "2026/11/22 3:00");
    typeRows(window, {{"A", "35.1", "139.46", "", "", "9"}, {"B", "36", "140", "12"}});
    QTest::keyClick(&control(window, "txtRemark"), Qt::Key_Up);
    EXPECT_EQ(text(window, "lblRow(2)"), "rises 06:22, sets 16:32");
    type(window, "txtWpLong", "124.46");
    EXPECT_THAT(text(window, "lblRow(2)"), MatchesRegex("rises 07:2[1-3], sets 17:3[1-3]"));
    type(window, "txtWpLat", "-35.1"); // where the day is as long as the night was
    EXPECT_THAT(text(window, "lblRow(2)"), MatchesRegex("rises 0[56]:.., sets 19:.."))
        << "of another latitude";
    type(window, "txtZone", "10");
    EXPECT_THAT(text(window, "lblRow(2)"), MatchesRegex("rises 0[67]:.., sets 20:.."));
    const std::string november = text(window, "lblRow(2)");
    type(window, "txtPlanTime", "2026/12/22 3:00");
    EXPECT_NE(text(window, "lblRow(2)"), november);
}

/// Side by side in lines of one height: the boxes of the row in hand.
TEST_F(frmPassageSeenTest, boxesStandInThreeLines)
{
    auto& window = open<frmPassage>();
    window.resize(1600, 900);
    QApplication::processEvents();
    const auto top = [&window](const char* name) {
        return control(window, name).mapTo(&window, QPoint()).y();
    };
    for (const auto& line : {std::vector{"txtWaypoint", "txtLegSpeed", "txtRemark"},
                             {"txtWpLat", "txtStep", "txtStop"},
                             {"txtWpLong", "txtLimit", "txtZone"}})
        for (const char* name : line)
            EXPECT_EQ(top(name), top(line.front())) << name;
    for (const auto& [name, limits] : {std::pair("txtWpLat", "-90 to 90"),
                                       {"txtWpLong", "-180 to 180"},
                                       {"txtZone", "-12 to 14"},
                                       {"txtLimit", ""}})
        EXPECT_EQ(dynamic_cast<EntryBox&>(control(window, name)).limits(), limits) << name;
    EXPECT_LT(top("txtWaypoint"), top("txtWpLat"));
    EXPECT_LT(top("txtWpLat"), top("txtWpLong"));
}

TEST_F(frmPassageSeenTest, theChartHasItsLegsAndAPressGoesToTheRow)
{
    auto& window = open<frmPassage>();
    typeRows(window, {{"A", "0", "0"}, {"B", "0", "10"}, {"C", "8", "10"}});
    window.resize(1400, 900);
    QApplication::processEvents();
    auto& picture = dynamic_cast<PictureBox&>(control(window, "picPlan"));
    const ColourScheme& colours = program().colours();
    const auto pixelOf = [&picture](double latitude, double longitude) {
        return picture.toPixel(longitude, mercatorY(NavFunc113::Degrees(latitude)));
    };
    const auto isThere = [&picture](const QPointF& at, const QColor& colour) {
        const QImage image = picture.grab().toImage();
        for (int x = -2; x <= 2; ++x)
            for (int y = -2; y <= 2; ++y)
                if (image.pixelColor(qRound(at.x()) + x, qRound(at.y()) + y) == colour) return true;
        return false;
    };
    EXPECT_TRUE(isThere(pixelOf(0, 4), colours.route));
    EXPECT_TRUE(isThere(pixelOf(4, 10), colours.route));
    EXPECT_FALSE(isThere(pixelOf(4, 5), colours.route));
    EXPECT_TRUE(isThere(pixelOf(8, 10), colours.marker)) << "the row in hand";
    EXPECT_FALSE(isThere(pixelOf(0, 0), colours.marker));
    QTest::mouseClick(&picture, Qt::LeftButton, {}, pixelOf(0, 0).toPoint());
    EXPECT_EQ(text(window, "txtWaypoint"), "A");
    EXPECT_TRUE(isThere(pixelOf(0, 0), colours.marker));
    // Mercator's chart: as high as wide, a degree of longitude as long everywhere.
    const UserScale whole = picture.userScale();
    EXPECT_NEAR((whole.right - whole.left) / picture.plotArea().width(),
                (whole.top - whole.bottom) / picture.plotArea().height(), 1e-6);
    QTest::keyClick(&picture, Qt::Key_Plus);
    EXPECT_NEAR(picture.userScale().left + picture.userScale().right, whole.left + whole.right,
                1e-9);
    EXPECT_LT(picture.userScale().right, whole.right);
    QTest::keyClick(&picture, Qt::Key_Right);
    EXPECT_GT(picture.userScale().left + picture.userScale().right, whole.left + whole.right);
    EXPECT_NEAR(picture.userScale().top + picture.userScale().bottom, whole.top + whole.bottom,
                1e-9);
    QTest::keyClick(&picture, Qt::Key_Home);
    EXPECT_NEAR(picture.userScale().right, whole.right, 1e-9);
}

/// The bar at the foot is 1, 2 or 5 and tens of miles long where the middle of the chart is.
TEST_F(frmPassageSeenTest, theScaleBarIsAsLongAsItsMiles)
{
    auto& window = open<frmPassage>();
    typeRows(window, {{"A", "58", "0"}, {"B", "62", "9"}});
    window.resize(1400, 900);
    QApplication::processEvents();
    auto& picture = dynamic_cast<PictureBox&>(control(window, "picPlan"));
    const QImage image = picture.grab().toImage();
    const QColor ink = program().colours().ink, paper = program().colours().paper;
    const QRectF area = picture.plotArea();
    int longest = 0;
    for (int y = int(area.bottom()) - 20; y < int(area.bottom()) - 2; ++y)
        for (int x = int(area.left()) + 2, run = 0; x < int(area.right()) - 1; ++x) {
            const int light = image.pixelColor(x, y).lightness();
            const bool isInk =
                std::abs(light - ink.lightness()) < std::abs(light - paper.lightness());
            run = isInk ? run + 1 : 0;
            longest = std::max(longest, run);
        }
    const UserScale& scale = picture.userScale();
    const double middle = latitudeAtY((scale.top + scale.bottom) / 2).value();
    const double perMile =
        area.width() / (scale.right - scale.left) / 60 / std::cos(middle * 3.14159265358979 / 180);
    EXPECT_NEAR(longest / perMile, milesOfScaleBar(area.width() / 3 / perMile), 3 / perMile);
}

} // namespace
} // namespace korvel
