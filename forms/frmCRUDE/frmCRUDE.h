// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCRUDE/CrudeResults.h"
#include "shell/window/CalculatorWindow.h"

#include <functional>

class QCheckBox;
class QComboBox;
class QPushButton;

namespace korvel
{

/// Crude oil: from the observed volume to standard volume, barrels, kilolitres and tons.
///
/// Record of the settings file: the texts of volume, free water, temperature, density, observed
/// temperature, sediment and water, KL/Bbl; then as numbers, the index chosen in each list: volume
/// unit, temperature unit, density base, means of reading, decimals of the VCF, rule of weight,
/// edition; then, as a tick, whether the density was observed.
class frmCRUDE : public CalculatorWindow
{
public:
    explicit frmCRUDE(Program& program);

protected:
    WorkingPaper paper() const override;

private:
    void addChoices();
    QWidget* layOutInputs();
    QWidget* layOutMethods();
    void addMenus();
    void addMemoMenus();
    void useCrudeSettings();

    CrudeInput input() const;
    std::vector<PaperFigure> paperInputs(const std::vector<PaperFigure>& boxes) const;
    void run();
    void showUnits();
    QString unitOf(std::size_t field) const;
    void clearCargo();

    FieldBoxes m_boxes;
    QComboBox* m_cboVolumeUnit;
    QComboBox* m_cboTemperatureUnit;
    QComboBox* m_cboDensityBase;
    QComboBox* m_cboReadWith;
    QComboBox* m_cboVCFDecimals;
    QComboBox* m_cboWeightRule;
    QComboBox* m_cboEdition;
    std::vector<QComboBox*> m_choices; ///< in the order of the record
    QCheckBox* m_chkObserved;
    QPushButton* m_cmdFromDensity;
    CrudeResults* m_results;
    CrudeResult m_shown;
    std::vector<std::function<void()>> m_stores; ///< name the store entries with their figures

    QLabel* m_lblFreeWaterUnit;
    QLabel* m_lblObservedTemperatureUnit;

protected:
    void applyColours() override;
};

} // namespace korvel
