// SPDX-License-Identifier: MIT
#include "bench/routes/PlanOfRows.h"
#include "bench/ui/UiBench.h"
#include "bench/ui/main.h"
#include "forms/frmPassage/PlanRecord.h"
#include "forms/frmPassage/PlanRoute.h"
#include "forms/frmPassage/frmPassage.h"
#include "routes/files/RtzWriter.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

/// The window of the passage plan with 500 rows beside the same with 20.
namespace
{

using namespace korvel;
using namespace korvel::bench;

constexpr std::size_t most = 500;
constexpr std::size_t few = 20;

/// A program with a plan in its record.
struct PlanProgram : BenchProgram {
    explicit PlanProgram(std::size_t rows)
    {
        files.save("KV_Passage.ini", planRecordText(planOfRows(rows)));
    }
};

/// A key in the latitude of a row in the middle.
Work keyIn(std::size_t rows)
{
    return [rows](const Rounds& round) {
        PlanProgram program(rows);
        auto* window = new frmPassage(program.program());
        auto& box = find<QLineEdit>(*window, "txtWpLat");
        prepare(*window, box);
        for (std::size_t row = 0; row < rows / 2; ++row)
            keyToPaint(box, Qt::Key_Down, {});
        box.setFocus(Qt::OtherFocusReason);
        box.end(false);
        round([&] { digitAndBack(box); });
        delete window;
    };
}

/// The window from nothing to its painted rows, and away again.
Work open(std::size_t rows)
{
    return [rows](const Rounds& round) {
        PlanProgram program(rows);
        round([&] {
            frmPassage window(program.program());
            window.show();
            QApplication::processEvents();
        });
    };
}

/// A file of a route let go over the window, to the painted rows.
Work drop(std::size_t rows)
{
    return [rows](const Rounds& round) {
        PlanProgram program(few);
        const PassagePlan plan = planOfRows(rows);
        program.files.save("plan.rtz",
                           writeRtz(routeOfPlan(plan, PlanReckoning(plan, {})).route).bytes);
        auto* window = new frmPassage(program.program());
        auto& box = find<QLineEdit>(*window, "txtWaypoint");
        prepare(*window, box);
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(program.folder.filePath("plan.rtz"))});
        round([&] {
            QDragEnterEvent comes({2, 2}, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&box, &comes);
            QDropEvent let(QPointF(2, 2), Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&box, &let);
            QApplication::processEvents();
        });
        delete window;
    };
}

} // namespace

int main(int argc, char* argv[])
{
    return runUiBench(argc, argv,
                      {{"ours/frmPassage key", keyIn(most)},
                       {"peer/frmPassage key", keyIn(few)},
                       {"ours/frmPassage open", open(most)},
                       {"peer/frmPassage open", open(few)},
                       {"ours/frmPassage rtz", drop(most)},
                       {"peer/frmPassage rtz", drop(few)}});
}
