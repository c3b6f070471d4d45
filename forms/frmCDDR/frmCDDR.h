// SPDX-License-Identifier: MIT
#pragma once

#include "app/shell/CalculatorWindow.h"
#include "forms/frmCDDR/CalculateCD.h"
#include "forms/frmCDDR/CalculateDR.h"

class QGroupBox;
class QRadioButton;

namespace korvel
{

/// Course and distance between two positions, and dead reckoning, side by side.
class frmCDDR : public CalculatorWindow
{
public:
    explicit frmCDDR(Program& program);

private:
    static constexpr int positionFields = 6; ///< txtCDDR(0) .. (5)

    void addBoxes();
    void addOptions();
    QGroupBox* layOutCD();
    QGroupBox* layOutDR();
    void addPositionRow(class QGridLayout* grid, int row, int field, const char* caption);
    void addMenus();
    void addDataMenu();
    void addMemoMenus();

    void runCD();
    void runDR();
    void optNSEW_Click(int index);
    void checkValueName(int field);
    void copyPosition(int fromField, int toField);
    void putDRResult(int toField);
    void exchangeCD();
    void clearCalculator(int first);

    std::array<EntryBox*, 8> m_txtCDDR{};
    std::array<ResultLabel*, 4> m_lblCDDR{};
    std::array<QRadioButton*, 12> m_optNSEW{};
    CDResult m_cd;
    DRResult m_dr;
};

} // namespace korvel
