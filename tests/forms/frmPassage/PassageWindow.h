// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanRecord.h"
#include "forms/frmPassage/PlanTable.h"
#include "forms/frmPassage/frmPassage.h"
#include "tests/shell/ShellTesting.h"

#include <QTest>

#include <string>
#include <vector>

namespace korvel::testing
{

/// The window of the passage plan, and an officer's hands in it.
class PassageWindowTest : public WindowTest
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

} // namespace korvel::testing
