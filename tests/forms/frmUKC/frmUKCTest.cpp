// SPDX-License-Identifier: MIT
#include "forms/frmUKC/frmUKC.h"

#include "shell/controls/Boxes.h"
#include "shell/controls/PictureBox.h"
#include "tests/forms/frmTIDE/TideFolder.h"
#include "tests/shell/ShellTesting.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class frmUKCTest : public WindowTest
{
protected:
    frmUKCTest()
    {
        EXPECT_TRUE(QDir(folder.path()).mkdir("Harmonic Constants"));
        for (const char* name : {"AF2005.txt", "constituents.txt", "stations.txt", "accuracy.txt",
                                 "Harmonic Constants/HC_Yokohama.txt"})
            writeFile(name, TideFolder::shipped().files.at(name));
    }

    static int valueIn(const frmUKC& window, const char* list)
    {
        return dynamic_cast<QComboBox&>(control(window, list)).currentIndex();
    }
    static Qt::Alignment alignmentOf(const frmUKC& window, const char* label)
    {
        return dynamic_cast<QLabel&>(control(window, label)).alignment();
    }

    /// The form as an officer goes through it: Enter from box to box, empty ones passed over.
    void fillByKeys(frmUKC& window)
    {
        type(window, "txtDraught(0)", "11.00\r");
        for (const char* text : {"", "10.80", "", "0.88", "", "32.2", "", "10", "3", "0.5", "1.005",
                                 "250", "13.7", "0.5", "0.6"})
            QTest::keyClicks(QApplication::focusWidget(), QString(text) + "\r");
        EXPECT_EQ(focused(), "txtMinimum(1)");
        type(window, "txtStation", "yokoh\r");
        for (const char* text : {"2005/5/5", "5:30"})
            QTest::keyClicks(QApplication::focusWidget(), QString(text) + "\r");
        EXPECT_EQ(focused(), "txtDraught(0)") << "round once";
    }
};

TEST_F(frmUKCTest, aPassageOverABarByKeysIsThereAgain)
{
    auto& window = open<frmUKC>();
    EXPECT_THAT(text(window, "lblKeel(0)"), IsEmpty());
    EXPECT_THAT(window.notice().toStdString(), IsEmpty()) << "nothing entered, nothing claimed";
    fillByKeys(window);
    EXPECT_EQ(text(window, "lblKeel(0)"), "0.97");
    EXPECT_EQ(text(window, "lblKeel(1)"), "+0.37");
    EXPECT_EQ(text(window, "lblKeel(2)"), "11.9");
    EXPECT_EQ(text(window, "lblHours(0)"),
              "Thu 5/5   00:00 to 06:53, 11:15 to 19:11, 23:16 to 24:00");
    // Every key, and back again.
    EXPECT_THAT(whileTyping(window, "txtKeelSpeed", "12\b", "lblKeel(5)"),
                ElementsAre("0.01", "1.27", "0.01"));
    type(window, "txtKeelSpeed", "10");
    auto* survey = qobject_cast<QComboBox*>(&control(window, "cboSurvey"));
    survey->setFocus();
    QTest::keyClick(survey, Qt::Key_Down);
    EXPECT_EQ(text(window, "lblKeel(14)"), "0.64") << "A1";
    EXPECT_THAT(window.notice().toStdString(), Not(HasSubstr("below the minimum")));
    QTest::keyClick(survey, Qt::Key_End);
    EXPECT_THAT(window.notice().toStdString(), HasSubstr("below the minimum")) << "C";

    EXPECT_EQ(valueIn(window, "cboSurvey"), 4);
    const std::string shownHours = text(window, "lblHours(6)");
    close(window);
    EXPECT_THAT(fileText("KV_UKC.ini"),
                ::testing::StartsWith("KORVEL2000 under-keel clearance 1\n"));
    auto& again = open<frmUKC>();
    EXPECT_EQ(text(again, "lblHours(6)"), shownHours);
    EXPECT_EQ(text(again, "txtTideDay"), "2005/5/5");
    EXPECT_EQ(valueIn(again, "cboSurvey"), 4);
    EXPECT_EQ(control(again, "lblKeel(3)").geometry().center().y(),
              control(again, "lblKeel(4)").geometry().center().y());
    // Figures stand below each other by their ends, words and hours by their beginnings.
    for (const char* figure : {"lblKeel(3)", "lblKeel(5)", "lblKeel(17)"})
        EXPECT_TRUE(alignmentOf(again, figure) & Qt::AlignRight) << figure;
    for (const char* words : {"lblKeel(4)", "lblKeel(19)", "lblHours(0)", "lblHours(6)"})
        EXPECT_TRUE(alignmentOf(again, words) & Qt::AlignLeft) << words;
}

