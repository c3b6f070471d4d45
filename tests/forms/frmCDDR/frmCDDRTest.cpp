// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/frmCDDR.h"

#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QRadioButton>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class frmCDDRTest : public WindowTest
{
protected:
    static bool isChosen(const QWidget& window, int option)
    {
        const std::string name = "optNSEW(" + std::to_string(option) + ")";
        return static_cast<QRadioButton&>(control(window, name)).isChecked();
    }
    static void press(QWidget& widget, QKeySequence::StandardKey key)
    {
        QTest::keySequence(&widget, QKeySequence(key));
    }
};

TEST_F(frmCDDRTest, resultsFollowEveryKey)
{
    auto& window = open<frmCDDR>();
    EXPECT_THAT(whileTyping(window, "txtCDDR(2)", "99\b", "lblCDDR(0)"),
                ElementsAre("<000.0>", "", "<000.0>"));
    EXPECT_THAT(whileTyping(window, "txtCDDR(4)", "-8", "lblCDDR(2)"), ElementsAre("", "08-.00'0S"))
        << "a lone minus is no number";
    type(window, "txtCDDR(7)", "10801");
    EXPECT_EQ(text(window, "lblCDDR(2)"), "");
    EXPECT_EQ(text(window, "lblCDDR(0)"), "<000.0>") << "the other calculator goes on";
}

TEST_F(frmCDDRTest, theWholeCaseWithOneHand)
{
    auto& window = open<frmCDDR>();
    // Course and distance recomputed by hand with the meridional parts of the sphere.
    whileTyping(window, "txtCDDR(0)", "35.08\r139.46\r37.45\r-122.42\r35.08\r139.46\r88.1\r600\r",
                "lblCDDR(1)");
    EXPECT_EQ(focused(), "txtCDDR(0)") << "Enter wraps";
    EXPECT_EQ(text(window, "lblCDDR(0)"), "<088.1>");
    EXPECT_EQ(text(window, "lblCDDR(1)"), "4730'.0");
    EXPECT_TRUE(isChosen(window, 7)) << "W for -122.42";
    EXPECT_EQ(text(window, "echo txtCDDR(3)"), "122°42.0' W");

    click(window, "cmdCDDR(0)");
    EXPECT_EQ(text(window, "txtCDDR(4)"), "35.279");
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuMemo(5)");
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuMemo(3)");
    EXPECT_NEAR(program().saved().singleMemo(), 4730.0, 0.05);
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuRem(0)");
    EXPECT_EQ(text(window, "txtCDDR(0)").substr(0, 5), "35.47");
    questions.willAnswer(Answer::No);
    choose(window, "mnuRem(4)");
    EXPECT_EQ(text(window, "txtCDDR(7)"), "600");
}

TEST_F(frmCDDRTest, focusSelectsAllAlsoByMouse)
{
    auto& window = open<frmCDDR>();
    type(window, "txtCDDR(2)", "35.305");
    control(window, "txtCDDR(1)").setFocus();
    click(window, "txtCDDR(2)");
    EXPECT_EQ(static_cast<QLineEdit&>(control(window, "txtCDDR(2)")).selectedText(), "35.305");
    QTest::keyClick(&control(window, "txtCDDR(2)"), '1');
    EXPECT_EQ(text(window, "txtCDDR(2)"), "1");
}

TEST_F(frmCDDRTest, anAlarmInTheMiddleOfANumberLosesNothing)
{
    auto& window = open<frmCDDR>();
    type(window, "txtCDDR(0)", "35.");
    QMessageBox alarm;
    alarm.setWindowModality(Qt::ApplicationModal);
    alarm.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&alarm));
    alarm.accept();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&control(window, "txtCDDR(0)"), '5');
    EXPECT_EQ(text(window, "txtCDDR(0)"), "35.5");
}

TEST_F(frmCDDRTest, hemispheresAndSignsKeepInStep)
{
    auto& window = open<frmCDDR>();
    type(window, "txtCDDR(0)", "35.305");
    click(window, "optNSEW(1)");
    EXPECT_EQ(text(window, "txtCDDR(0)"), "-35.305");
    type(window, "txtCDDR(0)", "12");
    EXPECT_TRUE(isChosen(window, 0));
    type(window, "txtCDDR(1)", "0");
    click(window, "optNSEW(3)");
    EXPECT_EQ(text(window, "txtCDDR(1)"), "0");
    EXPECT_TRUE(isChosen(window, 3)) << "0 has no sign, the choice is kept";
}

