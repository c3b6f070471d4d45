// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/frmTIDE.h"

#include "forms/frmTIDE/data/TideData.h"
#include "forms/frmTIDE/pages/TableDialog.h"
#include "forms/frmTIDE/pages/frmTIDEPage.h"
#include "forms/frmTIDE/sheet/CurvePainter.h"
#include "forms/frmTIDE/sheet/frmTIDEPicture.h"
#include "shell/screen/ColourScheme.h"
#include "tests/forms/frmTIDE/TideFolder.h"
#include "tests/forms/frmTIDE/TideWindow.h"
#include "tests/shell/PaintedTexts.h"
#include "tests/shell/Pixels.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QPicture>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QWheelEvent>

#include <optional>
#include <set>
#include <string>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class frmTIDETest : public TideWindowTest
{
};

TEST_F(frmTIDETest, opensEmptyAndWaitsForPlaceAndDate)
{
    auto& window = open<frmTIDE>();
    EXPECT_EQ(text(window, "lblPlace"), "Place");
    EXPECT_EQ(text(window, "lblDate"), "Date");
    choose(window, yokohama);
    EXPECT_EQ(text(window, "lblTideInfo"), "") << "no date yet";
    EXPECT_EQ(fileText("KV_Tide.ini"), "(no file)");

    // Cancelling and nonsense are asked again.
    for (const char* answer : {"", "2003/2/29", "2003/7/15"})
        questions.willType(answer);
    click(window, "lblDate");
    EXPECT_THAT(questions.offered, ElementsAre("2005/3/14", "2005/3/14", "2005/3/14"));
    EXPECT_EQ(text(window, "lblDate"), "2003/07/15");
    EXPECT_EQ(text(window, "lblTD"), "9.0hE");
    EXPECT_EQ(text(window, "lblTideInfo"), "05.-00: 1.87m   12.-00: -0.01m");
    EXPECT_THAT(text(window, "lblStation"), HasSubstr("Yokohama: grade A.  Not for navigation"));
    EXPECT_FALSE(control(window, "lblUncertainty").isVisible());
    EXPECT_EQ(fileText("KV_Tide.ini"), "#TRUE#\r\n\"Yokohama\"\r\n\"2003/07/15\"\r\n");

    choose(window, portDickson);
    EXPECT_THAT(text(window, "lblStation"), HasSubstr("(est.)"));
    EXPECT_EQ(text(window, "lblUncertainty"), "Uncertainty: amplitude ±20 %, time ±35 min");
    EXPECT_TRUE(control(window, "lblUncertainty").isVisible());
}

TEST_F(frmTIDETest, datesStayInRangeAndInStepWithTheScrollBar)
{
    auto& window = open<frmTIDE>();
    choose(window, yokohama);
    for (const char* answer : {"2002/9/30", "2061/1/1"}) {
        questions.willAnswer(Answer::Ok);
        setDate(window, answer);
        EXPECT_EQ(questions.asked.back(), tooFar("2005/12/31"));
        EXPECT_EQ(text(window, "lblDate"), "Date");
    }
    questions.willAnswer(Answer::Ok);
    questions.willAnswer(Answer::No);
    setDate(window, "2006/1/1");
    EXPECT_THAT(questions.asked, ::testing::Contains(tooFar("2005/12/31")).Times(3));
    EXPECT_EQ(questions.asked.back(), "Extend the predictions to 2050?");
    EXPECT_EQ(text(window, "lblDate"), "Date");
    setDate(window, "2005/12/31");
    EXPECT_EQ(scrollValue(window), 1188);
    press(window, "scrDate", {Qt::Key_Down});
    EXPECT_EQ(text(window, "lblDate"), "2005/12/31") << "the end";
    press(window, "scrDate", {Qt::Key_Up, Qt::Key_PageUp});
    EXPECT_EQ(text(window, "lblDate"), "2005/12/23");
    press(window, "scrDate", {Qt::Key_Home});
    EXPECT_EQ(text(window, "lblDate"), "2002/10/01");

    QWidget& bar = control(window, "scrDate");
    for (int turned : {-60, -60, -120}) {
        QWheelEvent turn({1, 1}, bar.mapToGlobal(QPointF(1, 1)), {}, {0, turned}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&bar, &turn);
    }
    EXPECT_EQ(text(window, "lblDate"), "2002/10/03") << "a day a notch";
    EXPECT_THAT(fileText("KV_Tide.ini"), HasSubstr("2005/12/31")) << "not at every step";
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return fileText("KV_Tide.ini").find("2002/10/03") != std::string::npos; }));
}

