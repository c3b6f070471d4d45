// SPDX-License-Identifier: MIT
#include "forms/frmPassage/frmPassage.h"

#include "forms/frmCDDR/frmCDDR.h"
#include "forms/frmETA/frmETA.h"
#include "forms/frmGC2000/frmGC2000.h"
#include "forms/frmPassage/PlanRecord.h"
#include "forms/frmPassage/PlanTable.h"
#include "navlib/angles.h"
#include "tests/SourceFolder.h"
#include "tests/shell/ShellTesting.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;

/// The window of the passage plan, and an officer's hands in it.
class frmPassageTest : public WindowTest
{
protected:
    /// Types rows as the officer does: boxes parted by commas in their Enter order, Enter behind
    /// each row.
    static void typeRows(frmPassage& window, const std::vector<std::vector<std::string>>& rows)
    {
        constexpr const char* boxes[] = {"txtWaypoint", "txtWpLat", "txtWpLong", "txtLegSpeed",
                                         "txtStop",     "txtZone",  "txtRemark"};
        for (const auto& row : rows) {
            for (std::size_t i = 0; i < row.size(); ++i)
                if (!row[i].empty()) type(window, boxes[i], row[i]);
            if (&row == &rows.back()) continue;
            control(window, "txtRemark").setFocus(Qt::TabFocusReason);
            QTest::keyClick(&control(window, "txtRemark"), Qt::Key_Return);
        }
    }

    PassagePlan onDisk()
    {
        program().saveRecords();
        return readPlanRecord(fileText("KV_Passage.ini")).plan;
    }

    static std::string cell(const frmPassage& window, int row, int column, int line = 0)
    {
        const auto& table = static_cast<PlanTable&>(control(window, "tblPlan"));
        const QModelIndex at = table.model()->index(row, column);
        return at.data(line == 0 ? int(Qt::DisplayRole) : int(Qt::UserRole))
            .toString()
            .toStdString();
    }
};

/// A record that is damaged is asked about, and the table painted behind the question.
TEST_F(frmPassageTest, theTableIsPaintedBeforeItFollows)
{
    PlanInHand work({});
    PlanTable table(program(), work);
    PassagePlan plan;
    plan.rows.resize(3);
    plan.rows.front().name = "Nojima";
    work.take(plan);
    table.resize(900, 300);
    table.grab();
    EXPECT_EQ(table.model()->index(0, 1).data().toString(), "");
    std::string sides;
    for (int column = 0; column < PlanTable::Columns; ++column)
        sides += table.model()->index(0, column).data(Qt::TextAlignmentRole).toInt() & Qt::AlignLeft
                     ? "left "
                     : "right ";
    EXPECT_EQ(sides, "right left right left right right right right right ");
}

TEST_F(frmPassageTest, voyageOfThirteenDaysAcross180)
{
    auto& window = open<frmPassage>();
    EXPECT_EQ(text(window, "lblArrival"), "");
    EXPECT_EQ(window.notice(), "");
    type(window, "txtPlanTime", "2038/7/23 13:30");
    click(window, "optClock(1)");
    typeRows(window, {{"A", "0", "140", "", "", "9"}, {"B", "0", "-149.15", "", "", "-8"}});
    EXPECT_THAT(whileTyping(window, "txtLegSpeed", "13.6", "lblArrival"),
                ElementsAre("Sat 2039/01/15 17:30", "Thu 2038/08/05 11:02", "Thu 2038/08/05 11:02",
                            "Wed 2038/08/04 20:38"));
    EXPECT_EQ(text(window, "lblArrivalUTC"), "TD -8 (ZD +8); UTC Thu 2038/08/05 04:38");
    EXPECT_EQ(text(window, "lblPlan(1)"), "4245.0");
    EXPECT_EQ(text(window, "lblPlan(2)"), "13 d 00 h 08 m");
    EXPECT_EQ(text(window, "lblPlan(6)"), "17 h 00 m back");
    EXPECT_EQ(cell(window, 1, PlanTable::Course), "090.0");
    EXPECT_EQ(cell(window, 1, PlanTable::Zone, 1), "17 h back");
}

