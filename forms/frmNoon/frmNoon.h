// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmNoon/CalculateNoon.h"
#include "shell/window/CalculatorWindow.h"

namespace korvel
{

/// The noon report, from the files of the position record and the passage plan as they were last
/// written; what stands in their windows is written first.
///
/// Its record "KV_Noon.ini": a first line that tells kind and version, then a line a box.
class frmNoon : public CalculatorWindow
{
public:
    explicit frmNoon(Program& program);

protected:
    WorkingPaper paper() const override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* layOutAnswers() const;
    QWidget* layOutGroup(const char* title, NoonBox first, NoonBox end) const;
    QWidget* layOutResults() const;
    void addMenus();

    void readSources();
    void readBunkers();
    EntryBox* box(NoonBox which) const { return m_boxes[placeOf(which)]; }
    NoonBoxes boxes() const;
    NoonInput input() const;
    std::string recordText() const;
    std::string take(const std::string& bytes);
    void run();

    FieldBoxes m_boxes;
    ResultLabels<NoonResult> m_results;
    PositionRecordInput m_record;
    PassagePlan m_plan;
    BunkersNow m_bunkers;
    NoonResult m_shown;
    int m_calculation{};
};

} // namespace korvel
