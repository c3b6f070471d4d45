// SPDX-License-Identifier: MIT
#include "app/reading.h"
#include "app/shell/CalculatorWindow.h"
#include "tests/shell/ShellTesting.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QSignalSpy>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// A calculator of one box, to be opened from the menu.
class frmProbe : public CalculatorWindow
{
public:
    explicit frmProbe(Program& program) : CalculatorWindow(program, "frmCDDR", "Probe")
    {
        auto* box = new EntryBox(body());
        box->setObjectName("txtProbe");
        record().useTexts("KV_Probe.ini", {box});
        loadSettings();
    }
};

class MainWindowTest : public ::testing::Test
{
protected:
    std::unique_ptr<frmKORVEL2000> start()
    {
        auto window = std::make_unique<frmKORVEL2000>(
            Machine{questions, clock, files, bell},
            WindowCatalogue{{"mnuNAV", 1, "frmCDDR", "&Probe",
                             [](Program& program) { return new frmProbe(program); }}});
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

TEST_F(MainWindowTest, startsWithClocksMemosAndUnit)
{
    const auto window = start();
    EXPECT_EQ(window->windowTitle(), "KORVEL (9.0 hE)");
    EXPECT_THAT(text(*window, "lblTime"), HasSubstr("SMT 14-0945"));
    EXPECT_THAT(text(*window, "lblTime"), HasSubstr("UTC 14-0045"));
    EXPECT_EQ(text(*window, "lbl1NM"), "1nm=1' (of LATITUDE)");
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(isTicked(*window, "mnuSystemClock(0)"));
}

TEST_F(MainWindowTest, distanceUnitAndColoursGoBackAndForth)
{
    const auto window = start();
    QSignalSpy unit(&window->program(), &Program::distanceUnitChanged);
    choose(*window, "mnuDIST");
    EXPECT_FALSE(isTicked(*window, "mnuDIST"));
    EXPECT_EQ(window->program().earth(), NavFunc113::Earth::Spheroid);
    choose(*window, "mnuDIST");
    EXPECT_EQ(text(*window, "lbl1NM"), "1nm=1' (of LATITUDE)");
    EXPECT_EQ(unit.count(), 2);

    const auto clockColour = [&] {
        return control(*window, "lblTime").palette().color(QPalette::WindowText);
    };
    const QColor day = clockColour();
    choose(*window, "mnuBackColor");
    EXPECT_TRUE(isTicked(*window, "mnuBackColor"));
    EXPECT_NE(clockColour(), day);
    choose(*window, "mnuBackColor");
    EXPECT_EQ(clockColour(), day);
}

TEST_F(MainWindowTest, closingAsksAndNoKeepsEverything)
{
    const auto window = start();
    choose(*window, "mnuNAV(1)");
    EXPECT_TRUE(isTicked(*window, "mnuNAV(1)"));
    questions.willAnswer(Answer::No);
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList());

    QSignalSpy ended(window.get(), &frmKORVEL2000::ended);
    questions.willAnswer(Answer::Yes);
    window->close();
    EXPECT_EQ(ended.count(), 1);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files, QDir::Name),
              (QStringList{"KV_KORVEL.ini", "KV_Probe.ini"}));
}

TEST_F(MainWindowTest, aCalculatorOpensOnceAndUnticksItsEntryWhenItCloses)
{
    const auto window = start();
    choose(*window, "mnuNAV(1)");
    choose(*window, "mnuNAV(1)");
    std::vector<QWidget*> probes;
    for (QWidget* each : QApplication::topLevelWidgets())
        if (each->objectName() == "frmCDDR") probes.push_back(each);
    ASSERT_EQ(probes.size(), 1u);
    probes.front()->close();
    EXPECT_FALSE(isTicked(*window, "mnuNAV(1)"));
    EXPECT_TRUE(QFile::exists(folder.filePath("KV_Probe.ini")));
}

TEST_F(MainWindowTest, everythingIsAsItWasLeft)
{
    {
        const auto window = start();
        KV_Savedvalue& saved = window->program().saved();
        saved(23) = 35.305;
        saved(24) = -139.45;
        saved(25) = 4500.25;
        choose(*window, "mnuDIST");
        choose(*window, "mnuBackColor");
        choose(*window, "mnuSystemClock(2)");
        EXPECT_FALSE(isTicked(*window, "mnuSystemClock(0)"));
        EXPECT_THAT(text(*window, "lblTime"), HasSubstr("SMT 14-1845"));
        choose(*window, "mnuSystemClock(1)");
        questions.willType("-9.5");
        choose(*window, "mnuPROPERTY(3)");
        questions.willAnswer(Answer::Yes);
        choose(*window, "mnuEND");
    }
    const auto window = start();
    EXPECT_EQ(questions.offered.back(), "-9.5");
    EXPECT_EQ(window->windowTitle(), "KORVEL (9.5 hW)");
    EXPECT_EQ(text(*window, "lblMEMO"), "Position Memo  LATITUDE: 35.-30'5N, LONGITUDE: "
                                        "139.-45'0W\nSingle Memo:   4500.25");
    EXPECT_EQ(text(*window, "lbl1NM"), "1nm=1852m");
    EXPECT_TRUE(isTicked(*window, "mnuBackColor"));
    EXPECT_TRUE(isTicked(*window, "mnuSystemClock(1)"));
}