TEST_F(frmPassageTest, aStopMovesWhatFollows)
{
    auto& window = open<frmPassage>();
    type(window, "txtPlanTime", "2026/11/10 8:00");
    click(window, "optClock(1)");
    typeRows(window,
             {{"A", "0", "0", "", "", "9"}, {"B", "2", "0", "12", "6"}, {"C", "3.3", "0", "10"}});
    std::string row;
    for (int column = 0; column < PlanTable::Columns; ++column)
        row += cell(window, 1, column) + "/" + cell(window, 1, column, 1) + "; ";
    EXPECT_EQ(row, "2/; B/; 02°00.0'N/000°00.0'E; rhumb/; 000.0/; 120.0/90.0; 12.0/10 h 00 m; "
                   "Tue 2026/11/10 18:00/Tue 2026/11/10 09:00; +9/; ");
    EXPECT_EQ(cell(window, 1, PlanTable::Arrival), "Tue 2026/11/10 18:00");
    EXPECT_EQ(text(window, "lblArrival"), "Wed 2026/11/11 09:00");
    std::vector<std::string> totals(7);
    for (int i = 0; i < 7; ++i)
        totals[static_cast<std::size_t>(i)] = text(window, memberName("lblPlan", i).toStdString());
    EXPECT_THAT(totals, ElementsAre("Tue 2026/11/10 08:00; UTC Mon 23:00", "210.0", "19 h 00 m",
                                    "06 h 00 m", "1 d 01 h 00 m", "0.0", ""));
    QTest::keyClick(&control(window, "txtRemark"), Qt::Key_Up);
    EXPECT_EQ(text(window, "txtWaypoint"), "B");
    EXPECT_EQ(text(window, "lblRow(1)"), "Wed 2026/11/11 00:00");
    EXPECT_EQ(text(window, "lblToGo"), "90.0");
    // The second row three hours earlier: 120 miles in 7 hours.
    type(window, "txtWish(1)", "2");
    type(window, "txtWish(2)", "2026/11/10 15:00");
    EXPECT_EQ(text(window, "lblSpeedNeeded"), "17.14");
    EXPECT_EQ(text(window, "lblSpeedFor"), "row 1 to 2, Tue 2026/11/10 15:00 TD +9 (ZD -9)");
    const auto& table = static_cast<PlanTable&>(control(window, "tblPlan"));
    EXPECT_EQ(table.currentIndex().row(), 1) << "the row in hand";
    for (const auto count : {&QAbstractItemModel::rowCount, &QAbstractItemModel::columnCount})
        EXPECT_EQ((table.model()->*count)(table.currentIndex()), 0) << "a list, and no tree";
    type(window, "txtWish(1)", "9");
    EXPECT_EQ(text(window, "lblSpeedNeeded"), "");
    EXPECT_EQ(text(window, "lblSpeedFor"), "there is no such row");
    EXPECT_EQ(onDisk().wish.time, "2026/11/10 15:00");
}

TEST_F(frmPassageTest, bothLinesOfAPositionAreCopied)
{
    auto& window = open<frmPassage>();
    typeRows(window, {{"A", "0", "0"}, {"B", "2", "0.3"}});
    auto& table = static_cast<PlanTable&>(control(window, "tblPlan"));
    const auto copied = [&table](int column) {
        table.setCurrentIndex(table.model()->index(1, column));
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QApplication::sendEvent(&table, &asked);
        auto* menu = table.findChild<QMenu*>();
        menu->actions().at(2)->trigger(); // what it is and a line stand above
        delete menu;
        return QApplication::clipboard()->text();
    };
    EXPECT_EQ(copied(PlanTable::Position), "02°00.0'N 000°30.0'E");
    EXPECT_EQ(copied(PlanTable::Distance), "123.7") << "the first of two figures";
}

