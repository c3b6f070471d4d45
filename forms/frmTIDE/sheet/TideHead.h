// SPDX-License-Identifier: MIT
#pragma once

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

/// Above the picture: place and date, how to get to others, the zone time and where a stream sets.
class TideHead : public QWidget
{
public:
    explicit TideHead(QWidget* parent);

    void showChoice(const TideChoice& choice);
    void showFigures(const TidePrediction& four);

    std::function<void()> onDate;
    std::function<void()> onToday;
    std::function<void(const std::string& typed)> onFind;

    EntryBox* txtFind() const { return m_txtFind; }
    /// The highest and lowest of the half hours, which stand behind "Details".
    QWidget* halfHours() const { return m_halfHours; }

private:
    void makeFindBox();
    void layOutHead();
    void layOutHalfHours();

    ResultLabel* m_lblPlace = nullptr;
    DateLabel* m_lblDate = nullptr;
    ResultLabels<TidePrediction> m_labels;
    EntryBox* m_txtFind = nullptr;
    QWidget* m_halfHours = nullptr;
};

} // namespace korvel
