// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmGC2000/CalculateGC.h"
#include "shell/controls/RowTable.h"
#include "shell/window/CalculatorWindow.h"

namespace korvel
{

class GCPicture;

/// Great circle and rhumb line between two positions, with a waypoint on every tenth meridian.
///
/// Settings "KV_GC.ini": the texts of txtGC(0) .. (3).
class frmGC2000 : public CalculatorWindow
{
public:
    explicit frmGC2000(Program& program);

protected:
    WorkingPaper paper() const override;
    std::vector<PaperPicture> paperPictures() override;

private:
    static constexpr int rowCount = GCResult::rowCount;

    void prepareResults();
    QWidget* layOutPositions();
    QWidget* layOutDistances();
    QWidget* layOutTrack();
    QWidget* layOutAnswers();
    QWidget* layOutTable();
    void addMenus();
    void addMemoMenus();
    void sendToPlan();
    void nameWaypointEntries();

    void runGC();
    void showRows();
    std::vector<ResultLabel*> allResults() const;
    std::string waypointText(std::size_t waypoint,
                             NavFunc113::DegMin GCWaypoint::*coordinate) const;

    FieldBoxes m_txtGC;
    ResultLabels<GCResult> m_shown;
    RowTable* m_waypoints = nullptr;
    GCPicture* m_picGC = nullptr;
    std::vector<QAction*> m_waypointEntries; ///< of the memo menu, for waypoints 1 .. 18
    GCResult m_result;
};

} // namespace korvel
