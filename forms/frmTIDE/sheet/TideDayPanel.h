// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/day/TideResults.h"
#include "shell/controls/FieldBoxes.h"
#include "shell/controls/ResultLabels.h"

#include <QWidget>

#include <array>
#include <functional>

class QGridLayout;

namespace korvel
{

/// Below the picture: the day's high and low waters by both ways, the range, what the water does at
/// this moment, and the questions of a height at a time and of the times of a height.
class TideDayPanel : public QWidget
{
public:
    explicit TideDayPanel(QWidget* parent);

    void showDay(const TideDayShown& day, bool withAll);
    void showNow(const std::string& text);

    /// What is asked; called when a box changes and when another day is shown.
    std::function<void(const CurveAnswer& height, const CurveAnswer& times)> onAnswers;

    /// What is asked, as understood, and the answers that are shown.
    std::vector<PaperFigure> questions() const;
    const CurveAnswer& heightAnswer() const { return m_texts.height; }
    const CurveAnswer& timesAnswer() const { return m_texts.times; }

    QWidget* firstBox() const { return m_boxes[0]; }

private:
    QGridLayout* layOutWaters();
    QGridLayout* layOutQuestions();
    QGridLayout* layOutAnswers();
    void answer();

    FieldBoxes m_boxes;
    ResultLabels<TideDayTexts> m_labels;
    std::optional<TideDayShown> m_day;
    TideDayTexts m_texts;
    QLabel* m_allHeading = nullptr;
    std::array<QLabel*, 2> m_captions{}; ///< of the two questions
    QLabel* m_unit = nullptr;            ///< of the second one
    QLabel* m_answerHeading = nullptr;
};

} // namespace korvel
