// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunMoon/CalculateRiseSet.h"
#include "shell/controls/RowTable.h"
#include "shell/layout/FocusFollower.h"
#include "shell/window/CalculatorWindow.h"

class QScrollBar;

namespace korvel
{

/// Rise and set of Sun and Moon on one date at up to sixteen places, one a row.
///
/// Record of "KV_SunMoon.ini": for each row place name, TD, latitude and longitude as typed. It is
/// written after every user action that computed a row.
class frmSunMoon : public CalculatorWindow
{
public:
    explicit frmSunMoon(Program& program);

    static constexpr int rows = 16;

protected:
    void applyColours() override;
    WorkingPaper paper() const override;

private:
    void addControls();
    QWidget* dateRow();
    void addMenus();

    NavFunc113::DateTime today();
    RiseSetInput input(std::size_t row) const;
    void runRows(std::size_t first, std::size_t last);
    void showRow(std::size_t row);
    void showDoubts(std::size_t row);
    void showNotices();
    void showRowInFocus();
    void focusMoved(const QWidget* now);
    void leaveDate();
    void cmdToday_Click();
    void clearAll();
    void undoClear();
    std::string azimuth(RiseSetLabel RiseSetResult::*label) const;

    EntryBox* m_txtSunMoon = nullptr;
    QScrollBar* m_scrMoonSun = nullptr;
    ResultLabels<RiseSetResult> m_lblDate; ///< of the date: the age of the Moon
    ResultLabel* m_lblRow = nullptr;       ///< the row in focus in full

    RowTable* m_table = nullptr;
    std::array<RiseSetRow, rows> m_numbers;
    std::array<RiseSetResult, rows> m_results;
    std::size_t m_row{};            ///< the row that last had the focus
    std::vector<QString> m_cleared; ///< texts of all boxes before they were cleared
    FocusFollower m_focus;
};

} // namespace korvel