TEST_F(frmTIDETest, streamsHaveTheirOwnFilesDirectionsAndMode)
{
    auto& window = open<frmTIDE>();
    setDate(window, "2003/7/15");
    choose(window, yokohama);
    choose(window, brothersStream);
    EXPECT_THAT(text(window, "lblTideInfo"), HasSubstr("kn"));
    EXPECT_FALSE(control(window, "lblCuDirection(0)").isHidden());
    EXPECT_EQ(text(window, "lblCuDirection(0)"), "+ : ENE");
    EXPECT_EQ(text(window, "lblCuDirection(1)"), "- : WSW");
    EXPECT_EQ(text(window, "lblStation").find("grade B"), std::string::npos)
        << "that is the tide station of this name";
    EXPECT_THAT(fileText("KV_Tide.ini"), HasSubstr("#FALSE#\r\n\"Brothers\""));
    press(window, "scrDate", {Qt::Key_Down});
    const StationDays station(files, TideKind::Stream, "Brothers", StationList(files),
                              FullConstants(files));
    EXPECT_EQ(text(window, "lblTideInfo"), station.day(37818).four.lblTideInfo);
}

TEST_F(frmTIDETest, tablesOfAWeekAndOfAFile)
{
    auto& window = open<frmTIDE>();
    setDate(window, "2003/7/15");
    choose(window, yokohama);
    whileShown(window, "mnuDay(2)", "dlgWeek", [](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Yokohama, seven days");
        EXPECT_THAT(text(dialog, "lblSummary"), HasSubstr("Zone time 9.0hE.  Not for navigation."));
        // The waters of the manual's worked example.
        EXPECT_EQ(rowOf(dialog, 0), "2003-07-15 | springs | High 04:57   1.87 m | 04:54   1.84 m   "
                                    "(-3 min, -0.03 m) | ");
        EXPECT_THAT(rowOf(dialog, 1), ::testing::StartsWith(" |  | Low 12:01   -0.01 m | 12:00"));
        EXPECT_THAT(rowOf(dialog, 3), ::testing::StartsWith("2003-07-16 | springs | "));
        const auto& table = dynamic_cast<QTableWidget&>(control(dialog, "tblRows"));
        EXPECT_EQ(table.horizontalHeaderItem(3)->text(), "All constituents (difference)");
    });
    questions.willType(FakeQuestions::acceptDefault);
    whileShown(window, "mnuStation(1)", "dlgCheck", [](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Harmonic Constants/HC_Yokohama.txt");
        EXPECT_THAT(text(dialog, "lblSummary"), HasSubstr("all 27 fields are good"));
        EXPECT_EQ(rowOf(dialog, 0), "1 | Title | Yokohama |  | good | ");
        EXPECT_EQ(rowOf(dialog, 1), "2 | Zone time, east positive | 9 | h | good | ");
    });
    questions.willType("Brothers");
    whileShown(window, "mnuStation(2)", "dlgCheck", [](QWidget& dialog) {
        EXPECT_THAT(text(dialog, "lblSummary"), HasSubstr("all 16 fields are good"));
    });
    EXPECT_THAT(questions.prompts, ElementsAre(::testing::_, "Tide station whose file is checked",
                                               "Stream station whose file is checked"));
    EXPECT_EQ(questions.offered.back(), "Yokohama");
    for (const char* entry : {"mnuStation(2)", "mnuStation(1)"}) {
        const char* other = entry == std::string("mnuStation(2)") ? "Tokyo" : "Philip Channel";
        questions.willType(other);
        questions.willAnswer(Answer::Ok);
        choose(window, entry);
        EXPECT_EQ(questions.asked.back(),
                  "There is no station \"" + std::string(other) + "\" in the menus.");
    }
    const std::size_t said = questions.asked.size();
    for (const char* entry : {"mnuStation(1)", "mnuDay(4)"}) {
        questions.willType(std::nullopt);
        choose(window, entry);
    }
    EXPECT_EQ(questions.asked.size(), said) << "whoever cancels is told nothing";
}

