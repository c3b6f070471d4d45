// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/frmPositionRecord.h"

#include "app/reading/Format.h"
#include "navlib/datetime.h"
#include "shell/controls/NoticeLine.h"
#include "shell/screen/ColourScheme.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollArea>
#include <QTest>

#include <sstream>
#include <utility>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using NavFunc113::DegMin;
using ::testing::HasSubstr;
using ::testing::Not;

class frmPositionRecordTest : public WindowTest
{
protected:
    static std::string at(const char* array, int row)
    {
        return memberName(array, row).toStdString();
    }

    /// A row of the record, its boxes parted by semicolons.
    static void typeFix(const QWidget& record, int row, const std::string& boxes)
    {
        std::istringstream cells(boxes);
        for (const char* box : {"txtSatelliteSMT", "txtSatelliteTD", "txtLat", "txtLong"}) {
            std::string cell;
            std::getline(cells, cell, ';');
            type(record, at(box, row), cell);
        }
    }

    static std::string notice(const QWidget& window) { return text(window, "lblNotice"); }

    static ObservedFix observed(int second)
    {
        return {DegMin(35.305), DegMin(-142.031),
                instantOf(NavFunc113::MakeDateTime({2024, 5, 1}, 3 * 3600 + second)),
                "Fix, 3 lines", "95 %: 1.0 x 0.5 nm"};
    }
};

TEST_F(frmPositionRecordTest, anObservedFixGoesBelowTheLastRowAndKeepsItsKind)
{
    auto* window = &open<frmPositionRecord>();
    EXPECT_EQ(focused(), "txtSatelliteSMT(0)");
    type(*window, "txtLat(3)", "1");
    program().fixForRecord = observed(30);
    emit program().fixOffered();
    const auto row = [&window] {
        return text(*window, "txtSatelliteSMT(4)") + ";" + text(*window, "txtSatelliteTD(4)") +
               ";" + text(*window, "txtLat(4)") + ";" + text(*window, "txtLong(4)");
    };
    const std::string taken = row();
    EXPECT_EQ(taken, "2024/05/01 12:00:30;9.0;35.305;-142.031");
    EXPECT_EQ(focused(), "txtSatelliteSMT(4)");
    EXPECT_THAT(notice(*window), HasSubstr("Row 5: Fix, 3 lines; 95 %"));
    for (const char* other :
         {"2024/05/01 12:00:31;9;35.305;-142.031", "2024/05/01 12:00:30;9;35.306;-142.031",
          "2024/05/01 12:00:30;9;35.305;-142.03", "2024/05/01 12:00:30;10;35.305;-142.031"}) {
        typeFix(*window, 4, other);
        control(*window, "txtLat(4)").setFocus();
        control(*window, "txtLat(3)").setFocus();
        control(*window, "txtLat(4)").setFocus();
        EXPECT_THAT(notice(*window), Not(HasSubstr("Fix, 3 lines"))) << other;
    }
    typeFix(*window, 4, taken);
    close(*window);
    window = &open<frmPositionRecord>();
    control(*window, "txtLat(4)").setFocus();
    EXPECT_THAT(notice(*window), HasSubstr("Row 5: Fix, 3 lines; 95 %"));

    type(*window, "txtLat(28)", "1");
    program().fixForRecord = observed(0);
    emit program().fixOffered();
    EXPECT_THAT(notice(*window), HasSubstr("Row 29 is in use: the fix was not taken"));
    type(*window, "txtLat(28)", "");
    EXPECT_THAT(notice(*window), Not(HasSubstr("Row 29")));
    program().fixForRecord = observed(0);
    emit program().fixOffered();
    EXPECT_EQ(text(*window, "txtSatelliteSMT(5)"), "2024/05/01 12:00");
}

TEST_F(frmPositionRecordTest, aRowThatCountsIsInDoubtAndOneThatDoesNotIsAtFault)
{
    auto& window = open<frmPositionRecord>();
    auto& line = dynamic_cast<NoticeLine&>(control(window, "lblNotice"));
    auto& number = control(window, "lblRow(0)");
    const auto colour = [&number] { return number.palette().color(number.foregroundRole()); };
    typeFix(window, 0, "2004/05/01 12:00;9.3;35;142");
    EXPECT_EQ(line.level(), NoticeLevel::Remark);
    EXPECT_EQ(number.toolTip(), "TD of 9 h 18 min");
    EXPECT_EQ(number.accessibleDescription(), "TD of 9 h 18 min");
    EXPECT_EQ(colour(), program().colours().notice);
    program().screen().toggleNight();
    EXPECT_EQ(colour(), program().colours().notice);
    for (const char* row : {"2004/05/01 12:00;9.3;x;142", "2004/05/01 12:00;9.3;35;x",
                            "2004/05/01 12:00;13;35;142"}) {
        typeFix(window, 0, row);
        EXPECT_EQ(line.level(), NoticeLevel::Fault) << row;
    }
    typeFix(window, 0, "2004/05/01 12:00;9;35;142");
    EXPECT_EQ(line.level(), std::nullopt);
    EXPECT_NE(colour(), program().colours().notice);
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

TEST_F(frmPositionRecordTest, theShipIsToldOfCoursesAndSpeedsThatThereAre)
{
    auto& window = open<frmPositionRecord>();
    typeFix(window, 0, "2004/05/01 12:00;9;35;142");
    const struct {
        const char *course, *speed, *told; ///< with every key; the last one that can be
    } rows[] = {{"0", "0", "0 0"},     {"360", "100", "360 100"}, {"361", "100", "36 100"},
                {"-1", "5", "36 100"}, {"90", "101", "90 10"},    {"90", "-1", "90 10"}};
    for (const auto& [course, speed, told] : rows) {
        type(window, "txtCourseSteered", course);
        type(window, "txtSpeedSteered", speed);
        const auto& motion = program().shipNow.motion().value();
        EXPECT_EQ(Format(motion.course, "0") + " " + Format(motion.speed, "0"), told) << course;
    }
}

} // namespace
} // namespace korvel
