// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCDDR/CalculateCD.h"
#include "forms/frmCDDR/CalculateDR.h"
#include "shell/window/CalculatorWindow.h"

class QGroupBox;
class QRadioButton;

namespace korvel
{

/// Course and distance between two positions, and dead reckoning, side by side.
class frmCDDR : public CalculatorWindow
{
public:
    explicit frmCDDR(Program& program);

protected:
    WorkingPaper paper() const override;

private:
    static constexpr std::size_t positionFields = 6; ///< txtCDDR(0) .. (5)

    void setCopies();
    void addOptions();
    QGroupBox* layOutCD();
    QGroupBox* layOutDR();
    void addPositionRow(QGridLayout* grid, std::size_t field);
    void addMenus();
    void addDataMenu();
    void addMemoMenus();

    void runCD();
    void runDR();
    void optNSEW_Click(std::size_t index);
    void checkValueName(std::size_t field);
    void sayTurned(std::size_t field, bool turned);
    void copyPosition(std::size_t fromField, std::size_t toField);
    void putDRResult(std::size_t toField);
    void exchangeCD();
    void clearCalculator(std::size_t first);

    FieldBoxes m_txtCDDR;
    ResultLabels<CDResult> m_lblCD;
    ResultLabels<DRResult> m_lblDR;
    std::array<QRadioButton*, 12> m_optNSEW{};
    std::array<bool, positionFields> m_chosenNegative{}; ///< S or W was chosen last
    std::array<bool, positionFields> m_choiceIsOver{};   ///< a figure was typed for it
    CDResult m_cd;
    DRResult m_dr;
};

} // namespace korvel
