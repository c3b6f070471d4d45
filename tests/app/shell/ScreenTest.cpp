// SPDX-License-Identifier: MIT
#include "app/shell/ResultLabel.h"
#include "tests/shell/WholeProgram.h"

namespace korvel
{
namespace
{

using namespace korvel::testing;

/// Size and place of everything.
class ScreenTest : public WholeProgram
{
};

/// No figure may have less room than it needs.
void expectTextsFit(QWidget& window, int zoom)
{
    for (auto* label : window.findChildren<ResultLabel*>()) {
        if (!label->isVisible() || label->text().trimmed().isEmpty() || label->wordWrap() ||
            label->text().contains('\n') ||
            label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored ||
            label->text().size() > 60)
            continue;
        EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width() + 2)
            << zoom << " %: " << nameOf(*label) << " " << label->text().toStdString();
    }
}

TEST_F(ScreenTest, everyWindowAtEveryZoom)
{
    const auto windows = openAll();
    const QSize before = main.size();
    for (int zoom : ScreenChoices::zoomSteps()) {
        while (main.program().screen().choices().zoom != zoom)
            main.program().screen().zoom(main.program().screen().choices().zoom < zoom ? 1 : -1);
        QTest::qWait(20);
        for (QWidget* each : windows) {
            expectTextsFit(*each, zoom);
            if (zoom != 200) continue;
            each->resize(1024 - 8, 768 - 34); // with a frame
            QApplication::processEvents();
            EXPECT_LE(each->width(), 1024) << nameOf(*each);
            EXPECT_LE(each->height(), 768) << nameOf(*each);
        }
    }
    main.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    QTest::keyClick(&main, Qt::Key_0, Qt::ControlModifier);
    QTest::qWait(20);
    EXPECT_EQ(main.size(), before);
    EXPECT_LE(before.width(), 480);
    EXPECT_LE(before.height(), 170);
}

TEST_F(ScreenTest, windowsStandWhereTheyWere)
{
    const QRect place(60, 70, 520, 420);
    QWidget& wind = window("frmWind");
    wind.setGeometry(place);
    wind.close();
    EXPECT_EQ(window("frmWind").geometry(), place);
    // A screen that is gone, and a window larger than the screen.
    window("frmETA").close();
    main.program().screen().keepPlace("frmETA", {5000, -4000, 3000, 2500, 100, false});
    const QRect screen = main.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window("frmETA").geometry()));
    onScreen("frmETA").close();
    choose(main, "mnuReopen");
    choose(main, "mnuClockOnTop");
    EXPECT_TRUE(main.isVisible());
    main.endSession();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    questions.willType(FakeQuestions::acceptDefault);
    frmKORVEL2000 next({questions, clock, files, bell}, calculatorWindows());
    next.start();
    EXPECT_EQ(onScreen("frmWind").geometry(), place);
    EXPECT_TRUE(isTicked(next, "mnuWATCH(4)"));
    EXPECT_TRUE(next.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_FALSE(isTicked(next, "mnuWATCH(3)"));
    next.endSession();
}

} // namespace
} // namespace korvel
