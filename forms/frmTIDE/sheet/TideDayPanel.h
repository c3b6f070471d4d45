// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/day/TideWaters.h"
#include "shell/controls/FieldBoxes.h"
#include "shell/controls/ResultLabel.h"

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
    const std::array<CurveAnswer, 2>& answers() const { return m_answers; }

    QWidget* firstBox() const { return m_boxes[0]; }

private:
    static constexpr std::size_t rows = 8;

    ResultLabel* addLabel(const QString& name, const QString& accessibleName);
    QGridLayout* layOutWaters();
    QGridLayout* layOutQuestions();
    QGridLayout* layOutAnswers();
    void answer();

    FieldBoxes m_boxes;
    std::optional<TideDayShown> m_day;
    std::array<CurveAnswer, 2> m_answers; ///< height at a time, times of a height
    std::array<ResultLabel*, rows> m_lblWater{};
    std::array<ResultLabel*, rows> m_lblWaterAll{};
    QLabel* m_allHeading = nullptr;
    std::array<QLabel*, 2> m_captions{}; ///< of the two questions
    QLabel* m_unit = nullptr;            ///< of the second one
    QLabel* m_answerHeading = nullptr;
    ResultLabel* m_lblRange = nullptr;
    ResultLabel* m_lblNow = nullptr;
    /// Of the two questions: by the four constituents, and by all.
    std::array<ResultLabel*, 2> m_lblAnswer{};
    std::array<ResultLabel*, 2> m_lblAnswerAll{};
};

} // namespace korvel
