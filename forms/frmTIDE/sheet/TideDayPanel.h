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

/// The answers of a day: what the water does at this moment and the high and low waters, beside the
/// picture; below it the questions of a height at a time and of the times of a height; behind
/// "Details" the waters by all constituents.
class TideDayPanel : public QWidget
{
public:
    explicit TideDayPanel(QWidget* parent);

    void showDay(const TideDayShown& day, bool withAll);
    /// @param hour of the day that is shown; nothing while the present is on another day
    void showNow(const std::string& text, std::optional<NavFunc113::Hours> hour);

    /// Stands beside the picture.
    QWidget* watersPart() const { return m_waters; }
    QWidget* byAllPart() const { return m_byAll; }
    ResultLabel* rangeLabel() const { return m_labels[DayShown::range]; }

    /// What is asked; called when a box changes and when another day is shown.
    std::function<void(const CurveAnswer& height, const CurveAnswer& times)> onAnswers;

    /// What is asked, as understood, and the answers that are shown.
    std::vector<PaperFigure> questions() const;
    const CurveAnswer& heightAnswer() const { return m_texts.height; }
    const CurveAnswer& timesAnswer() const { return m_texts.times; }

private:
    ResultLabel* make(std::size_t result);
    void layOutWaters();
    void layOutByAll();
    void layOutQuestion(QGridLayout* grid, std::size_t question);
    void layOutQuestions();
    void answer();
    void dressWaters();

    FieldBoxes m_boxes;
    QWidget* m_waters;
    QWidget* m_byAll;
    ResultLabels<TideDayTexts> m_labels;
    std::optional<TideDayShown> m_day;
    TideDayTexts m_texts;
    std::optional<NavFunc113::Hours> m_now; ///< on the day that is shown
    QLabel* m_waterHeading = nullptr;
    std::array<QLabel*, 2> m_captions{}; ///< of the two questions
    std::array<QLabel*, 2> m_units{};
    std::array<QLabel*, 2> m_headings{}; ///< of their answers
};

} // namespace korvel
