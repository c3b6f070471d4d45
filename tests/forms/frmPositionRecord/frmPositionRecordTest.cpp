// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/frmPositionRecord.h"

#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QScrollArea>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;

class frmPositionRecordTest : public WindowTest
{
protected:
    static std::string at(const char* array, int row)
    {
        return memberName(array, row).toStdString();
    }
};

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

} // namespace
} // namespace korvel
