// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/sight/CalculateLOP.h"
#include "forms/frmSunSight/sight/MeridianPassage.h"
#include "shell/controls/ResultLabels.h"
#include "shell/layout/DetailsFold.h"

#include <array>

class QGroupBox;

namespace korvel
{

/// What comes of the sight being entered: its line of position, the worksheet behind "Details"; in
/// a group of its own the meridian passage.
class LinePanel : public QWidget
{
public:
    explicit LinePanel(QWidget* parent);

    void showResults(const LOPResult& line, const MeridianResult& noon);

    std::vector<ResultLabel*> results() const;

    /// What the body is, for the place beside its box.
    ResultLabel* bodyLabel() const { return m_lblSunBody[0]; }
    QGroupBox* noon() const { return m_noon; }
    /// Intercept and azimuth, for above what scrolls.
    AnswerStrip* answers() const { return m_answers; }
    DetailsFold& details() { return *m_details; }

private:
    /// Hs, nine terms, upper limb, rounding, Ho.
    static constexpr std::size_t worksheetLines = 13;

    void layOutWorksheet();
    QGroupBox* layOutLine();
    void layOutNoon();
    void showWorksheet(const std::vector<WorksheetLine>& lines);

    QGroupBox* m_noon;
    QGroupBox* m_worksheet;
    DetailsFold* m_details;
    QLabel* m_passage = nullptr; ///< caption of the passage
    ResultLabels<LOPResult> m_lblSunBody;
    ResultLabels<LOPResult> m_lblSunTime;
    std::array<QLabel*, worksheetLines> m_lblSunTerm{};
    std::array<ResultLabel*, worksheetLines> m_lblSunValue{};
    ResultLabels<LOPResult> m_lblSunLine;
    ResultLabels<MeridianResult> m_lblSunNoon;
    AnswerStrip* m_answers;
};

} // namespace korvel