TEST_F(frmTIDETest, pointerAndKeysReadTheCurve)
{
    auto& window = open<frmTIDE>();
    setDate(window, "2003/7/15");
    choose(window, yokohama);
    window.resize(1200, 800); // wide enough for a pixel to be three minutes
    QApplication::processEvents();
    auto& picture = static_cast<PictureBox&>(control(window, "picTIDE"));
    QTest::mouseMove(&picture, picture.toPixel(5, 0).toPoint());
    EXPECT_THAT(text(window, "lblReading"), HasSubstr("1.87m"));
    EXPECT_TRUE(coloursOf(onScreen(picture), QRect(picture.toPixel(5, 1.87).toPoint(), QSize(2, 2)))
                    .contains(program().colours().marker.rgb()));
    press(window, "picTIDE", {Qt::Key_Escape, Qt::Key_Left});
    EXPECT_THAT(text(window, "lblReading"), HasSubstr("11:50  ")) << "from noon";
    press(window, "picTIDE", {Qt::Key_End});
    press(window, "picTIDE", {Qt::Key_Right, Qt::Key_Left, Qt::Key_Left, Qt::Key_Left});
    EXPECT_THAT(text(window, "lblReading"), HasSubstr("23:30  1.09m"));
    const auto reading = [&] { return control(window, "lblReading").geometry(); };
    const int line = picture.fontMetrics().height();
    EXPECT_LT(reading().right(), picture.toPixel(23.5, 0).x()) << "there is no room behind it";
    EXPECT_LT(reading().top(), line);
    press(window, "picTIDE", {Qt::Key_Home});
    EXPECT_THAT(text(window, "lblReading"), HasSubstr("00:00  "));
    EXPECT_NEAR(reading().left(), picture.toPixel(0, 0).x() + line / 2.0, 2);
    EXPECT_LT(reading().top(), line);
    press(window, "picTIDE", {Qt::Key_Left});
    EXPECT_THAT(text(window, "lblReading"), HasSubstr("00:00  ")) << "the day begins there";
    press(window, "picTIDE", {Qt::Key_End, Qt::Key_Right});
    EXPECT_THAT(text(window, "lblReading"), HasSubstr("24:00  ")) << "and ends there";
    press(window, "picTIDE", {Qt::Key_Left, Qt::Key_Left, Qt::Key_Left});
    choose(window, brothersStream);
    EXPECT_THAT(text(window, "lblReading"), HasSubstr("23:30")) << "the new curve is read there";
    EXPECT_THAT(text(window, "lblReading"), HasSubstr("WSW")) << "an ebb";
    press(window, "picTIDE", {Qt::Key_Escape});
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(control(window, "lblReading").isVisible());
    press(window, "picTIDE", {Qt::Key_Escape});
    EXPECT_FALSE(window.isVisible()) << "without a reading it closes the window";
}

TEST_F(frmTIDETest, axisLabelsStandWhereTheScaleSays)
{
    auto& window = open<frmTIDE>();
    choose(window, yokohama);
    setDate(window, "2003/7/15");
    const auto& picture = static_cast<PictureBox&>(control(window, "picTIDE"));
    EXPECT_NEAR(picture.userScale().top, 1.87 + 1.5, 0.01);
    EXPECT_NEAR(picture.userScale().bottom, -0.01 - 0.6, 0.01);
    EXPECT_EQ(text(window, "lblTime(10)"), "22");
    EXPECT_EQ(control(window, "lblTime(10)").pos(), picture.toPixel(21.7, -0.1).toPoint());
    window.resize(window.size() + QSize(200, 100));
    EXPECT_EQ(control(window, "lblTime(0)").pos(), picture.toPixel(1.7, -0.1).toPoint());
    EXPECT_EQ(control(window, "lblHeight(3)").y(), qRound(picture.toPixel(0, 3).y()));
    EXPECT_LT(control(window, "lblHeight(3)").geometry().right(), picture.toPixel(0, 3).x());
    EXPECT_FALSE(control(window, "lblHeight(4)").isVisible()) << "above 3.37";
}

TEST_F(frmTIDETest, faultsOfTheDataLeaveTheDisplay)
{
    auto& window = open<frmTIDE>();
    choose(window, yokohama);
    setDate(window, "2003/7/15");
    const auto display = [&] {
        return text(window, "lblPlace") + " " + text(window, "lblDate") + " " +
               text(window, "lblTideInfo") + " " + std::to_string(scrollValue(window)) +
               fileText("KV_Tide.ini");
    };
    const std::string before = display();

    EXPECT_FALSE(window.findChild<QAction*>(inchon)->isEnabled());
    EXPECT_THAT(window.findChild<QAction*>(inchon)->toolTip().toStdString(),
                HasSubstr("no open record on the Korean coast"));
    writeFile("Harmonic Constants/HC_Brothers_.txt", "Brothers,8,none\r\n");
    questions.willAnswer(Answer::Ok);
    choose(window, brothersStream);
    EXPECT_THAT(questions.asked.back(), HasSubstr("line 1, field 3"));
    EXPECT_EQ(display(), before);

    // While the date runs there is no box, whatever the number of steps.
    std::string factors = TideFolder::shippedFactors();
    factors[46u * 288 + 20] = 'x'; // the line of 2003-07-16, which the day before needs as well
    writeFile("AF2005.txt", factors);
    press(window, "scrDate", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down});
    EXPECT_THAT(text(window, "lblNotice"), HasSubstr("2003/07/16 cannot be shown"));
    EXPECT_THAT(text(window, "lblNotice"), HasSubstr("AF2005.txt, line 289, field"));
    EXPECT_EQ(display(), before);
    press(window, "scrDate", {Qt::Key_PageDown});
    EXPECT_EQ(text(window, "lblNotice"), "");
    EXPECT_EQ(text(window, "lblDate"), "2003/07/22");
}

