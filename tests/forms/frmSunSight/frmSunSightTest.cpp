// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/frmSunSight.h"

#include "forms/frmSunSight/SightPicture.h"
#include "tests/forms/frmSunSight/WorkedSights.h"
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
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class frmSunSightTest : public WindowTest
{
protected:
    static void record(const QWidget& window, const SightTexts& sight)
    {
        const std::string texts[] = {sight.date,       sight.time, sight.TD,
                                     sight.watchError, sight.Hs,   sight.indexError,
                                     sight.heightOfEye};
        for (int i = 0; i < 7; ++i)
            type(window, memberName("txtSunSight", i).toStdString(), texts[i]);
        click(window, "cmdRecord");
    }
    static QListWidget& list(const QWidget& window)
    {
        return static_cast<QListWidget&>(control(window, "lstSunSight"));
    }
};

TEST_F(frmSunSightTest, thePointerReadsThePosition)
{
    auto& window = open<frmSunSight>();
    type(window, "txtSunDR(0)", worked::track2020.latitude);
    type(window, "txtSunDR(1)", worked::track2020.longitude);
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
        SightTexts sight = worked::noon2020;
        sight.time = "15:3" + std::to_string(i);
        record(window, sight);
    }
    auto* area = window.findChild<QScrollArea*>();
    const QSize asked = area->widget()->minimumSizeHint();
    const QSize around = window.minimumSizeHint() - area->minimumSizeHint();
    const QSize frame(4, 30); // of a window manager
    EXPECT_LE(asked.width() + around.width() + frame.width(), 1024);
    EXPECT_LE(asked.height() + around.height() + frame.height(), 768);
    area->widget()->resize(asked);
    QApplication::processEvents();
    const QListWidget& sights = list(window);
    EXPECT_TRUE(sights.viewport()->rect().contains(sights.visualItemRect(sights.item(7))));
    EXPECT_GE(control(window, "picSunSight").height(), 240);
}

TEST_F(frmSunSightTest, aDamagedFileLosesNoSightAndNoBoxThatCanBeRead)
{
    {
        auto& window = open<frmSunSight>();
        type(window, "txtSunDR(0)", "14.020");
        record(window, worked::morning2020);
        record(window, worked::noon2020);
        close(window);
    }
    const std::string whole = fileText("KV_SunSight.ini");
    const std::size_t first = whole.find("\"SIGHT;");
    std::size_t head = 0; // a part of the boxes is lost, all else moves up
    for (int line = 0; line < 6; ++line)
        head = whole.find('\n', head) + 1;
    const std::string damages[] = {whole.substr(head, first + 150 - head), // short at both ends
                                   whole + "\"more\"\r\n",
                                   whole.substr(0, first) + "\"x\ny" + whole.substr(first)};
    for (const std::string& damaged : damages) {
        writeFile("KV_SunSight.ini", damaged);
        questions.willAnswer(Answer::Ok);
        auto& window = open<frmSunSight>();
        EXPECT_EQ(list(window).count(), 2) << damaged;
        EXPECT_THAT(text(window, "lblNotice"), HasSubstr("2 recorded sights"));
        const bool boxesWhole = damaged.starts_with(whole.substr(0, first));
        EXPECT_TRUE(!boxesWhole || text(window, "txtSunDR(0)") == "14.020") << damaged;
        for (const auto* box : window.findChildren<QLineEdit*>())
            EXPECT_FALSE(box->text().contains("SIGHT;")) << box->objectName().toStdString();
        type(window, "txtSunDR(0)", "14.020");
        close(window);
        EXPECT_THAT(fileText("KV_SunSight.ini"),
                    AllOf(HasSubstr("2020/12/17;11:45:11"), HasSubstr("2020/12/17;15:30:00")));
    }
}

} // namespace
} // namespace korvel
