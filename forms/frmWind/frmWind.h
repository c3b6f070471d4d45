// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmWind/CalculateWind.h"
#include "shell/window/CalculatorWindow.h"

class QGroupBox;
class QRadioButton;

namespace korvel
{

class WindPictureBox;

/// True wind from the apparent wind.
///
/// Settings "KV_Wind.ini": the texts of txtWind(0) .. (3), then 0 for head up or 1 for north up.
class frmWind : public CalculatorWindow
{
public:
    explicit frmWind(Program& program);

protected:
    WorkingPaper paper() const override;
    std::vector<PaperPicture> paperPictures() override;

private:
    void addOptions();
    QGroupBox* layOutInputs();
    QGroupBox* layOutResults();
    QGroupBox* layOutOptions();
    void connectPicture();
    void nameSettings();

    void runWind();
    void optWind_Click();
    void picWind_MouseDown(QPointF place);
    void picWind_MouseMove(QPointF place);
    void picWind_MouseUp();
    WindOrientation orientation() const;

    FieldBoxes m_txtWind;
    ResultLabels<WindResult> m_lblWind;
    std::array<QRadioButton*, 2> m_optWind{};
    WindPictureBox* m_picWind = nullptr;
    WindResult m_wind;
    bool m_dragging = false;
    int m_calculation{};
};

} // namespace korvel
