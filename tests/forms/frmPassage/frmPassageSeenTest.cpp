// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanChart.h"
#include "navlib/angles.h"
#include "shell/controls/Boxes.h"
#include "shell/controls/PictureBox.h"
#include "tests/forms/frmPassage/PassageWindow.h"
#include "tests/shell/Pixels.h"

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
        const QImage image = onScreen(picture);
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

} // namespace
} // namespace korvel
