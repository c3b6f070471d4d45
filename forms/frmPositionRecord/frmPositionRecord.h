// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/ObservedFix.h"
#include "app/records/RecordFile.h"
#include "forms/frmPositionRecord/PositionTable.h"
#include "forms/frmPositionRecord/RecordMemory.h"
#include "shell/layout/FocusFollower.h"
#include "shell/window/CalculatorWindow.h"

namespace korvel
{

/// 29 fixes with times, and what lies between them.
///
/// Record of the settings file: the texts of the rows, each SMT, TD, latitude, longitude; then
/// course and speed steered. "KV_PositionFixes.ini": kind and ellipse of fixes by observation.
class frmPositionRecord : public CalculatorWindow
{
public:
    explicit frmPositionRecord(Program& program);

protected:
    WorkingPaper paper() const override;
    void applyColours() override;

private:
    void addTotals();
    void addCalculationOfRecord();
    std::vector<ResultLabel*> resultsRestingOn(const EntryBox& input) const;
    void addMenus();
    void useRecordSettings();
    void focusMoved(const QWidget* now);

    PositionRecordInput input() const;
    void run();
    void tellShip();
    void normaliseTime(std::size_t row);

    using Change = std::function<void(PositionRows&)>;
    void changeRows(RowChange::Kind kind, const Change& change);
    void refuse(const QString& why, std::function<bool()> stillHolds);
    void fill(const PositionRows& rows);
    void insertRowHere();
    void clearAll();
    void undo();
    void putTimeNow();
    void copyAsText() const;
    void print();
    void importList();

    void loadFixes();
    void takeFix();
    const ObservedFix* fixOfRow(std::size_t row) const;
    void tellFixOfRow();
    void addFixes(WorkingPaper& paper) const;

    PositionTable* m_table;
    FieldBoxes m_steered;
    EntryBox* m_txtCourseSteered;
    EntryBox* m_txtSpeedSteered;
    ResultLabels<PositionRecordResult> m_results;

    PositionRecordResult m_shown;
    RecordMemory m_memory;                  ///< of the calculation that m_shown came from
    std::optional<RowChange> m_lastChange;  ///< of rows; what is typed is no change of rows
    std::function<bool()> m_isStillRefused; ///< while the notice line says why
    RecordFile m_fixesFile;
    ObservedFixes m_observed; ///< kind and ellipse of rows that hold fixes by observation
    int m_calculation{};
    std::size_t m_row{};    ///< the row that has, or last had, the focus
    bool m_filling = false; ///< many boxes are being filled, one calculation follows
    FocusFollower m_focus;
};

} // namespace korvel
