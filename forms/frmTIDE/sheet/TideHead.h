// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/day/StationLines.h"
#include "forms/frmTIDE/day/TideChoice.h"
#include "forms/frmTIDE/day/TideResults.h"
#include "forms/frmTIDE/sheet/DateControls.h"
#include "shell/controls/Boxes.h"
#include "shell/controls/ResultLabels.h"

#include <QWidget>

#include <functional>
#include <string>

namespace korvel
{

/// Above the picture: place and date, how to get to others, the day's highest and lowest, and what
/// is to be said of them.
class TideHead : public QWidget
{
public:
    explicit TideHead(QWidget* parent);

    void showChoice(const TideChoice& choice);
    void showFigures(const TidePrediction& four, const StationLines& lines);

    std::function<void()> onDate;
    std::function<void()> onToday;
    std::function<void(const std::string& typed)> onFind;

    DateLabel* lblDate() const { return m_lblDate; }
    EntryBox* txtFind() const { return m_txtFind; }

private:
    void makeFindBox();
    QWidget* headLine();
    QWidget* figuresLine();

    ResultLabel* m_lblPlace = nullptr;
    DateLabel* m_lblDate = nullptr;
    ResultLabels<TidePrediction> m_labels;
    EntryBox* m_txtFind = nullptr;
    QLabel* m_lblRemark = nullptr;
    QLabel* m_lblUncertainty = nullptr;
    QLabel* m_lblEstimates = nullptr;
};

} // namespace korvel
