// SPDX-License-Identifier: MIT
#include "forms/frmTanks/frmTanks.h"

#include "forms/frmNoon/frmNoon.h"
#include "forms/frmTanks/TankModel.h"
#include "forms/frmTanks/TankRecord.h"
#include "shell/controls/Boxes.h"
#include "shell/controls/RowsView.h"
#include "tests/shell/ShellTesting.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <cstdlib>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;

class frmTanksTest : public WindowTest
{
protected:
    /// Keys alone: what is typed into the box that has the focus, Enter behind it.
    static void enter(const char* typed)
    {
        QTest::keyClicks(QApplication::focusWidget(), typed);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    /// Alt and a letter; the toolkit presses a button so a moment later.
    static void press(frmTanks& window, Qt::Key letter, const char* leadsTo)
    {
        QTest::keyClick(&window, letter, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([leadsTo] { return focused() == leadsTo; })) << leadsTo;
    }
    static void turnTo(frmTanks& window, int page)
    {
        click(window, QString("cmdTankPage(%1)").arg(page).toStdString());
    }

    TankSheet onDisk()
    {
        program().saveRecords();
        const ReadTankRecord read = readTankRecord(fileText("KV_Tanks.ini"));
        EXPECT_EQ(read.damage, "");
        return read.sheet;
    }

    static std::string cell(const frmTanks& window, int row, int column, bool second = false)
    {
        const auto& table = static_cast<RowsView&>(control(window, "tblTanks"));
        return table.model()
            ->index(row, column)
            .data(second ? int(RowsView::SecondLine) : int(Qt::DisplayRole))
            .toString()
            .toStdString();
    }
};

/// Twelve tanks and two grades, before and after, and the bill, by keys alone.
TEST_F(frmTanksTest, aLoadingIsWorkedByKeys)
{
    auto& window = open<frmTanks>();
    EXPECT_EQ(focused(), "txtTank(0)");
    choose(window, "mnuTankList(6)");
    choose(window, "mnuTankList(7)");
    EXPECT_EQ(window.notice(), "") << "there is nothing to take back yet";
    press(window, Qt::Key_G, "txtPort");
    control(window, "txtGradeName(0)").setFocus(Qt::TabFocusReason);
    for (const char* typed : {"Gasoline", "54B", "721.4", "", "", "8760", "", "6320"})
        enter(typed);
    for (const char* typed : {"Gas oil", "54B", "842.8", "", "", "", "", "1844"})
        enter(typed);
    click(window, "optRounding(1)");
    press(window, Qt::Key_T, "txtTank(0)");
    for (int tank = 1; tank <= 12; ++tank)
        for (const std::string& typed : {std::to_string(tank), std::string("dry"), std::string("0"),
                                         std::string(), std::string(), std::string()})
            enter(typed.c_str());
    EXPECT_EQ(text(window, "lblMoved(0)"), "");
    press(window, Qt::Key_F, "optSurvey(1)");
    for (int up = 0; up < 13; ++up)
        QTest::keyClick(&control(window, "txtTank(0)"), Qt::Key_Up);
    control(window, "txtTank(0)").setFocus(Qt::TabFocusReason);
    EXPECT_EQ(text(window, "txtTank(0)"), "1");
    for (int tank = 0; tank < 12; ++tank) {
        // Eleven equal parts would hide a tank that is taken twice.
        const bool isOil = tank < 6;
        const double whole = isOil ? 8834.839 : 2202.606;
        const double part =
            tank % 6 == 5 ? whole - 5 * (tank < 6 ? 1400 : 360) : (tank < 6 ? 1400 : 360);
        const std::string volume = QString::number(part, 'f', 3).toStdString();
        const std::string water = tank == 0 ? "0.046" : tank == 6 ? "0.169" : "";
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // the name stays
        for (const std::string& typed :
             {std::string("1.5 m"), volume, water, std::string(isOil ? "22.0" : "22.5"),
              std::string(isOil ? "1" : "2")})
            enter(typed.c_str());
    }
    EXPECT_EQ(window.notice().toStdString(), "");
    EXPECT_EQ(cell(window, 0, TankModel::LastSurvey + 2, true), "0.9911");
    EXPECT_EQ(cell(window, 11, TankModel::LastSurvey + 2, true), "0.9937");
    const auto& model = *static_cast<RowsView&>(control(window, "tblTanks")).model();
    for (const int role : {Qt::AccessibleTextRole, Qt::ToolTipRole})
        EXPECT_EQ(model.index(0, TankModel::LastSurvey + 2).data(role).toString().toStdString(),
                  "22.0; 0.9911");
    EXPECT_EQ(text(window, "lblMoved(1)"), "10944.725");
    EXPECT_EQ(text(window, "lblMoved(2)"), "-0.182");
    QTest::keyClick(&window, Qt::Key_D, Qt::AltModifier);
    const QWidget& total = control(window, "lblTotalVacuo(8)");
    EXPECT_TRUE(QTest::qWaitFor([&total] { return total.isVisible(); }));
    EXPECT_EQ(text(window, "lblTotalVacuo(8)"), "8161.216");
    EXPECT_EQ(text(window, "lblTotalWater(0)"), "0.046");
    EXPECT_EQ(text(window, "lblLessVolume(0)"), "-3.837");
    EXPECT_EQ(text(window, "lblPercentWeight(8)"), text(window, "lblMoved(2)"));
    EXPECT_EQ(onDisk().list(ListKind::Cargo).rows.size(), 12u);
}

TEST_F(frmTanksTest, badInputIsAnsweredInTheLineAndMended)
{
    auto& window = open<frmTanks>();
    turnTo(window, 1);
    type(window, "txtGradeTable(0)", "54B");
    type(window, "txtGradeDensity(0)", "842.8");
    turnTo(window, 0);
    click(window, "optSurvey(1)");
    type(window, "txtTank(2)", "100");
    EXPECT_THAT(window.notice().toStdString(), HasSubstr("the temperature is missing"));
    EXPECT_EQ(text(window, "lblMoved(0)"), "");
    EXPECT_THAT(
        whileTyping(window, "txtTank(4)", "999\b\b\b15", "lblTank(2)"),
        ElementsAre("100.503", "92.816", "", "92.816", "100.503", "", "101.172", "100.000"));
    type(window, "txtTank(3)", "101");
    EXPECT_THAT(window.notice().toStdString(), HasSubstr("more water than volume"));
    auto& rows = *static_cast<RowsView&>(control(window, "tblTanks")).model();
    const QAbstractItemModelTester tester(&rows,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QModelIndex number = rows.index(0, TankModel::Number);
    EXPECT_THAT(number.data(Qt::ToolTipRole).toString().toStdString(),
                HasSubstr("more water than volume"));
    EXPECT_FALSE(number.data(Qt::DecorationRole).isValid());
    type(window, "txtTank(3)", "10000000.5");
    EXPECT_THAT(window.notice().toStdString(), HasSubstr("free water: not within"));
    type(window, "txtTank(3)", "");
    EXPECT_EQ(text(window, "lblMoved(1)"), "100.000");
    type(window, "txtTank(5)", "x");
    EXPECT_THAT(window.notice().toStdString(), HasSubstr("there is no grade \"x\""));
    choose(window, "mnuTankList(6)"); // undo
    EXPECT_EQ(text(window, "lblMoved(1)"), "100.000");
    choose(window, "mnuTankList(7)");
    EXPECT_EQ(text(window, "lblMoved(1)"), "");
    // The same by keys in a box of the list, and rows that are pasted there.
    auto& box = control(window, "txtTank(5)");
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(window, "lblMoved(1)"), "100.000");
    QApplication::clipboard()->setText("tank\tlast_volume\n1P\t5\n1S\t0\n");
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(onDisk().list(ListKind::Cargo).rows.size(), 3u);
    EXPECT_EQ(text(window, "txtTank(5)"), "") << "none of it in the box";
}

TEST_F(frmTanksTest, aHostileListChangesNothingThatIsShown)
{
    auto& window = open<frmTanks>();
    type(window, "txtTank(0)", "1P");
    const TankSheet before = onDisk();
    for (const auto& [name, bytes, fault] :
         {std::tuple("cut.csv", std::string("tank,last_volume\n1P,5\n1S"), "line 3: fewer"),
          {"picture.csv", std::string("\x89PNG\r\n\x1A\n\0\0\0\0", 12), "line 1"},
          {"columns.csv", "tank,fist_volume\n1P,5\n", "\"fist_volume\""}}) {
        questions.willType(newFile(name, bytes));
        questions.willAnswer(Answer::Ok);
        choose(window, "mnuTankList(1)");
        EXPECT_THAT(questions.asked.back(), AllOf(HasSubstr(fault), HasSubstr("as it was")))
            << name;
        EXPECT_TRUE(onDisk() == before) << name;
    }
    questions.willType(folder.path().toStdString()); // no file
    questions.willAnswer(Answer::Ok);
    choose(window, "mnuTankList(1)");
    EXPECT_TRUE(onDisk() == before);
    QApplication::clipboard()->setText("tank\tlast_volume\n1P\t5\n1S\t0\n");
    choose(window, "mnuTankRow(2)");
    EXPECT_EQ(onDisk().list(ListKind::Cargo).rows.size(), 2u);
    const std::string path = folder.filePath("list.csv").toStdString();
    questions.willType(path);
    choose(window, "mnuTankList(2)");
    EXPECT_EQ(questions.prompts.back(), "Save the list of tanks");
    EXPECT_THAT(questions.offered.back(), AllOf(HasSubstr("Tank list"), EndsWith(".csv")));
    choose(window, "mnuTankList(0)");
    EXPECT_TRUE(onDisk().list(ListKind::Cargo).rows.empty());
    questions.willType(path);
    choose(window, "mnuTankList(1)");
    EXPECT_EQ(onDisk().list(ListKind::Cargo).rows[0].surveys[1].volume, "5");
}

TEST_F(frmTanksTest, aDamagedRecordIsNamedAndKept)
{
    writeFile("KV_Tanks.ini", "KORVEL2000 tank list 1\nport=Kept\ncargo\ntank\nwhat is this\n");
    questions.willAnswer(Answer::Ok);
    auto& window = open<frmTanks>();
    EXPECT_THAT(questions.asked.back(), HasSubstr("line 5"));
    EXPECT_EQ(text(window, "txtPort"), "Kept");
    type(window, "txtTank(0)", "A");
    onDisk();
    EXPECT_EQ(files.names("KV_Tanks damaged", ".ini").size(), 1u);
}

TEST_F(frmTanksTest, aKeyInTheTableGoesToTheBoxOfItsColumnAndSurvey)
{
    auto& window = open<frmTanks>();
    type(window, "txtTank(0)", "1P");
    auto& table = static_cast<RowsView&>(control(window, "tblTanks"));
    table.setFocus(Qt::TabFocusReason);
    table.setCurrentIndex(table.model()->index(0, TankModel::LastSurvey + 1));
    QTest::keyClick(&table, '7');
    EXPECT_EQ(focused(), "txtTank(2)");
    const TankReading after = onDisk().list(ListKind::Cargo).rows[0].surveys[1];
    EXPECT_EQ(after.volume, "7");
}

TEST_F(frmTanksTest, bunkersStandInTheNoonReport)
{
    auto& window = open<frmTanks>();
    turnTo(window, 3);
    type(window, "txtParcelName(0)", "VLSFO");
    type(window, "txtParcelDensity(0)", "992.0");
    type(window, "txtBunker(0)", "1P");
    type(window, "txtBunker(2)", "161.28");
    type(window, "txtBunker(4)", "36");
    EXPECT_EQ(text(window, "lblBunker(2)"), "157.521");
    click(window, "optBunkerSurvey(0)");
    EXPECT_EQ(text(window, "lblBunker(2)"), "") << "nothing was measured then";
    type(window, "txtBunker(2)", "190");
    type(window, "txtBunker(4)", "36");
    EXPECT_EQ(text(window, "lblConsumed(0)"), "28.051");
    auto& noon = open<frmNoon>();
    EXPECT_EQ(text(noon, "lblNoon(16)"), "28.1 t");
    EXPECT_EQ(text(noon, "txtROB(0)"), "") << "a box fills itself never";
    const auto offered = [&noon](const char* box) {
        return dynamic_cast<QLineEdit&>(control(noon, box)).placeholderText().toStdString();
    };
    EXPECT_EQ(offered("txtROB(0)"), "157.5 tank list");
    EXPECT_EQ(offered("txtFuel(0)"), "185.6 tank list");
    EXPECT_EQ(offered("txtROB(1)"), "");
}

TEST_F(frmTanksTest, factorsOfLoadingAndDischargeStandApart)
{
    auto& window = open<frmTanks>();
    turnTo(window, 4);
    for (int i = 0; i < 6; ++i) {
        type(window, QString("txtLoadingShip(%1)").arg(i).toStdString(), i == 5 ? "103" : "100.1");
        type(window, QString("txtLoadingShore(%1)").arg(i).toStdString(), "100");
    }
    EXPECT_EQ(text(window, "lblFactor(0)"), "1.00100");
    EXPECT_EQ(text(window, "lblLoadingStanding(0)"), "counts");
    EXPECT_EQ(text(window, "lblLoadingStanding(5)"), "gross error, out");
    EXPECT_EQ(text(window, "lblFactor(1)"), "");
    for (int i = 0; i < 5; ++i) {
        type(window, QString("txtDischargeName(%1)").arg(i).toStdString(), "D");
        type(window, QString("txtDischargeShip(%1)").arg(i).toStdString(), "99.9");
        type(window, QString("txtDischargeShore(%1)").arg(i).toStdString(), "100");
    }
    EXPECT_EQ(onDisk().voyages[1][4].name, "D");
    std::vector<std::string> shown;
    for (const char* label : {"lblFactor(0)", "lblMean(0)", "lblCounted(0)", "lblSums(0)",
                              "lblFactor(1)", "lblMean(1)", "lblCounted(1)", "lblSums(1)"})
        shown.push_back(text(window, label));
    EXPECT_THAT(shown, ElementsAre("1.00100", "1.00100", "5 of 6", "ship 500.5, shore 500",
                                   "0.99900", "0.99900", "5 of 5", "ship 499.5, shore 500"));
    type(window, "txtLoadingShore(0)", "0");
    EXPECT_EQ(text(window, "lblFactor(0)"), "");
    EXPECT_THAT(window.notice().toStdString(),
                AllOf(HasSubstr("Loading, voyage 1, shore"), HasSubstr("five voyages")));
}

TEST_F(frmTanksTest, eachPageHasItsAnswersAboveIt)
{
    auto& window = open<frmTanks>();
    for (int page = 0; page < 5; ++page) {
        turnTo(window, page);
        const auto isSeen = [&window](const char* label) {
            return control(window, label).isVisible();
        };
        EXPECT_EQ(isSeen("lblMoved(0)"), page <= 2) << page;
        EXPECT_EQ(isSeen("lblConsumed(0)"), page == 3) << page;
        EXPECT_EQ(isSeen("lblFactor(0)"), page == 4) << page;
        EXPECT_EQ(isSeen("lblFactor(1)"), page == 4) << page;
    }
}

TEST_F(frmTanksTest, boxesHaveTheUnitsThatWereChosen)
{
    auto& window = open<frmTanks>();
    const auto unitBehind = [&window](const char* name) {
        const QWidget& box = control(window, name);
        const QLabel* nearest = nullptr;
        for (const QLabel* label : box.parentWidget()->findChildren<QLabel*>())
            if (label->isVisible() && label->x() > box.x() &&
                std::abs(label->geometry().center().y() - box.geometry().center().y()) < 8 &&
                (!nearest || label->x() < nearest->x()))
                nearest = label;
        return nearest ? nearest->text().toStdString() : "none";
    };
    const auto units = [&unitBehind] {
        QApplication::processEvents();
        return unitBehind("txtTank(2)") + " " + unitBehind("txtTank(3)") + " " +
               unitBehind("txtTank(4)");
    };
    const auto& temperature = dynamic_cast<EntryBox&>(control(window, "txtTank(4)"));
    EXPECT_EQ(units(), "m³ m³ °C");
    EXPECT_EQ(temperature.limits(), "-60 to 200");
    turnTo(window, 1);
    click(window, "optVolume(1)");
    click(window, "optTemperature(1)");
    EXPECT_EQ(onDisk().choices.temperature, TankTemperatureUnit::Fahrenheit);
    turnTo(window, 0);
    EXPECT_EQ(units(), "bbl bbl °F");
    EXPECT_EQ(temperature.limits(), "-76 to 400");
}

TEST_F(frmTanksTest, aStepInABoxOfTheSheetIsTakenBackAndDoneAgain)
{
    auto& window = open<frmTanks>();
    turnTo(window, 1);
    type(window, "txtPort", "Kobe");
    type(window, "txtSurveyTime(0)", "2026/11/21 10:00");
    type(window, "txtSurveyTime(1)", "2026/11/22 02:00");
    EXPECT_THAT(onDisk().list(ListKind::Cargo).times,
                ElementsAre("2026/11/21 10:00", "2026/11/22 02:00"));
    auto& port = control(window, "txtPort");
    type(window, "txtPort", "Osaka");
    QTest::keyClick(&port, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(onDisk().port, "Kobe");
    EXPECT_EQ(text(window, "txtPort"), "Kobe");
    QTest::keyClick(&port, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(onDisk().port, "Osaka");
    EXPECT_EQ(text(window, "txtPort"), "Osaka");
    turnTo(window, 3);
    type(window, "txtBunkerTime(0)", "2026/11/20 12:00");
    type(window, "txtBunkerTime(1)", "2026/11/21 12:00");
    EXPECT_THAT(onDisk().list(ListKind::Bunkers).times,
                ElementsAre("2026/11/20 12:00", "2026/11/21 12:00"));
}

TEST_F(frmTanksTest, rowsAreInsertedAndDeletedAndTheResultsFollow)
{
    auto& window = open<frmTanks>();
    turnTo(window, 1);
    type(window, "txtGradeName(0)", "Gas oil");
    type(window, "txtGradeTable(0)", "54B");
    type(window, "txtGradeDensity(0)", "842.8");
    turnTo(window, 0);
    for (const auto& [name, volume] : {std::pair("1P", "100"), {"1S", "200"}}) {
        for (const char* typed : {name, "dry", volume, "", "15", "1"})
            enter(typed);
    }
    EXPECT_EQ(text(window, "lblTank(2)"), "") << "the row behind the last";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_EQ(text(window, "lblTank(2)"), "200.000");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_EQ(text(window, "lblTank(2)"), "100.000");
    std::string headings, row;
    for (int column = 0; column < TankModel::Columns; ++column) {
        headings += static_cast<RowsView&>(control(window, "tblTanks"))
                        .model()
                        ->headerData(column, Qt::Horizontal)
                        .toString()
                        .replace('\n', '/')
                        .toStdString() +
                    "; ";
        row += cell(window, 0, column) + "/" + cell(window, 0, column, true) + "; ";
    }
    EXPECT_EQ(headings, "No.; Tank; Before: sounding/grade; TOV/free water; temp./VCF; "
                        "GSV m³/t in air; ; After: sounding/grade; TOV/free water; temp./VCF; "
                        "GSV m³/t in air; ");
    // 842.8 at 15 degrees: 100 x (842.8 - 1.1) / 1000 t in air.
    EXPECT_EQ(row, "1/; 1P/; dry/Gas oil; 100.000/0.000; 15/1.00000; 100.000/84.170; /; "
                   "/; /; /; /; ");
    choose(window, "mnuTankRow(0)");
    EXPECT_EQ(onDisk().list(ListKind::Cargo).rows.size(), 3u);
    EXPECT_EQ(text(window, "txtTank(0)"), "");
    auto& table = static_cast<RowsView&>(control(window, "tblTanks"));
    EXPECT_EQ(table.currentIndex().row(), 0);
    EXPECT_EQ(table.model()->rowCount(table.currentIndex()), 0);
    EXPECT_EQ(table.model()->columnCount(table.currentIndex()), 0);
    table.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&table, Qt::Key_Delete);
    EXPECT_EQ(onDisk().list(ListKind::Cargo).rows.size(), 2u);
    EXPECT_EQ(text(window, "txtTank(0)"), "1P");
    program().saved().setSingleMemo(123.5);
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuRem(0)");
    EXPECT_EQ(text(window, "txtTank(2)"), "123.5");
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuRem(1)");
    EXPECT_EQ(text(window, "txtTank(4)"), "123.5");
}

TEST_F(frmTanksTest, aListHas200TanksAndNoMore)
{
    QString rows = "tank\tlast_volume\tlast_temperature\n";
    for (int i = 0; i < 200; ++i)
        rows += QString("T%1\t%2\t20\n").arg(i).arg(i);
    QApplication::clipboard()->setText(rows);
    auto& window = open<frmTanks>();
    choose(window, "mnuTankRow(2)");
    EXPECT_EQ(onDisk().list(ListKind::Cargo).rows.size(), 200u);
    EXPECT_EQ(static_cast<RowsView&>(control(window, "tblTanks")).model()->rowCount(), 200);
    questions.willAnswer(Answer::Ok);
    choose(window, "mnuTankRow(0)");
    EXPECT_EQ(questions.asked.back(),
              "No row was inserted: a list has 200 at most.\rThe list is as it was.");
}

} // namespace
} // namespace korvel
