// SPDX-License-Identifier: MIT
#include "shell/main/AlarmBoxes.h"
#include "shell/window/CalculatorWindow.h"
#include "tests/shell/ShellTesting.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <set>

namespace korvel
{
namespace
{

using namespace korvel::testing;

/// A calculator of one box, to be opened from the menu.
class frmProbe : public CalculatorWindow
{
public:
    explicit frmProbe(Program& program) : CalculatorWindow(program, "frmProbe", "Probe")
    {
        static constexpr Field table[] = {{"txtProbe", "Probe", "Probe", "", FieldKind::Text}};
        fields = addFields(table);
        record().useTexts("KV_Probe.ini", fields.all());
        loadSettings();
    }
    FieldBoxes fields{{}, nullptr};
};

class MainWindowTest : public ::testing::Test
{
protected:
    std::unique_ptr<frmKORVEL2000> make()
    {
        return std::make_unique<frmKORVEL2000>(
            Machine{questions, clock, files, bell},
            WindowCatalogue{{"mnuNAV", 1, "frmProbe", "&Probe",
                             [](Program& program) { return new frmProbe(program); }}});
    }
    std::unique_ptr<frmKORVEL2000> start()
    {
        auto window = make();
        questions.willType(FakeQuestions::acceptDefault);
        window->start();
        return window;
    }

    QTemporaryDir folder;
    FakeQuestions questions;
    FakeClock clock;
    FakeBell bell;
    ProgramFolder files{folder.path()};
};

TEST_F(MainWindowTest, anAlarmRingsByTheStoredTDWhileTDIsAskedFor)
{
    const auto window = make();
    KV_Savedvalue& saved = window->program().saved();
    saved.setTD(8);
    saved.setAlarmTime(1, "08:45");
    saved.setAlarmEnabled(1, true);
    questions.willType("9", [&] { EXPECT_TRUE(QTest::qWaitFor([&] { return bell.ringing; })); });
    window->start();
    ASSERT_NE(shown("alarmBox"), nullptr);
    shown("alarmBox")->close();
}

/// An officer at work in a box; counts what he has let go.
struct Hand : QLineEdit {
    void keyReleaseEvent(QKeyEvent*) override { ++released; }
    int released = 0;
};

TEST(AlarmBoxes, aBoxStaysInFrontAndTakesTheKeyboardAfterItsFirstSecond)
{
    FakeBell bell;
    AlarmBoxes boxes(bell);
    Hand hand;
    hand.show();
    hand.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&hand));
    boxes.show({{"08:45", true}});
    QTest::keyPress(shown("alarmBox"), Qt::Key_7);
    EXPECT_EQ(hand.text(), "7");
    const QPointer<QWidget> first = shown("alarmBox");
    EXPECT_TRUE(QTest::qWaitFor([&] { return first.isNull(); }));
    EXPECT_EQ(shown("alarmBox")->windowModality(), Qt::ApplicationModal);
    EXPECT_TRUE(shown("alarmBox")->windowFlags() & Qt::WindowStaysOnTopHint);
    QTest::keyRelease(shown("alarmBox"), Qt::Key_7);
    EXPECT_EQ(hand.released, 1) << "a key that it saw go down";
    QTest::keyClick(shown("alarmBox"), Qt::Key_Return);
    EXPECT_EQ(shown("alarmBox"), nullptr);
}