TEST_F(frmTIDETest, takesUpWhereItWasLeft)
{
    const struct {
        const char* record;
        const char* place;
        const char* date;
        bool predicted;
    } rows[] = {
        {"#TRUE#\r\n\"Yokohama\"\r\n\"2003/07/15\"\r\n", "Yokohama", "2003/07/15", true},
        {"#FALSE#\r\n\"Brothers\"\r\n\"2003/7/15\"\r\n", "Brothers", "2003/07/15", true},
        {"#FALSE#\r\n\"Yokohama\"\r\n\"2003/07/15\"\r\n", "Place", "2003/07/15", false},
        {"#TRUE#\r\n\"Atlantis\"\r\n\"2003/07/15\"\r\n", "Place", "2003/07/15", false},
        {"#TRUE#\r\n\"Yokohama\"\r\n\"2026/11/21\"\r\n", "Yokohama", "Date", false},
        {"\r\n\r\n\r\n", "Place", "Date", false},
    };
    for (const auto& row : rows) {
        writeFile("KV_Tide.ini", row.record);
        auto& window = open<frmTIDE>();
        EXPECT_EQ(text(window, "lblPlace"), row.place) << row.record;
        EXPECT_EQ(text(window, "lblDate"), row.date) << row.record;
        EXPECT_EQ(!text(window, "lblTideInfo").empty(), row.predicted) << row.record;
        close(window);
    }

    // Data that are missing today are no reason to forget the choice.
    const std::string choice = "#TRUE#\r\n\"Yokohama\"\r\n\"2003/07/15\"\r\n";
    writeFile("KV_Tide.ini", choice);
    QFile::remove(folder.filePath("AF2005.txt"));
    questions.willAnswer(Answer::Ok);
    auto& window = open<frmTIDE>();
    EXPECT_THAT(questions.asked.back(), HasSubstr("AF2005.txt"));
    const bool drewAll = isTicked(window, "mnuDrawAll");
    choose(window, "mnuDrawAll");
    close(window);
    EXPECT_EQ(fileText("KV_Tide.ini"), choice);
    questions.willAnswer(Answer::Ok);
    EXPECT_NE(isTicked(open<frmTIDE>(), "mnuDrawAll"), drewAll);
}

TEST_F(frmTIDETest, aLongerFactorsFileIsTakenUpWhenTheWindowOpens)
{
    writeFile("AF2005.txt",
              TideFolder::shippedFactors() + "20060102,021,1.11,011,0.73,356,1.40,030,1.39\r\n");
    auto& window = open<frmTIDE>();
    choose(window, yokohama);
    setDate(window, "2006/1/1");
    EXPECT_EQ(scrollValue(window), 1189);
    EXPECT_NE(text(window, "lblTideInfo"), "");
    questions.willAnswer(Answer::Ok);
    questions.willAnswer(Answer::No);
    setDate(window, "2006/1/2");
    EXPECT_THAT(questions.asked, ::testing::Contains(tooFar("2006/1/1")));
    questions.willAnswer(Answer::Ok);
    choose(window, "mnuEND(2)");
    EXPECT_THAT(questions.asked.back(), HasSubstr("up to 2006/1/1."));
    Paints paints; // of the bar while the predictions are made
    window.findChild<QProgressBar*>()->installEventFilter(&paints);
    choose(window, "mnuDay(0)");
    EXPECT_GT(paints.seen, 4);
}

