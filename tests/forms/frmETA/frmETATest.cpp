// SPDX-License-Identifier: MIT
#include "forms/frmETA/frmETA.h"

#include "tests/shell/ShellTesting.h"

#include <QScrollBar>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::HasSubstr;

class frmETATest : public WindowTest
{
protected:
    /// From TD +9 to TD -5, 1000 miles.
    frmETA& openPassage()
    {
        auto& window = open<frmETA>();
        whileTyping(window, "txtTime(0)", "2024/1/1\r8:30\r2024/1/4\r22:00\r9\r-5\r1000\r10\r",
                    "lblSPD(0)");
        return window;
    }
    static QScrollBar& bar(const QWidget& window, const char* name)
    {
        return static_cast<QScrollBar&>(control(window, name));
    }
    bool isDimmed(const QWidget& window, const char* label)
    {
        return control(window, label).palette().color(QPalette::WindowText) ==
               program().colours().dimmed;
    }
};

TEST_F(frmETATest, theFirstOpeningOffersThePresentHourAndTheShipsTD)
{
    program().saved().setTD(-9.5F);
    clock.time = 38425.40625; // JST 2005-03-14 09:45 is 2005-03-13 15:15 at TD -9.5
    auto& window = open<frmETA>();
    EXPECT_EQ(text(window, "txtTime(0)"), "2005/3/13");
    EXPECT_EQ(text(window, "txtTime(1)"), "15:00");
    EXPECT_EQ(text(window, "txtTD(0)"), "-9.5");
    EXPECT_EQ(text(window, "lblNotice"), "") << "nobody has asked for a speed yet";
    QTest::keyClick(&control(window, "txtTime(0)"), '9');
    EXPECT_EQ(text(window, "txtTime(0)"), "9") << "the box that is opened with is selected";

    type(window, "txtTD(0)", "9");
    click(window, "cmdNOW");
    EXPECT_EQ(text(window, "txtTime(0)"), "2005/3/14") << "now, by the clock of the departure";
    EXPECT_EQ(text(window, "txtTime(1)"), "09:00");
}

TEST_F(frmETATest, theWholePassageWithOneHand)
{
    auto& window = openPassage();
    EXPECT_EQ(focused(), "txtTime(0)") << "Enter wraps";
    // 100 hours less 14 hours of clocks put back, by hand.
    EXPECT_EQ(text(window, "lblETA(0)"), "01/04 22:30LT");
    EXPECT_EQ(text(window, "lblSPD(4)"), "11.00 ");
    EXPECT_EQ(text(window, "lblETA(4)"), "01/04 13:24LT");
    EXPECT_EQ(text(window, "lblReqSpd"), "10.05");
}

TEST_F(frmETATest, whatDoesNotBelongToTheInputsIsDimmedAndNotStored)
{
    auto& window = openPassage();
    type(window, "txtTD(1)", "-55");
    EXPECT_TRUE(isDimmed(window, "lblETA(0)"));
    EXPECT_EQ(text(window, "lblNotice"), "TD at arrival is not within -12 to 12.") << "said once";
    questions.willAnswer(Answer::Ok);
    choose(window, "mnuETA(2)");
    EXPECT_THAT(questions.asked.back(), HasSubstr("NOT AVAILABLE"));
    type(window, "txtTD(1)", "-5");
    EXPECT_FALSE(isDimmed(window, "lblETA(0)"));
    EXPECT_EQ(text(window, "lblNotice"), "");
    type(window, "txtSpeed", "0");
    EXPECT_EQ(text(window, "lblSPD(0)") + text(window, "lblETA(4)"), "");
    EXPECT_FALSE(isDimmed(window, "lblReqSpd"));
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuETA(2)");
    EXPECT_EQ(program().saved().singleMemo(), 10.05);
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuETA(4)");
    EXPECT_EQ(text(window, "lblSPD(0)"), "10.05 ");
}

TEST_F(frmETATest, scrollBarsAndKeysMoveWhatWasTyped)
{
    auto& window = openPassage();
    bar(window, "scrDepTime").setValue(-9);
    EXPECT_EQ(text(window, "txtTime(0)") + " " + text(window, "txtTime(1)"), "2023/12/31 23:00");
    EXPECT_EQ(text(window, "lblETA(0)"), "01/04 13:00LT");
    bar(window, "scrDepTime").setValue(0);
    EXPECT_EQ(text(window, "txtTime(1)"), "8:30") << "nothing typed is lost";
    control(window, "txtTime(3)").setFocus();
    QTest::keyClick(&control(window, "txtTime(3)"), Qt::Key_PageUp);
    QTest::keyClick(&control(window, "txtTime(3)"), Qt::Key_Down);
    EXPECT_EQ(text(window, "txtTime(2)") + " " + text(window, "txtTime(3)"), "2024/1/5 21:00");
    type(window, "txtTime(3)", "7:00");
    EXPECT_EQ(bar(window, "scrArrTime").value(), 0);
    type(window, "txtTime(2)", "x");
    bar(window, "scrArrTime").setValue(5);
    EXPECT_EQ(text(window, "txtTime(2)"), "x");
    EXPECT_EQ(bar(window, "scrArrTime").value(), 0);

    type(window, "txtSpeed", "12.6");
    EXPECT_EQ(text(window, "lblSPD(0)"), "12.60 ") << "as typed, until the box is left";
    EXPECT_EQ(bar(window, "scrSpeed").value(), 50);
    QTest::keyClick(&control(window, "txtSpeed"), Qt::Key_Return);
    EXPECT_EQ(text(window, "txtSpeed"), "12.50");
    bar(window, "scrSpeed").setValue(51);
    EXPECT_EQ(text(window, "lblSPD(0)"), "12.75 ");
}

TEST_F(frmETATest, settingsOutliveTheWindow)
{
    close(openPassage());
    EXPECT_EQ(fileText("KV_ETA.ini"), "\"2024/1/1\"\r\n\"8:30\"\r\n\"2024/1/4\"\r\n\"22:00\"\r\n"
                                      "\"9\"\r\n\"-5\"\r\n\"1000\"\r\n\"10.00\"\r\n");
    auto& window = open<frmETA>();
    EXPECT_EQ(text(window, "lblETA(0)"), "01/04 22:30LT");
    EXPECT_EQ(bar(window, "scrSpeed").value(), 40);
}

} // namespace
} // namespace korvel
