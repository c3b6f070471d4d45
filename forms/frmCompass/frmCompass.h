// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCompass/CalculateCompass.h"
#include "shell/window/CalculatorWindow.h"

namespace korvel
{

class ErrorPage;
class PageBar;

/// Errors of the compasses, the book that keeps them, the deviation that the book has found, and
/// courses into each other.
///
/// Record of "KV_Compass Error.ini": its kind and version, then what the pages keep, boxes before
/// choices.
class frmCompass : public CalculatorWindow
{
public:
    explicit frmCompass(Program& program);

    /// @param place "cmdPage(1)": the page of that name; else as in every window
    void goTo(const QString& place) override;

protected:
    WorkingPaper paper() const override;
    void applyColours() override;

private:
    void addPages();
    void connectPages();
    void addMenus();
    void addMemoMenus();
    void addCalculations();
    void useRecord();
    void readModel();

    CompassInput errorInput() const;
    void runError();
    void cmdNow_Click();

    std::optional<almanac::MagneticModel> m_ownModel; ///< of the program's folder
    const almanac::MagneticModel& model() const;

    PageBar* m_pages;
    ErrorPage* m_error;
    CompassResult m_found;
    int m_errorCalculation = 0;
};

} // namespace korvel
