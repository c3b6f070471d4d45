// SPDX-License-Identifier: MIT
#include "bench/ui/UiBench.h"
#include "bench/ui/main.h"
#include "forms/frmPositionRecord/frmPositionRecord.h"

namespace
{

using namespace korvel;
using namespace korvel::bench;

/// 29 noons, half a degree of latitude and one of longitude apart.
void fillRows(QWidget& window)
{
    const auto put = [&](const char* array, int row, const QString& text) {
        find<QLineEdit>(window, memberName(array, row).toUtf8().constData()).setText(text);
    };
    for (int row = 0; row < static_cast<int>(positionRowCount); ++row) {
        put("txtSatelliteSMT", row, QString("2005/01/%1 12:00").arg(row + 1, 2, 10, QChar('0')));
        put("txtSatelliteTD", row, "9");
        put("txtLat", row, QString("%1.%2").arg(20 + row / 2).arg(row % 2 ? "30" : "00"));
        put("txtLong", row, QString("%1.1").arg(130 + row));
    }
}

/// A key in a latitude of the middle of a full record: two legs, the run, the totals and the
/// current are painted anew.
void keyInFullRecord(const Rounds& round)
{
    BenchProgram program;
    auto* window = new frmPositionRecord(program.program());
    fillRows(*window);
    find<QLineEdit>(*window, "txtCourseSteered").setText("60");
    find<QLineEdit>(*window, "txtSpeedSteered").setText("5");
    auto& box = find<QLineEdit>(*window, "txtLat(14)");
    prepare(*window, box);
    round([&] { digitAndBack(box); });
    delete window;
}

} // namespace

int main(int argc, char* argv[])
{
    return runUiBench(argc, argv,
                      {{"ours/position record key", keyInFullRecord},
                       {"peer/position record key", bareTextBox("27.00")}});
}