/// The tide window may have extended its dates, or other files lie there now.
TEST_F(frmUKCTest, whoeverComesBackSeesTheFilesAsTheyAreNow)
{
    const std::string factors = fileText("AF2005.txt");
    writeFile("AF2005.txt", "");
    auto& window = open<frmUKC>();
    fillByKeys(window);
    EXPECT_THAT(text(window, "lblHours(0)"), IsEmpty());
    writeFile("AF2005.txt", factors);
    mainWindow().show();
    for (QWidget* each : {static_cast<QWidget*>(&mainWindow()), static_cast<QWidget*>(&window)}) {
        each->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(each));
    }
    type(window, "txtTideTime", "5:30");
    EXPECT_THAT(text(window, "lblHours(0)"), HasSubstr("Thu 5/5   00:00 to 06:53"));
}

TEST_F(frmUKCTest, theStationOfTheTideWindow)
{
    writeFile("KV_Tide.ini", "#TRUE#\r\n\"Yokohama\"\r\n\"2005/05/05\"\r\n");
    auto& window = open<frmUKC>();
    choose(window, "mnuKeel(0)");
    EXPECT_EQ(text(window, "txtStation"), "Yokohama");
    EXPECT_FALSE(window.notice().contains("no tide station"));
    choose(window, "mnuKeel(1)");
    EXPECT_THAT(text(window, "txtStation"), IsEmpty());
    for (const char* none : {"#FALSE#\r\n\"Brothers\"\r\n\"2005/05/05\"\r\n", "#TR", ""}) {
        writeFile("KV_Tide.ini", none);
        choose(window, "mnuKeel(0)");
        EXPECT_THAT(text(window, "txtStation"), IsEmpty());
        EXPECT_THAT(window.notice().toStdString(), HasSubstr("no tide station"));
    }
}

TEST_F(frmUKCTest, aDamagedRecordFillsWhatCanBeRead)
{
    writeFile("KV_UKC.ini", "KORVEL2000 under-keel clearance 1\ntxtDraught(0)=9.5\nnonsense\n"
                            "cboWater=3\ncboSurvey=-1\ntxtOfTomorrow=1\ntxtBlock=0.8\n");
    questions.willAnswer(Answer::Ok);
    auto& window = open<frmUKC>();
    ASSERT_EQ(questions.asked.size(), 1u);
    EXPECT_THAT(questions.asked[0], HasSubstr("line 3"));
    EXPECT_EQ(text(window, "txtDraught(0)"), "9.5");
    EXPECT_EQ(text(window, "txtBlock"), "0.8");
    EXPECT_EQ(valueIn(window, "cboWater"), 0);
    EXPECT_EQ(valueIn(window, "cboSurvey"), 0);
}

/// Every box answers in the line, and nothing that was typed is lost.
TEST_F(frmUKCTest, everyBoxAnswersInTheLine)
{
    auto& window = open<frmUKC>();
    fillByKeys(window);
    type(window, "txtShip(0)", "230");
    type(window, "txtShip(2)", "70000");
    type(window, "txtTide", "1");
    EXPECT_EQ(window.notice().toStdString(), "");
    std::size_t tried = 0;
    for (EntryBox* box : window.findChildren<EntryBox*>()) {
        const std::string name = box->objectName().toStdString();
        const QString was = box->text();
        // The time is asked for where no tide is typed.
        if (name == "txtTideTime") type(window, "txtTide", "");
        for (const char* bad : {"abc", "1e308", "-99999999", "99999999999", "1,2", "9/99/99"}) {
            box->setText(bad);
            EXPECT_THAT(window.notice().toStdString(), Not(IsEmpty())) << name << ": " << bad;
            ++tried;
        }
        program().saveRecords();
        EXPECT_THAT(fileText("KV_UKC.ini"), HasSubstr(name + "=9/99/99\n"));
        box->setText(was);
        type(window, "txtTide", "1");
        EXPECT_EQ(window.notice().toStdString(), "") << name;
    }
    EXPECT_EQ(tried, 24U * 6);
}

} // namespace
} // namespace korvel
