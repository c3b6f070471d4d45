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
    QTest::mousePress(&picture, Qt::LeftButton, {}, place);
    const QImage held = picture.grab().toImage();
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, place);
    const QImage released = picture.grab().toImage();
    EXPECT_NE(held, released);
    picture.setPointerText({}, {});
    EXPECT_EQ(picture.grab().toImage(), released);
}

/// Where two pictures differ.
QRect changed(const QImage& before, const QImage& after)
{
    QRect all;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            if (before.pixel(x, y) != after.pixel(x, y)) all |= QRect(x, y, 1, 1);
    return all;
}

TEST_F(frmWindTest, wordsAtThePointerStandBesideItWithinThePicture)
{
    auto& window = open<frmWind>();
    auto& picture = dynamic_cast<WindPictureBox&>(control(window, "picWind"));
    const QImage before = picture.grab().toImage();
    const QString words = "Relative:-090/20kn";
    const int wide = picture.fontMetrics().horizontalAdvance(words);
    const double rim = picture.userScale().top;
    for (const double x : {-rim, 0.0, rim})
        for (const double y : {-rim, 0.0, rim}) {
            picture.setPointerText({x, y}, words);
            const QRect at = changed(before, picture.grab().toImage());
            EXPECT_GE(at.width(), wide) << "cut off at " << x << " " << y;
            EXPECT_GE(at.height(), picture.fontMetrics().height()) << x << " " << y;
            EXPECT_FALSE(at.contains(picture.toPixel(x, y).toPoint()) && x <= 0 && y <= 0)
                << "on the place that is pointed at";
        }
}

// While the pointer drags the rings stay, so that the place under it keeps its speed.
TEST_F(frmWindTest, ringsStayWhileThePointerDrags)
{
    auto& window = open<frmWind>();
    type(window, "txtWind(0)", "90");
    type(window, "txtWind(1)", "10");
    auto& picture = dynamic_cast<WindPictureBox&>(control(window, "picWind"));
    const double before = picture.userScale().top;
    const QPoint place = picture.toPixel(0, 19).toPoint();
    QTest::mousePress(&picture, Qt::LeftButton, {}, picture.toPixel(0, 8).toPoint());
    QTest::mouseMove(&picture, place);
    EXPECT_EQ(text(window, "txtWind(3)"), "19");
    EXPECT_EQ(picture.userScale().top, before);
    QTest::mouseMove(&picture, picture.toPixel(0, -19).toPoint());
    EXPECT_EQ(text(window, "lblWind(1)"), "Beaufort 7 (29.0Kn)");
    EXPECT_EQ(picture.userScale().top, before);
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, place);
    EXPECT_EQ(picture.userScale().top, 2 * before) << "29 knots in rings of 40";
    QTest::mouseMove(&picture, picture.toPixel(0, 5).toPoint());
    EXPECT_EQ(text(window, "txtWind(3)"), "19") << "let go";
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
        const auto colours =
            coloursOf(picture.grab().toImage(), QRect(at - QPoint(2, 2), QSize(5, 5)));
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