TEST_F(frmTIDETest, detailsFoldAndAreRemembered)
{
    const auto isOpen = [](const QWidget& window) {
        std::set<bool> shown;
        for (const char* name : {"lblWaterAll(0)", "lblTideInfo", "lblAccuracy", "lblSource"}) {
            EXPECT_GT(text(window, name).size(), 5) << name << ", folded or not";
            shown.insert(control(window, name).isVisible());
        }
        EXPECT_EQ(shown.size(), 1) << "all or nothing";
        return *shown.begin();
    };
    auto& window = open<frmTIDE>();
    setDate(window, "2003/7/15");
    choose(window, yokohama);
    EXPECT_FALSE(isOpen(window));
    click(window, "cmdDetails");
    EXPECT_TRUE(isOpen(window));
    close(window);
    auto& again = open<frmTIDE>();
    EXPECT_TRUE(isOpen(again));
    click(again, "cmdDetails");
    close(again);
    EXPECT_FALSE(isOpen(open<frmTIDE>()));
}

TEST_F(frmTIDETest, thePageFitsPaperOfEitherOrientation)
{
    const StationList list(TideFolder::shipped());
    const FullConstants constants(TideFolder::shipped());
    const StationDays station(TideFolder::shipped(), TideKind::Tide, "Saint John NB", list,
                              constants);
    const TideDayShown day = station.day(37817);
    const StationLines lines =
        describeStation(day.four, list.notesOf("Saint John NB"), list.errorOf("Saint John NB"));
    std::vector<std::string> written = {"Saint John NB   2003/07/15 Tide",
                                        "Height above chart datum, metres",
                                        lines.station + " Zone time " + day.four.lblTD,
                                        "Highest, lowest:  " + day.four.lblTideInfo};
    for (const WaterLine& water : waterLines(day))
        written.push_back(water.four + " all constituents " + water.all);
    for (std::size_t row = 0; row < 7; ++row) {
        std::string& figures = written.emplace_back();
        for (std::size_t i = row; i < day.four.values.size(); i += 7)
            figures += (i > row ? " " : "") +
                       clockTime(NavFunc113::Hours(static_cast<double>(i) / 2)) + " " +
                       markedFigure(day.four.values[i], day);
    }
    for (const QSize paper : {QSize(840, 1188), QSize(1188, 840)}) {
        frmTIDEPicture picture;
        picture.showPrediction(day.four);
        QSize curve;
        const frmTIDEPage page{"Saint John NB", "2003/07/15", day, lines,
                               [&](QPainter& painter, const QSize& size) {
                                   curve = size;
                                   picture.drawForPaper(painter, size);
                               }};
        QPicture recorded;
        QPainter painter(&recorded);
        page.draw(painter, QRect(QPoint(0, 0), paper));
        painter.end();
        PaintedTexts sheet(paper);
        painter.begin(&sheet);
        page.draw(painter, QRect(QPoint(0, 0), paper));
        painter.end();
        EXPECT_THAT(sheet.rows(), ::testing::IsSupersetOf(written));
        EXPECT_GT(curve.height(), 280) << paper.width();
        const int hair = 2; // half the width of a line, rounded up
        const QRect drawn = recorded.boundingRect();
        EXPECT_TRUE(QRect(QPoint(-hair, -hair), paper + QSize(2 * hair, 2 * hair)).contains(drawn))
            << "down to " << drawn.bottom() << " of " << paper.height();
        EXPECT_GT(drawn.bottom(), paper.height() / 2);
    }
}

TEST(CurvePainter, writesTheDatumAloneWhereNothingElseHasRoom)
{
    const CurvePlace low{[](double, double metres) { return QPointF(0, -metres); },
                         {},
                         QFontMetrics(QApplication::font())};
    CurvePicture picture;
    picture.scale.top = 20;
    for (const double level : {0.0, 1.0, 10.0})
        EXPECT_EQ(isLevelLabelled(level, picture, low), level == 0) << level;
}

TEST(TableDialog, showsCopiesAndPrints)
{
    int printed = 0;
    TableDialog dialog(nullptr, "dlgRows", "Rows", "Two rows.", {"a", "b", "c"},
                       {{"1", "2", "3"}, {"4", "5", "6"}}, [&] { ++printed; });
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(text(dialog, "lblSummary"), "Two rows.");
    auto& table = dynamic_cast<QTableWidget&>(control(dialog, "tblRows"));
    EXPECT_EQ(table.item(1, 2)->text(), "6");
    table.setRangeSelected({0, 0, 1, 1}, true);
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "1\t2\n4\t5\n");
    click(dialog, "cmdPrint");
    EXPECT_EQ(printed, 1);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    dialog.show();
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Close)->click();
    EXPECT_FALSE(dialog.isVisible());
    const TableDialog other(nullptr, "dlg", "", "", {"a"}, {}, {});
    EXPECT_EQ(other.findChild<QWidget*>("cmdPrint"), nullptr);
}

} // namespace
} // namespace korvel