/// A text that is no larger than any other, a title that is cut off; a button that a long comment
/// pushes off the screen.
TEST(AlarmBoxes, theTextIsTheLargestOfAllAndTheBoxStaysOnTheScreen)
{
    const auto boxOf = [](const std::string& text, const auto& look) {
        FakeBell bell;
        AlarmBoxes boxes(bell);
        boxes.show({{text, true}});
        const QWidget& box = *shown("alarmBox");
        look(box, box.findChild<QLabel*>("qt_msgbox_label")->font().pointSizeF());
    };
    const double answers = 2 * QApplication::font().pointSizeF();
    boxOf("08:45", [&](const QWidget& box, double points) {
        EXPECT_GT(points, answers);
        const QFontMetrics title = box.fontMetrics();
        const int signs = 7 * title.lineSpacing(); // its icon and buttons, as most desktops have
        EXPECT_GT(box.width(), title.horizontalAdvance(box.windowTitle()) + signs);
    });
    std::string comment = "08:45";
    for (int i = 0; i < 60; ++i)
        comment += " call the master";
    boxOf(comment, [&](const QWidget& box, double points) {
        EXPECT_LT(points, answers);
        EXPECT_TRUE(box.screen()->geometry().contains(box.frameGeometry()));
    });
    // As large as leaves room on the screen: two thirds of its width and half of its height, never
    // less than captions have.
    const double captions = answers / 2, largest = 2.5 * captions;
    std::set<double> sizes;
    for (int words = 1; words < 1000; words += words < 80 ? 6 : 400) {
        comment = "08:45";
        for (int i = 0; i < words; ++i)
            comment += " master";
        boxOf(comment, [&](const QWidget& box, double points) {
            const QSize screen = box.screen()->availableSize();
            const auto fits = [&](double size) {
                QFont letters = box.findChild<QLabel*>("qt_msgbox_label")->font();
                letters.setPointSizeF(size);
                const QSize taken = QFontMetrics(letters)
                                        .boundingRect(QRect(0, 0, screen.width() * 2 / 3, 1),
                                                      Qt::TextWordWrap, comment.c_str())
                                        .size();
                return taken.width() <= screen.width() * 2 / 3 &&
                       taken.height() <= screen.height() / 2;
            };
            EXPECT_TRUE(fits(points) || points == captions) << words;
            EXPECT_TRUE(points == largest || !fits(points + captions / 4)) << words;
            sizes.insert(points);
        });
    }
    EXPECT_GE(sizes.size(), 5u);
    EXPECT_EQ(*sizes.begin(), captions);
    EXPECT_EQ(*sizes.rbegin(), largest);
}

TEST_F(MainWindowTest, aWindowClosedAndChosenInOneBurstComesUpAnew)
{
    const auto window = start();
    const auto burst = [&] {
        choose(*window, "mnuNAV(1)");
        const QPointer<QWidget> first = shown("frmProbe");
        first->close();
        choose(*window, "mnuNAV(1)");
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(first.isNull());
        return shown("frmProbe");
    };
    ASSERT_NE(burst(), nullptr);
    EXPECT_TRUE(isTicked(*window, "mnuNAV(1)"));
    shown("frmProbe")->close();
    EXPECT_FALSE(isTicked(*window, "mnuNAV(1)"));
    burst();
    window->openWindow("frmNobody");
}

TEST_F(MainWindowTest, whatIsMinimisedIsRestoredWhenItIsChosenOrCalled)
{
    const auto window = start();
    choose(*window, "mnuNAV(1)");
    QWidget* probe = shown("frmProbe");
    ASSERT_NE(probe, nullptr);
    probe->showMinimized();
    window->openWindow("frmProbe");
    EXPECT_FALSE(probe->isMinimized());
    window->showMinimized();
    window->comeToFront();
    EXPECT_FALSE(window->isMinimized());
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == window.get(); }));
}

TEST_F(MainWindowTest, itsCrossAsks)
{
    const auto window = start();
    questions.willAnswer(Answer::No);
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_LE(window->findChild<QTimer*>("tmrClock")->interval(), 500) << "of a minute gone by";
}

TEST_F(MainWindowTest, theEndOfTheSessionWritesRecordsAndAsksNothing)
{
    const auto window = start();
    choose(*window, "mnuNAV(1)");
    type(*shown("frmProbe"), "txtProbe", "35");
    window->program().saved().setSingleMemo(12.5);
    QSignalSpy ended(window.get(), &frmKORVEL2000::ended);
    // The session ends under questions that would be asked again and again.
    questions.willAnswer(Answer::Yes);
    questions.willType("99", [&] { window->endSession(); });
    const float TD = window->program().saved().TD();
    window->program().shipsTime().setUp();
    window->program().shipsTime().inputTD();
    EXPECT_EQ(window->program().saved().TD(), TD) << "an answer that nobody gave";
    window->endSession();
    EXPECT_EQ(ended.count(), 1);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(shown("frmProbe"), nullptr);
    EXPECT_EQ(files.read("KV_Probe.ini").bytes, "\"35\"\r\n");
    EXPECT_THAT(files.read("KV_KORVEL recovery.ini").bytes, ::testing::HasSubstr("12.5"));
    EXPECT_EQ(files.look("KV_KORVEL.ini").status, FileStore::Content::Status::Missing);
}

} // namespace
} // namespace korvel
