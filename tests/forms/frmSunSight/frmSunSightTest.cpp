// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/frmSunSight.h"

#include "forms/frmSunSight/panels/SightPicture.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QListWidget>
#include <QMouseEvent>
#include <QScrollArea>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::StartsWith;

class frmSunSightTest : public WindowTest
{
};

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
    EXPECT_GE(control(window, "picSunSight").height(), 240);
    EXPECT_LE(sights.sizeHintForColumn(0), sights.viewport()->width()) << "residuals cut off";
}

} // namespace
} // namespace korvel