TEST_F(MainWindowTest, aDamagedFileIsReportedAndKept)
{
    ASSERT_EQ(files.save("KV_KORVEL.ini", "#TRUE#\r\n"), std::nullopt);
    questions.willAnswer(Answer::Ok);
    const auto window = start();
    EXPECT_THAT(questions.asked.back(), HasSubstr("KV_KORVEL.ini"));
    EXPECT_EQ(window->windowTitle(), "KORVEL (9.0 hE)");
    questions.willAnswer(Answer::Yes);
    choose(*window, "mnuEND");
    EXPECT_EQ(files.read("KV_KORVEL damaged 2005-03-14 0945.ini").bytes, "#TRUE#\r\n");
}

TEST_F(MainWindowTest, whatIsOutOfRangeInItsFileIsNamed)
{
    Record record = KV_Savedvalue().record();
    record[25] = -4.5;
    ASSERT_EQ(files.save("KV_KORVEL.ini", writeRecord(record)), std::nullopt);
    questions.willAnswer(Answer::Ok);
    const auto window = start();
    EXPECT_EQ(questions.asked.back(), "\"KV_KORVEL.ini\" holds values that are out of range and "
                                      "were not taken over:\rSingle Memo -4.5");
    EXPECT_EQ(window->program().saved().singleMemo(), 0);
}

TEST_F(MainWindowTest, anAlarmRingsWhileAnotherQuestionIsOpen)
{
    const auto window = start();
    const auto tickAt = [&](const char* time) {
        clock.time = readDateTime(time).value();
        window->tmrClock_Timer();
    };
    const auto alarmBox = [] {
        QMessageBox* found = nullptr;
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->objectName() == "alarmBox" && each->isVisible())
                found = qobject_cast<QMessageBox*>(each);
        return found;
    };
    for (const char* entry : {"mnuALARM(2)", "mnuALARM(3)"}) {
        questions.willAnswer(Answer::Yes);
        questions.willType("9:46");
        questions.willType(std::string("Boat deck ") + entry);
        questions.willAnswer(Answer::Yes);
        questions.willAnswer(Answer::Yes);
        choose(*window, entry);
    }
    EXPECT_EQ(window->findChild<QAction*>("mnuALARM(2)")->text(), "Alarm&2: 09:46");
    EXPECT_TRUE(isTicked(*window, "mnuALARM(2)"));

    questions.willAnswer(Answer::No, [&] { tickAt("2005/3/14 9:46:01"); });
    choose(*window, "mnuEND");
    ASSERT_NE(alarmBox(), nullptr);
    EXPECT_EQ(alarmBox()->text(), "09:46 Boat deck mnuALARM(2)");
    EXPECT_TRUE(bell.ringing);
    tickAt("2005/3/14 9:47");
    EXPECT_THAT(text(*window, "lblTime"), HasSubstr("SMT 14-0947")) << "the clocks go on";
    alarmBox()->accept();
    ASSERT_NE(alarmBox(), nullptr) << "the second alarm has waited";
    EXPECT_EQ(alarmBox()->text(), "09:46 Boat deck mnuALARM(3)");
    alarmBox()->accept();
    EXPECT_EQ(alarmBox(), nullptr);
    EXPECT_FALSE(bell.ringing);
}

TEST_F(MainWindowTest, aRefusedAlarmSetUpKeepsTheTick)
{
    const auto window = start();
    questions.willAnswer(Answer::No);
    choose(*window, "mnuALARM(1)");
    EXPECT_FALSE(isTicked(*window, "mnuALARM(1)"));
    questions.willAnswer(Answer::No);
    choose(*window, "mnuSIGNAL");
    EXPECT_FALSE(isTicked(*window, "mnuSIGNAL"));
}

TEST_F(MainWindowTest, aShipsTimeOffsetOutlivesTheRun)
{
    clock.refusal = "no right";
    {
        const auto window = start();
        questions.willAnswer(Answer::Yes);
        questions.willType("05/03/14 10:00");
        questions.willAnswer(Answer::Ok);
        questions.willType("9");
        questions.willAnswer(Answer::Ok);
        choose(*window, "mnuPROPERTY(1)");
        EXPECT_THAT(text(*window, "lblOffset"), HasSubstr("0 h 15 min 00 s ahead"));
        questions.willAnswer(Answer::Yes);
        choose(*window, "mnuEND");
    }
    const auto window = start();
    EXPECT_THAT(text(*window, "lblTime"), HasSubstr("SMT 14-1000"));
    EXPECT_FALSE(control(*window, "lblOffset").isHidden());
}

} // namespace
} // namespace korvel
