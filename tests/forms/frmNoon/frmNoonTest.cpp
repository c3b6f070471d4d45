// SPDX-License-Identifier: MIT
#include "forms/frmNoon/frmNoon.h"

#include "forms/frmNoon/NoonMail.h"
#include "forms/frmPassage/frmPassage.h"
#include "forms/frmPositionRecord/frmPositionRecord.h"
#include "tests/SourceFolder.h"
#include "tests/golden/Golden.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include <algorithm>
#include <sstream>

// A passage worked as on board: planned, a fix a day into the record, a report from both.

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::HasSubstr;

class frmNoonTest : public WindowTest
{
protected:
    void plan()
    {
        auto& window = open<frmPassage>();
        type(window, "txtPlanTime", "2026/11/20 3:00");
        QApplication::clipboard()->setText(QString::fromStdString(
            contentOf(sourceFile("tests/forms/frmPassage/ocean-passage.csv"))));
        choose(window, "mnuRow(4)");
        ASSERT_EQ(text(window, "lblPlan(1)"), "4555.6");
        close(window);
    }

    static void bringToFront(QWidget& window)
    {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// A row of the record, its boxes parted by semicolons.
    static void typeFix(const QWidget& record, int row, const std::string& boxes)
    {
        std::istringstream cells(boxes);
        for (const char* box : {"txtSatelliteSMT", "txtSatelliteTD", "txtLat", "txtLong"}) {
            std::string cell;
            std::getline(cells >> std::ws, cell, ';');
            type(record, memberName(box, row).toStdString(), cell);
        }
    }

    static std::map<std::string, std::string> shownIn(const frmNoon& noon)
    {
        constexpr std::array names{"run",   "hours",  "average",    "between", "position", "since",
                                   "togo",  "by",     "eta1",       "eta2",    "eta3",     "needed",
                                   "drift", "engine", "slip",       "real",    "fuel",     "fuel2",
                                   "fuel3", "sea",    "visibility", "sky"};
        std::map<std::string, std::string> shown{{"notice", noon.notice().toStdString()}};
        for (std::size_t i = 0; i < names.size(); ++i) {
            std::string& label = shown[names[i]];
            label = text(noon, memberName("lblNoon", static_cast<int>(i)).toStdString());
            std::ranges::replace(label, ';', ','); // which parts the cells of a table
        }
        return shown;
    }
};

TEST_F(frmNoonTest, threeDaysOfAnOceanPassage)
{
    plan();
    auto& record = open<frmPositionRecord>();
    auto& noon = open<frmNoon>();
    int row = 0;
    for (const Golden& day : golden("noon_reports")) {
        bringToFront(record);
        typeFix(record, row++, day.text("fix"));
        type(record, "txtCourseSteered", "85");
        type(record, "txtSpeedSteered", "14.5");
        bringToFront(noon);
        choose(noon, "mnuReport(0)");
        for (const GoldenPair& box : day.pairs("boxes"))
            type(noon, box.name, box.text);
        expectTexts(day, "shows", shownIn(noon));
    }
    choose(noon, "mnuReport(1)");
    const std::string mail = QApplication::clipboard()->text().toStdString();
    EXPECT_THAT(mail, HasSubstr("UTC: 2026/11/26 22:00\nPosition: 45°55.0'N 171°36.0'W\n"));
    EXPECT_THAT(mail, HasSubstr("ROB 1: 717.9 t\n"));
    program().saveRecords();
    EXPECT_THAT(fileText("KV_Noon.ini"), HasSubstr("\ntxtNoonLetters=bc r\n"));
}

TEST_F(frmNoonTest, everyBoxIsThereAgain)
{
    auto& noon = open<frmNoon>();
    EXPECT_EQ(focused(), "txtNoonFix(0)");
    int figure = 1; // another in each box, and of every box's range
    for (const Field& field : NoonFields)
        type(noon, field.name,
             field.kind == FieldKind::Figure
                 ? std::string(field.name) == "txtWake" ? "0.5" : std::to_string(figure++ % 12)
                 : std::string("its ") + field.name);
    std::vector<std::string> typed;
    typed.reserve(NoonFields.size());
    for (const Field& field : NoonFields)
        typed.push_back(text(noon, field.name));
    close(noon);
    auto& again = open<frmNoon>();
    for (std::size_t i = 0; i < typed.size(); ++i)
        EXPECT_EQ(text(again, NoonFields[i].name), typed[i]) << NoonFields[i].name;
}

TEST_F(frmNoonTest, menusFillTheBoxesThatTheyName)
{
    auto& noon = open<frmNoon>();
    EXPECT_EQ(dynamic_cast<QLineEdit&>(control(noon, "txtOrder")).placeholderText().toStdString(),
              usualOrder);
    EXPECT_EQ(noon.findChild<QMenu*>("mnuReport")->title(), "R&eport");
    program().saved().setSingleMemo(123.5);
    questions.willAnswer(Answer::Yes);
    choose(noon, "mnuRem(0)");
    EXPECT_EQ(text(noon, "txtToGo"), "123.5");
    program().shipNow.tellMotion(ShipNow::Motion{NavFunc113::Degrees(85), NavFunc113::Knots(14.5)});
    program().tellShipNow();
    choose(noon, "mnuShip(0)");
    EXPECT_EQ(text(noon, "txtNoonSpeed(1)"), "14.5");
    choose(noon, "mnuReport(1)");
    EXPECT_THAT(noon.notice().toStdString(), HasSubstr("There is no report yet."));
}

TEST_F(frmNoonTest, whatIsTypedWrongIsSaidAndNothingIsLost)
{
    auto& noon = open<frmNoon>();
    EXPECT_EQ(noon.notice().toStdString(), "the position record has no two fixes");
    for (const auto& [box, keys, says] :
         {std::array{"txtPitch", "30", "Pitch: not within 0 to 20"},
          {"txtWake", "1", "Wake fraction: not within 0 to 0.99"},
          {"txtPortTD", "15", "TD of the port: not within -12 to 14"},
          {"txtNoonWanted", "2026/13/1 6:00", "Wanted arrival: "},
          {"txtNoonWave", "-1", "Wave height: not within 0 to 50"},
          {"txtNoonLetters", "bX", "Weather letters: \"bX\" has one that the log does not know"},
          {"txtOrder", "run fule", "Fields of the mail: there is no \"fule\""},
          {"txtNoonFix(0)", "31", "First fix: not within 1 to 29"}}) {
        type(noon, box, keys);
        EXPECT_THAT(noon.notice().toStdString(), HasSubstr(says));
        EXPECT_EQ(text(noon, box), keys);
        type(noon, box, "");
        EXPECT_THAT(noon.notice().toStdString(), ::testing::Not(HasSubstr(says))) << "mended";
    }
}

} // namespace
} // namespace korvel
