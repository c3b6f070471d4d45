// SPDX-License-Identifier: MIT
#include "forms/frmWind/frmWind.h"

#include "forms/frmWind/WindPictureBox.h"
#include "tests/shell/Pixels.h"
#include "tests/shell/ShellTesting.h"

#include <QImage>
#include <QTest>

#include <algorithm>

namespace korvel
{
namespace
{

using namespace korvel::testing;

using frmWindTest = WindowTest;

TEST_F(frmWindTest, whatIsSaidAtThePointerGoesWithIt)
{
    auto& window = open<frmWind>();
    type(window, "txtWind(0)", "90");
    type(window, "txtWind(1)", "10");
    auto& picture = dynamic_cast<WindPictureBox&>(control(window, "picWind"));
    const QPoint place = picture.toPixel(0, -15).toPoint();
    const double scale = picture.userScale().top;
    QTest::mousePress(&picture, Qt::LeftButton, {}, place);
    EXPECT_EQ(picture.userScale().top, scale) << "a true wind of 25 knots, but the rings stay";
    const QImage held = onScreen(picture);
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, place);
    const QImage released = onScreen(picture);
    EXPECT_GT(picture.userScale().top, 1.5 * scale);
    EXPECT_NE(held, released);
    picture.setPointerText({0, -5}, "12 kn");
    EXPECT_NE(onScreen(picture), released);
    picture.setPointerText({}, {});
    EXPECT_EQ(onScreen(picture), released);
}

// Her stern is where she does not head: astern of the middle with the head up, to the west when she
// heads east with north up.
TEST_F(frmWindTest, theShipLiesOnHerCourse)
{
    auto& window = open<frmWind>();
    auto& picture = dynamic_cast<WindPictureBox&>(control(window, "picWind"));
    const QPointF centre = picture.toPixel(0, 0);
    const double line = picture.fontMetrics().height();
    const auto hasSternAt = [&](double x, double y) {
        const QPoint at = (centre + line * QPointF(x, y)).toPoint();
        const auto colours = coloursOf(onScreen(picture), QRect(at - QPoint(2, 2), QSize(5, 5)));
        const QRgb grid = program().colours().grid.rgb(), paper = program().colours().paper.rgb();
        double best = 1;
        for (const auto& [colour, count] : colours)
            if (colour != grid) best = std::max(best, contrast(colour, paper));
        return best > 4;
    };
    type(window, "txtWind(0)", "90");
    type(window, "txtWind(1)", "10");
    EXPECT_TRUE(hasSternAt(0.2, 0.8));
    EXPECT_FALSE(hasSternAt(-0.8, 0.2));
    click(window, "optWind(1)");
    EXPECT_FALSE(hasSternAt(0.2, 0.8));
    EXPECT_TRUE(hasSternAt(-0.8, 0.2));
    type(window, "txtWind(0)", "999");
    EXPECT_TRUE(hasSternAt(0.2, 0.8)) << "no course";
}

} // namespace
} // namespace korvel
