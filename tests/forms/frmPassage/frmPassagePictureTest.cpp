// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanChart.h"
#include "forms/frmPassage/frmPassage.h"
#include "shell/controls/PictureBox.h"
#include "tests/shell/Pixels.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using frmPassagePictureTest = WindowTest;

TEST_F(frmPassagePictureTest, theChartHasItsLegsAndAPressGoesToTheRow)
{
    auto& window = open<frmPassage>();
    QApplication::clipboard()->setText("A\t0\t0\nB\t0\t10\nC\t8\t10\n");
    choose(window, "mnuRow(4)");
    QTest::keyClick(&control(window, "txtRemark"), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(&control(window, "txtRemark"), Qt::Key_Up);
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
    const auto thickness = [&](const QPointF& at, const QPoint& across) {
        const QImage image = onScreen(picture);
        int thick = 0;
        for (int i = -9; i <= 9; ++i)
            thick += image.pixelColor(at.toPoint() + i * across) == colours.route;
        return thick;
    };
    EXPECT_GT(thickness(pixelOf(4, 10), {1, 0}), thickness(pixelOf(0, 4), {0, 1}));
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
    QTest::keyClick(&picture, Qt::Key_Up);
    EXPECT_GT(picture.userScale().top + picture.userScale().bottom, whole.top + whole.bottom);
    QTest::keyClick(&picture, Qt::Key_Home);
    EXPECT_NEAR(picture.userScale().right, whole.right, 1e-9);
}

} // namespace
} // namespace korvel
