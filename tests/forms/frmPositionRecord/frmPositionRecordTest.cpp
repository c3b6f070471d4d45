// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/frmPositionRecord.h"

#include "forms/frmPositionRecord/PrintRecord.h"
#include "navlib/datetime.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QClipboard>
#include <QScrollArea>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::HasSubstr;
using ::testing::Not;

class frmPositionRecordTest : public WindowTest
{
protected:
    static std::string at(const char* array, int row)
    {
        return memberName(array, row).toStdString();
    }
    /// Types rows with one hand, from SMT of the first one on.
    static void typeRows(const QWidget& window, const std::string& keys)
    {
        whileTyping(window, "txtSatelliteSMT(0)", keys, "lblTotalDistance");
    }
    static constexpr const char* fourDays = "2024/5/1 1200\r9\r35\r142\r"
                                            "2024/5/2 1200\r10\r36.3\r148.15\r"
                                            "24/5/3-1200\r10\r38.05\r154.5\r"
                                            "2024/5/4 12:00\r11\r39.405\r161.372\r";
};

// Recomputed with the meridional parts of the sphere; hours by UTC across two clock changes.
TEST_F(frmPositionRecordTest, fourDaysWithOneHand)
{
    auto& window = open<frmPositionRecord>();
    typeRows(window, fourDays);
    EXPECT_EQ(focused(), "txtSatelliteSMT(4)");
    const std::pair<const char*, const char*> figures[] = {{"lblUTC", "2024/05/03 02:00"},
                                                           {"lblCourse", "<073.3>"},
                                                           {"lblDistance", "332.'3"},
                                                           {"lblHours", "23.0"},
                                                           {"lblSpeed", "14.45"}};
    for (const auto& [array, figure] : figures)
        EXPECT_EQ(text(window, at(array, 2)), figure);
    EXPECT_EQ(text(window, "lblTotalDistance"), "980.'5");
    EXPECT_EQ(text(window, "lblTotalHours"), "70.0");
    EXPECT_EQ(text(window, "lblAverageSpeed"), "14.01");
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuMemo(1)");
    EXPECT_NEAR(program().saved().singleMemo(), 980.5, 0.05);
}

TEST_F(frmPositionRecordTest, timesAreWrittenOutOnLeavingTheBox)
{
    clock.time = NavFunc113::MakeDateTime({2024, 5, 16}, 8 * 3600);
    auto& window = open<frmPositionRecord>();
    control(window, "txtSatelliteSMT(0)").setFocus();
    QTest::keyClicks(&control(window, "txtSatelliteSMT(0)"), "14-0930");
    EXPECT_EQ(text(window, "lblNotice"), "") << "no word while it is being typed";
    QTest::keyClick(&control(window, "txtSatelliteSMT(0)"), Qt::Key_Tab);
    EXPECT_EQ(text(window, "txtSatelliteSMT(0)"), "2024/05/14 09:30");
    type(window, "txtSatelliteSMT(1)", "25:00");
    EXPECT_EQ(text(window, "lblNotice"), "");
    control(window, "txtLat(1)").setFocus();
    EXPECT_EQ(text(window, "txtSatelliteSMT(1)"), "25:00") << "left as typed";
    EXPECT_THAT(text(window, "lblNotice"), HasSubstr("row 2: 25:00"));
    EXPECT_EQ(text(window, "lblRow(1)"), "2 !");
    type(window, "txtSatelliteSMT(2)", "0930");
    close(window);
    EXPECT_THAT(fileText("KV_Position Record.ini"), HasSubstr("\"2024/05/16 09:30\""));
    EXPECT_EQ(text(open<frmPositionRecord>(), "txtSatelliteSMT(1)"), "25:00") << "nothing is lost";
}

