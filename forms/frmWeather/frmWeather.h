// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmWeather/CalculateWeather.h"
#include "shell/window/CalculatorWindow.h"

class QGroupBox;

namespace korvel
{

/// Terms of the log for waves, swell, visibility and weather. The window keeps no settings file.
class frmWeather : public CalculatorWindow
{
public:
    explicit frmWeather(Program& program);

protected:
    WorkingPaper paper() const override;

private:
    QGroupBox* layOutTerms();
    QGroupBox* layOutLetters();
    void addCalculations();

    FieldBoxes m_boxes;
    ResultLabels<WeatherShown> m_labels;
    WeatherShown m_shown;
};

} // namespace korvel
