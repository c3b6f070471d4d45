// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCRUDE/CalculateCrude.h"
#include "shell/controls/ResultLabels.h"

#include <vector>

class QGridLayout;

namespace korvel
{

/// The result side of the crude-oil window: one label a figure of CrudeShown.
class CrudeResults : public QWidget
{
public:
    CrudeResults();

    void show(const CrudeResult& result) { m_labels.show(result); }
    const std::vector<ResultLabel*>& labels() const { return m_labels.all(); }

    /// Barrels, kilolitres and net tons in air, for above what scrolls.
    AnswerStrip* answers() const { return m_answers; }

    /// The label that shouts when the oil is outside its table.
    ResultLabel* rangeFlag() const { return named("lblRangeFlag"); }

private:
    ResultLabel* named(const char* name) const;
    void dressLabels();
    void layOutAnswers();
    void layOutRows(QGridLayout* grid, const char* last, bool unitsBeside);
    void layOutRow(QGridLayout* grid, std::size_t first, std::size_t end, bool unitBeside);
    void addHead(QGridLayout* grid, const char* title);
    void layOutHeads(QGridLayout* grid, const char* title, const char* left, const char* right);
    void giveRoom(QGridLayout* grid);

    ResultLabels<CrudeResult> m_labels;
    AnswerStrip* m_answers;
    std::size_t m_next{}; ///< the first result that has no place yet
    int m_row{};          ///< below all that have one
};

} // namespace korvel