TEST_F(frmPositionRecordTest, enterGoesThroughTheRowsAndTheFocusStaysInSight)
{
    auto& window = open<frmPositionRecord>();
    window.resize(400, 300);
    QApplication::processEvents();
    for (const char* box : {"txtSatelliteSMT", "txtSatelliteTD", "txtLat", "txtLong"})
        control(window, at(box, 28)).setFocus(Qt::OtherFocusReason);
    auto& last = control(window, "txtLong(28)");
    QScrollArea* area = nullptr;
    for (auto* each : window.findChildren<QScrollArea*>())
        if (each->isAncestorOf(&last)) area = each;
    ASSERT_TRUE(area);
    const QRect seen(last.mapTo(area->viewport(), QPoint()), last.size());
    EXPECT_TRUE(area->viewport()->rect().contains(seen));
    QTest::keyClick(&last, Qt::Key_Return);
    EXPECT_EQ(focused(), "txtSatelliteSMT(0)");
    EXPECT_TRUE(area->viewport()->rect().contains(
        control(window, "txtSatelliteSMT(0)").mapTo(area->viewport(), QPoint())));
    for (const char* next :
         {"txtSatelliteTD(0)", "txtLat(0)", "txtLong(0)", "txtSatelliteSMT(1)"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(focused(), next);
    }
}

TEST_F(frmPositionRecordTest, rowsMoveAndComeBack)
{
    auto& window = open<frmPositionRecord>();
    typeRows(window, fourDays);
    control(window, "txtLat(1)").setFocus();
    choose(window, "mnuRecord(1)"); // insert
    EXPECT_EQ(text(window, "txtLat(1)"), "");
    EXPECT_EQ(text(window, "lblTotalDistance"), "980.'5") << "a row with gaps is stepped over";
    questions.willAnswer(Answer::Yes);
    control(window, "txtLong(4)").setFocus();
    choose(window, "mnuMemo(0)");
    control(window, "txtSatelliteTD(1)").setFocus();
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuRem(0)");
    EXPECT_EQ(text(window, "txtLat(1)"), "39.405");
    EXPECT_EQ(text(window, "txtLong(1)"), "161.372");
    choose(window, "mnuRecord(2)"); // delete
    EXPECT_EQ(text(window, "txtLat(1)"), "36.3");
    type(window, "txtLat(28)", "1");
    control(window, "txtLat(0)").setFocus();
    choose(window, "mnuRecord(1)");
    EXPECT_EQ(text(window, "txtLat(0)"), "35");
    EXPECT_THAT(text(window, "lblNotice"), HasSubstr("no row was inserted"));
    questions.willAnswer(Answer::No);
    choose(window, "mnuRecord(4)");
    EXPECT_EQ(text(window, "txtLat(0)"), "35");
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuRecord(4)");
    EXPECT_EQ(text(window, "txtLat(0)"), "");
    EXPECT_EQ(text(window, "lblTotalDistance"), "");
    choose(window, "mnuRecord(5)");
    EXPECT_EQ(text(window, "lblTotalDistance"), "980.'5") << "undone";
}

TEST_F(frmPositionRecordTest, copiesAndPrintsTheRecord)
{
    auto& window = open<frmPositionRecord>();
    typeRows(window, fourDays);
    type(window, "txtLat(6)", "<b>");
    choose(window, "mnuRecord(6)");
    const QString copied = QApplication::clipboard()->text();
    EXPECT_THAT(copied.toStdString(), HasSubstr("39°40.5'N\t161°37.2'E"));
    const std::string page = recordAsPage(copied, "2024/05/05 08:00 SMT").toStdString();
    EXPECT_THAT(page, HasSubstr("2024/05/05 08:00 SMT"));
    EXPECT_THAT(page, HasSubstr("<td>&lt;b&gt;</td>"));
    EXPECT_THAT(page, Not(HasSubstr("<b>")));
}

TEST_F(frmPositionRecordTest, aRowOutOfTimeIsMarkedAndTheCurrentFollowsTheLastTwo)
{
    auto& window = open<frmPositionRecord>();
    typeRows(window, "2024/5/1 1200\r9\r35\r142\r2024/5/2 1200\r10\r36.3\r148.15\r");
    type(window, "txtCourseSteered", "074");
    type(window, "txtSpeedSteered", "15");
    EXPECT_EQ(text(window, "lblSet"), "259");
    EXPECT_EQ(text(window, "lblDrift"), "26.'4 = 1.15 kn");
    type(window, "txtSatelliteSMT(1)", "2024/4/2 12:00");
    EXPECT_EQ(text(window, "lblRow(1)"), "2 !");
    EXPECT_EQ(text(window, "lblTotalDistance"), "");
}

} // namespace
} // namespace korvel