TEST_F(frmCDDRTest, dataEntriesMovePositions)
{
    auto& window = open<frmCDDR>();
    const auto boxes = [&] {
        std::vector<std::string> all;
        for (int i = 0; i < 6; ++i)
            all.push_back(text(window, "txtCDDR(" + std::to_string(i) + ")"));
        return all;
    };
    type(window, "txtCDDR(0)", "1");
    type(window, "txtCDDR(1)", "2");
    type(window, "txtCDDR(2)", "3");
    type(window, "txtCDDR(3)", "4");
    choose(window, "mnuData(4)");
    EXPECT_THAT(boxes(), ElementsAre("3", "4", "1", "2", "", ""));
    choose(window, "mnuData(1)");
    EXPECT_THAT(boxes(), ElementsAre("3", "4", "1", "2", "3", "4"));
    choose(window, "mnuData(2)");
    EXPECT_THAT(boxes(), ElementsAre("3", "4", "1", "2", "1", "2"));
    choose(window, "mnuData(3)");
    EXPECT_THAT(boxes(), ElementsAre("1", "2", "1", "2", "1", "2"));
    type(window, "txtCDDR(6)", "180");
    type(window, "txtCDDR(7)", "90");
    choose(window, "mnuData(5)");
    EXPECT_THAT(boxes(), ElementsAre("1", "2", "-0.300", "2.000", "1", "2"));
    choose(window, "mnuAC(1)");
    EXPECT_THAT(boxes(), ElementsAre("1", "2", "-0.300", "2.000", "", ""));
}

TEST_F(frmCDDRTest, pastesAndCopiesPositions)
{
    auto& window = open<frmCDDR>();
    QClipboard* clipboard = QApplication::clipboard();
    clipboard->setText("35°30.5'S  139-45.2W");
    control(window, "txtCDDR(0)").setFocus(Qt::TabFocusReason);
    press(control(window, "txtCDDR(0)"), QKeySequence::Paste);
    EXPECT_EQ(text(window, "txtCDDR(0)"), "-35.305");
    EXPECT_EQ(text(window, "txtCDDR(1)"), "-139.452");
    press(control(window, "echo txtCDDR(1)"), QKeySequence::Copy);
    EXPECT_EQ(clipboard->text(), "35°30.5'S 139°45.2'W");

    type(window, "txtCDDR(4)", "35.5996");
    press(control(window, "lblCDDR(2)"), QKeySequence::Copy);
    EXPECT_EQ(clipboard->text(), "36°00.0'N 000°00.0'E") << "nobody is left with 60 minutes";
    type(window, "txtCDDR(4)", "35.75");
    EXPECT_EQ(text(window, "echo txtCDDR(4)"), "36°15.0' N (minutes 75)");
    clipboard->setText("7 miles south of the light\nand more");
    press(control(window, "txtCDDR(4)"), QKeySequence::Paste);
    EXPECT_THAT(text(window, "echo txtCDDR(4)"), HasSubstr("7"));
}

TEST_F(frmCDDRTest, faultsAreSaidInTheNoticeLine)
{
    auto& window = open<frmCDDR>();
    type(window, "txtCDDR(0)", "-90");
    EXPECT_EQ(text(window, "lblCDDR(1)"), "");
    EXPECT_THAT(text(window, "lblNotice"), HasSubstr("Course and distance"));
    type(window, "txtCDDR(0)", "-9");
    EXPECT_EQ(text(window, "lblNotice"), "");
    EXPECT_EQ(text(window, "lblCDDR(1)"), "540'.0");
}

TEST_F(frmCDDRTest, settingsOutliveTheWindow)
{
    type(open<frmCDDR>(), "txtCDDR(0)", "35.305");
    {
        auto& window = open<frmCDDR>();
        type(window, "txtCDDR(0)", "1,5");
        type(window, "txtCDDR(7)", "\"x");
        close(window);
    }
    EXPECT_EQ(fileText("KV_CDDR.ini"),
              "\"1,5\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"'x\"\r\n");
    writeFile("KV_CDDR.ini",
              "\"10\"\r\n20\r\n\"11\"\r\n\"20\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
    EXPECT_EQ(text(open<frmCDDR>(), "lblCDDR(1)"), "60'.0");

    const std::string damaged = "\"10\"\r\n\"20\"\r\n\"11\"\r\n\"2";
    writeFile("KV_CDDR.ini", damaged);
    questions.willAnswer(Answer::Ok);
    auto& window = open<frmCDDR>();
    EXPECT_THAT(questions.asked.back(), HasSubstr("KV_CDDR.ini"));
    EXPECT_EQ(text(window, "txtCDDR(2)"), "11") << "what can be read is shown";
    EXPECT_EQ(text(window, "txtCDDR(3)"), "");
    EXPECT_EQ(fileText("KV_CDDR.ini"), damaged) << "looking changes nothing";
    close(window);
    EXPECT_EQ(fileText("KV_CDDR damaged 2005-03-14 0945.ini"), damaged);
    EXPECT_THAT(fileText("KV_CDDR.ini"), HasSubstr("\"11\"\r\n\"\"\r\n"));
}

} // namespace
} // namespace korvel
