// SPDX-License-Identifier: MIT
#include "forms/frmWind/frmWind.h"

#include "app/shell/PictureBox.h"
#include "tests/shell/ShellTesting.h"

#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::ElementsAre;

class frmWindTest : public WindowTest
{
protected:
    static PictureBox& picture(const QWidget& window)
    {
        return static_cast<PictureBox&>(control(window, "picWind"));
    }
    /// A place on the picture, in knots right and ahead (or east and north).
    static QPoint place(const QWidget& window, double x, double y)
    {
        return picture(window).toPixel(x, y).toPoint();
    }
    static std::string relativeWind(const QWidget& window)
    {
        return text(window, "txtWind(2)") + "/" + text(window, "txtWind(3)");
    }
};

TEST_F(frmWindTest, resultsFollowEveryKey)
{
    auto& window = open<frmWind>();
    whileTyping(window, "txtWind(0)", "90\r10\r0\r25\r", "lblWind(0)");
    EXPECT_EQ(focused(), "txtWind(0)") << "Enter wraps";
    EXPECT_EQ(text(window, "lblWind(0)"), "East <090>");
    EXPECT_EQ(text(window, "lblWind(1)"), "Beaufort 4 (15.0Kn)");
    EXPECT_THAT(whileTyping(window, "txtWind(2)", "181\b\b", "lblWind(1)"),
                ElementsAre("Beaufort 4 (15.0Kn)", "Beaufort 4 (15.8Kn)", "", "Beaufort 4 (15.8Kn)",
                            "Beaufort 4 (15.0Kn)"));
}

TEST_F(frmWindTest, theMouseSetsTheRelativeWind)
{
    auto& window = open<frmWind>();
    whileTyping(window, "txtWind(0)", "90\r10\r", "lblWind(0)");
    PictureBox& pic = picture(window);
    QTest::mouseMove(&pic, place(window, 5, 5));
    EXPECT_EQ(relativeWind(window), "/") << "no button, nothing set";
    QTest::mousePress(&pic, Qt::RightButton, {}, place(window, 5, 5));
    QTest::mouseRelease(&pic, Qt::RightButton, {}, place(window, 5, 5));
    EXPECT_EQ(relativeWind(window), "/");

    QTest::mousePress(&pic, Qt::LeftButton, {}, place(window, 0, -15));
    EXPECT_EQ(relativeWind(window), "180/15");
    EXPECT_EQ(text(window, "lblWind(1)"), "Beaufort 6 (25.0Kn)");
    const double scale = pic.userScale().right;
    QTest::mouseMove(&pic, place(window, -20, 0));
    EXPECT_EQ(relativeWind(window), "-90/20");
    EXPECT_EQ(pic.userScale().right, scale) << "a scale that follows runs away from the pointer";
    QTest::mouseRelease(&pic, Qt::LeftButton, {}, place(window, -20, 0));
    EXPECT_GT(pic.userScale().right, scale) << "22 knots of true wind do not fit 20";

    click(window, "optWind(1)");
    QTest::mousePress(&pic, Qt::LeftButton, {}, place(window, 0, 30));
    EXPECT_EQ(relativeWind(window), "-90/30") << "north is to port of a ship heading east";
    QTest::mouseRelease(&pic, Qt::LeftButton, {}, place(window, 0, 30));
}

TEST_F(frmWindTest, settingsOutliveTheWindow)
{
    {
        auto& window = open<frmWind>();
        type(window, "txtWind(2)", "-45");
        click(window, "optWind(1)");
        close(window);
    }
    EXPECT_EQ(fileText("KV_Wind.ini"), "\"\"\r\n\"\"\r\n\"-45\"\r\n\"\"\r\n1\r\n");
    close(open<frmWind>());
    EXPECT_EQ(fileText("KV_Wind.ini"), "\"\"\r\n\"\"\r\n\"-45\"\r\n\"\"\r\n1\r\n");
}

} // namespace
} // namespace korvel