TEST_F(frmPassageTest, everyStepIsTakenBackAndDoneAgain)
{
    auto& window = open<frmPassage>();
    const QAbstractItemModelTester tester(
        static_cast<PlanTable&>(control(window, "tblPlan")).model(),
        QAbstractItemModelTester::FailureReportingMode::Fatal);
    typeRows(window, {{"A", "0", "0"}, {"B", "1", "0"}, {"C", "2", "0"}});
    const auto names = [&] {
        std::string all;
        for (int row = 0; row < 4; ++row)
            all += cell(window, row, PlanTable::Waypoint);
        return all;
    };
    std::vector<std::string> seen = {names()}, inHand;
    for (const char* entry :
         {"mnuRow(2)" /* up */, "mnuRow(0)" /* insert */, "mnuPlan(8)" /* reverse */,
          "mnuRow(3)" /* down */, "mnuRow(1)" /* delete */, "mnuPlan(0)" /* new */}) {
        choose(window, entry);
        seen.push_back(names());
        inHand.push_back(text(window, "txtWaypoint"));
    }
    EXPECT_THAT(seen, ElementsAre("ABC", "ACB", "ACB", "BCA", "CBA", "CA", ""));
    EXPECT_THAT(inHand, ElementsAre("C", "", "B", "B", "A", ""));
    for (std::size_t i = seen.size() - 1; i-- > 0;) {
        choose(window, "mnuPlan(9)");
        EXPECT_EQ(names(), seen[i]) << i;
    }
    for (std::size_t i = 1; i < seen.size(); ++i) {
        choose(window, "mnuPlan(10)");
        EXPECT_EQ(names(), seen[i]) << i;
    }
    choose(window, "mnuPlan(9)"); // what was there
    type(window, "txtWaypoint", "Dee");
    QTest::keyClick(&control(window, "txtWaypoint"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(window, "txtWaypoint"), "C") << "the keys in a box are one step";
    type(window, "txtWaypoint", "Dee");
    type(window, "txtRemark", "wait");
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(&control(window, "txtRemark"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(window, "txtWaypoint"), "C") << "of whatever box it was";
}

TEST_F(frmPassageTest, rowsOfASpreadsheetArePasted)
{
    auto& window = open<frmPassage>();
    QApplication::clipboard()->setText("Uraga\t35-13.0N\t139-47.0E\nCape; one\t34°52.0'N\t"
                                       "139°57.0'E\n");
    QTest::keyClick(&control(window, "txtWaypoint"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(cell(window, 0, PlanTable::Waypoint), "Uraga");
    EXPECT_EQ(cell(window, 1, PlanTable::Position), "34°52.0'N");
    EXPECT_EQ(cell(window, 1, PlanTable::Distance), "22.6");
    control(window, "tblPlan").setFocus(Qt::TabFocusReason);
    QApplication::clipboard()->setText("name\tlat\tlon\teta_utc\nC\t0\t0\t2026-01-01T00:00:00Z\n"
                                       "D\t1\t0\t2026-01-01T06:00:00Z\n");
    QTest::keyClick(&control(window, "tblPlan"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(onDisk().rows.size(), 4u);
    EXPECT_EQ(onDisk().rows[1].speed, "10");
    EXPECT_THAT(window.notice().toStdString(),
                HasSubstr("2 rows pasted; speeds were worked out from the times of the file"));
    questions.willAnswer(Answer::Ok);
    QApplication::clipboard()->setText("X\t35\t139\nY\t95\t139\n");
    choose(window, "mnuRow(4)");
    EXPECT_THAT(questions.asked.back(), AllOf(HasSubstr("line 2"), HasSubstr("as it was")));
    EXPECT_EQ(onDisk().rows.size(), 4u);
}

TEST_F(frmPassageTest, everyFormatIsSavedUnderItsEnding)
{
    auto& window = open<frmPassage>();
    type(window, "txtPlan", "Ocean");
    typeRows(window, {{"A", "0", "0"}, {"B", "1", "0", "10"}});
    for (const auto& [entry, ending, part] : {std::tuple{"mnuPlan(2)", ".rtz", "version=\"1.1\""},
                                              {"mnuPlan(3)", ".rtz", "version=\"1.0\""},
                                              {"mnuPlan(4)", ".rtz", "version=\"1.2\""},
                                              {"mnuPlan(5)", ".gpx", "<rtept"},
                                              {"mnuPlan(6)", ".csv", "A,0.0000000,0.0000000,"}}) {
        questions.willType(folder.filePath("saved").toStdString());
        choose(window, entry);
        EXPECT_THAT(questions.offered.back(), AllOf(HasSubstr("Ocean"), EndsWith(ending)));
        EXPECT_THAT(fileText("saved"), HasSubstr(part)) << entry;
        EXPECT_THAT(window.notice().toStdString(), HasSubstr("Saved as saved"));
    }
    type(window, "txtWpLong", "");
    questions.willAnswer(Answer::Ok);
    choose(window, "mnuPlan(2)");
    EXPECT_EQ(questions.asked.back(),
              "Nothing was saved: Row 2 has no position.\rThe plan is as it was.");
    choose(window, "mnuPlan(7)");
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(), HasSubstr("\n2\tB\t1\t\t"));
}

TEST_F(frmPassageTest, aFileThatCannotBeTakenChangesNothing)
{
    auto& window = open<frmPassage>();
    typeRows(window, {{"A", "0", "0"}, {"B", "1", "0", "10"}});
    const PassagePlan before = onDisk();
    const std::string entities =
        newFile("entity.rtz",
                "<?xml version=\"1.0\"?><!DOCTYPE r [<!ENTITY x SYSTEM \"file:///etc/passwd\">]>"
                "<route>&x;</route>");
    const std::string twice = newFile(
        "twice.rtz", "<?xml version=\"1.0\"?>\n<route version=\"1.0\" "
                     "xmlns=\"http://www.cirm.org/RTZ/1/0\">\n<routeInfo routeName=\"r\"/>\n"
                     "<waypoints>\n<waypoint id=\"1\"><position lat=\"1\" lon=\"2\"/>"
                     "</waypoint>\n<waypoint id=\"1\"><position lat=\"2\" lon=\"2\"/>"
                     "</waypoint>\n</waypoints></route>");
    for (const auto& [path, fault] : {std::pair(entities, "line 1"),
                                      {twice, "line 6"},
                                      {folder.path().toStdString(), "no ordinary file"}}) {
        questions.willType(path);
        questions.willAnswer(Answer::Ok);
        choose(window, "mnuPlan(1)");
        EXPECT_THAT(questions.asked.back(), HasSubstr(fault));
        EXPECT_EQ(onDisk(), before);
    }
}

/// Two great circles, a composite leg, two stops, four changes of clocks, in 40 rows.
TEST_F(frmPassageTest, anOceanPassageComesBackFromEveryFormatThatCanSayIt)
{
    auto& window = open<frmPassage>();
    type(window, "txtPlanTime", "2026/11/20 3:00");
    QApplication::clipboard()->setText(
        QString::fromStdString(contentOf(sourceFile("tests/forms/frmPassage/ocean-passage.csv"))));
    choose(window, "mnuRow(4)");
    type(window, "txtPlan", "Ocean");
    const PassagePlan plan = onDisk();
    ASSERT_EQ(plan.rows.size(), 40u);
    const std::string arrival = text(window, "lblArrival");
    EXPECT_NE(arrival, "");
    const std::string distance = text(window, "lblPlan(1)");
    for (const auto& [entry, file] :
         {std::pair("mnuPlan(2)", "p.rtz"), {"mnuPlan(4)", "p12.rtz"}}) {
        const std::string path = folder.filePath(file).toStdString();
        questions.willType(path);
        choose(window, entry);
        choose(window, "mnuPlan(0)");
        EXPECT_EQ(text(window, "lblArrival"), "");
        questions.willType(path);
        choose(window, "mnuPlan(1)");
        PassagePlan again = onDisk();
        EXPECT_EQ(text(window, "lblArrival"), arrival) << file;
        EXPECT_EQ(text(window, "lblPlan(1)"), distance) << file;
        ASSERT_EQ(again.rows.size(), 40u);
        for (std::size_t i = 0; i < again.rows.size(); ++i) {
            again.rows[i].kept.clear();
            EXPECT_EQ(again.rows[i].name, plan.rows[i].name);
            EXPECT_EQ(again.rows[i].leg, plan.rows[i].leg) << i;
            EXPECT_EQ(again.rows[i].zone, plan.rows[i].zone) << i;
            EXPECT_EQ(again.rows[i].remark, plan.rows[i].remark) << i;
        }
    }
}

TEST_F(frmPassageTest, aFileDroppedOnABoxIsOpened)
{
    auto& window = open<frmPassage>();
    const std::string path = newFile("drop.csv", "A,1,2\nB,2,2\n");
    QMimeData dropped;
    dropped.setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
    QDragEnterEvent comes({2, 2}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&control(window, "txtWaypoint"), &comes);
    EXPECT_TRUE(comes.isAccepted());
    QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&control(window, "txtWaypoint"), &drop);
    QApplication::processEvents();
    EXPECT_EQ(cell(window, 1, PlanTable::Distance), "60.0");
    EXPECT_EQ(text(window, "txtWaypoint"), "A");
}

TEST_F(frmPassageTest, aKeyInTheTableGoesToTheBoxOfItsColumn)
{
    auto& window = open<frmPassage>();
    typeRows(window, {{"A", "0", "0"}, {"B", "1", "0"}});
    auto& table = static_cast<PlanTable&>(control(window, "tblPlan"));
    table.setFocus(Qt::TabFocusReason);
    table.setCurrentIndex(table.model()->index(1, PlanTable::Speed));
    QTest::keyClick(&table, '7');
    EXPECT_EQ(focused(), "txtLegSpeed");
    QTest::keyClick(QApplication::focusWidget(), '5');
    EXPECT_EQ(onDisk().rows[1].speed, "75");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(onDisk().rows[1].speed, "");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(onDisk().rows[1].speed, "75");
    table.setFocus(Qt::TabFocusReason);
    table.setCurrentIndex(table.model()->index(1, PlanTable::Leg));
    QTest::keyClick(&table, '7');
    EXPECT_EQ(focused(), "optLeg(0)");
    table.setFocus(Qt::TabFocusReason);
    table.setCurrentIndex(table.model()->index(0, PlanTable::Waypoint));
    EXPECT_EQ(text(window, "txtWaypoint"), "A");
    QTest::keyClick(&table, Qt::Key_Delete);
    EXPECT_EQ(onDisk().rows.size(), 1u);
}

TEST_F(frmPassageTest, aPlanHas500RowsAndNoMore)
{
    auto& window = open<frmPassage>();
    QString rows;
    for (int i = 0; i < 500; ++i)
        rows += QString("W%1\t%2\t10\n").arg(i).arg(i / 10.0);
    QApplication::clipboard()->setText(rows);
    choose(window, "mnuRow(4)");
    EXPECT_EQ(onDisk().rows.size(), 500u);
    EXPECT_EQ(static_cast<PlanTable&>(control(window, "tblPlan")).model()->rowCount(), 500);
    questions.willAnswer(Answer::Ok);
    choose(window, "mnuRow(0)");
    EXPECT_EQ(questions.asked.back(),
              "No row was inserted: a plan has 500 at most.\rThe plan is as it was.");
    questions.willAnswer(Answer::Ok);
    choose(window, "mnuRow(4)");
    EXPECT_EQ(questions.asked.back(),
              "The rows were not taken: a plan has 500 at most.\rThe plan is as it was.");
    auto& circle = open<frmGC2000>();
    for (const auto& [box, degrees] :
         {std::pair("txtGC(0)", "41"), {"txtGC(1)", "-72"}, {"txtGC(2)", "41"}, {"txtGC(3)", "0"}})
        type(circle, box, degrees);
    questions.willAnswer(Answer::Ok);
    choose(circle, "mnuPlan(0)");
    EXPECT_EQ(questions.asked.back(),
              "The circle was not taken: a plan has 500 rows at most.\rThe plan is as it was.");
    EXPECT_EQ(onDisk().rows.size(), 500u);
}

TEST_F(frmPassageTest, theProgramsZoneAndUnitHold)
{
    auto& window = open<frmPassage>();
    type(window, "txtPlanTime", "2026/1/1 0:00");
    typeRows(window, {{"A", "0", "140"}, {"B", "0", "150", "10"}});
    EXPECT_THAT(text(window, "lblArrivalUTC"), HasSubstr("TD +9"));
    program().saved().setTD(10);
    program().tellTD();
    EXPECT_THAT(text(window, "lblArrivalUTC"), HasSubstr("TD +10"));
    EXPECT_EQ(text(window, "lblPlan(1)"), "600.0");
    program().setUnitOfLatitude(false);
    EXPECT_EQ(text(window, "lblPlan(1)"), "601.1");
}

TEST_F(frmPassageTest, aDamagedRecordIsNamedAndKept)
{
    writeFile("KV_Passage.ini", "KORVEL2000 passage plan 1\nname=Kept\nrow\nwhat is this\n");
    questions.willAnswer(Answer::Ok);
    auto& window = open<frmPassage>();
    EXPECT_THAT(questions.asked.back(), HasSubstr("line 4"));
    EXPECT_EQ(text(window, "txtPlan"), "Kept");
    type(window, "txtWaypoint", "A");
    onDisk();
    EXPECT_EQ(files.names("KV_Passage damaged", ".ini").size(), 1u);
}

TEST_F(frmPassageTest, legsGoBetweenTheWindows)
{
    auto& circle = open<frmGC2000>();
    type(circle, "txtGC(0)", "41");
    type(circle, "txtGC(1)", "-72");
    type(circle, "txtGC(2)", "41");
    type(circle, "txtGC(3)", "0");
    auto& window = open<frmPassage>();
    choose(circle, "mnuPlan(0)");
    EXPECT_EQ(cell(window, 1, PlanTable::Distance), "3160.1");
    EXPECT_EQ(cell(window, 1, PlanTable::Leg, 1), "10°");
    EXPECT_EQ(cell(window, 2, PlanTable::Leg), "") << "no row yet";
    static_cast<QLineEdit&>(control(circle, "txtGC(1)")).setText("0");
    static_cast<QLineEdit&>(control(circle, "txtGC(3)")).setText("20");
    choose(circle, "mnuPlan(0)");
    EXPECT_EQ(onDisk().rows.size(), 3u) << "it goes on where the plan ends";
    type(window, "txtPlanTime", "2026/1/1 0:00");
    type(window, "txtLegSpeed", "10");
    type(window, "txtZone", "1");

    auto& course = open<frmCDDR>();
    EXPECT_THAT(course.findChild<QAction*>("mnuShip(4)")->text().toStdString(),
                HasSubstr("row 2 to row 3"));
    choose(course, "mnuShip(4)");
    EXPECT_EQ(text(course, "txtCDDR(1)") + " " + text(course, "txtCDDR(3)"), "0.0 20.0");
    auto& eta = open<frmETA>();
    choose(eta, "mnuShip(3)");
    EXPECT_EQ(text(eta, "txtSpeed"), "10.0");
    EXPECT_NEAR(std::stod(text(eta, "txtDist")), std::stod(cell(window, 2, PlanTable::Distance)),
                0.06);
}

TEST_F(frmPassageTest, theShipNowIsOfferedAndFillsNothingByItself)
{
    program().shipNow.tellFix({NavFunc113::DegMin(35.124), NavFunc113::DegMin(142.031),
                               instantOf(program().shipsTime().UTC())});
    program().tellShipNow();
    auto& window = open<frmPassage>();
    EXPECT_EQ(text(window, "txtWpLat"), "");
    auto* entry = window.findChild<QAction*>("mnuShip(0)");
    EXPECT_THAT(entry->text().toStdString(), HasSubstr("35°12.4' N 142°03.1' E, fix of"));
    entry->trigger();
    EXPECT_EQ(text(window, "txtWpLat"), "35.124");
    EXPECT_EQ(text(window, "txtWpLong"), "142.031");
    EXPECT_FALSE(window.findChild<QAction*>("mnuShip(1)")->isEnabled()) << "no speed is known";
    program().shipNow.tellMotion(ShipNow::Motion{NavFunc113::Degrees(85), NavFunc113::Knots(14.5)});
    program().tellShipNow();
    choose(window, "mnuShip(1)");
    EXPECT_EQ(text(window, "txtLegSpeed"), "14.5");
    choose(window, "mnuShip(2)");
    EXPECT_EQ(text(window, "txtZone"), "9.0");
}

} // namespace
} // namespace korvel
