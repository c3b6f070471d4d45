// SPDX-License-Identifier: MIT
#include "forms/frmWind/frmWind.h"

#include "forms/frmWind/WindPictureBox.h"
#include "tests/shell/ShellTesting.h"

#include <QTest>

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

} // namespace
} // namespace korvel
