// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/CrudeResults.h"

#include "forms/frmCRUDE/CrudeShown.h"
#include "shell/controls/AnswerStrip.h"
#include "shell/layout/Panels.h"

#include <algorithm>

namespace korvel
{

CrudeResults::CrudeResults() : m_labels(CrudeShown, this), m_answers(new AnswerStrip(this))
{
    dressLabels();
    layOutAnswers();
    auto* grid = new QGridLayout(this);
    layOutBody(*grid);
    grid->setVerticalSpacing(fontMetrics().leading() + fontMetrics().descent());
    addHead(grid, "Oil");
    layOutRows(grid, "lblRangeFlag", true);
    addHead(grid, "Volume");
    layOutRows(grid, "lblKilolitresMethod", true);
    layOutHeads(grid, "Net, by density, whatever KL/Bbl says", "at 15 °C", "at 60 °F");
    layOutRows(grid, "lblBarrels60", false);
    layOutHeads(grid, "Weight", "in air", "in vacuo");
    layOutRows(grid, "lblLongTonsInVacuo", false);
    giveRoom(grid);
}

ResultLabel* CrudeResults::named(const char* name) const
{
    return *std::ranges::find_if(
        labels(), [name](const ResultLabel* label) { return label->objectName() == name; });
}

void CrudeResults::dressLabels()
{
    for (ResultLabel* label : labels()) {
        const bool isNote = label->weight() == Weight::Remark;
        const bool isAnswer = label->weight() == Weight::Answer;
        label->setAlignment((isNote || isAnswer ? Qt::AlignLeft : Qt::AlignRight) |
                            Qt::AlignVCenter);
        if (isAnswer) label->setRoom("0000000.000");
        if (!isNote) continue;
        label->setFont(font());
        label->setRoom({});
    }
    // Two lines: what is below stands still when a factor of one's own makes it long.
    for (const char* note : {"lblBarrelsMethod", "lblKilolitresMethod"})
        named(note)->setRoom("at 60 °F = kL at 15 °C / 0.1589156,", 2);
}

namespace
{

/// Answers have a place of their own; a note behind one goes with it.
bool isNoteOfAnswer(std::size_t result)
{
    return result < CrudeShown.size() && CrudeShown[result].weight == Weight::Remark &&
           CrudeShown[result - 1].weight == Weight::Answer;
}

} // namespace

void CrudeResults::layOutAnswers()
{
    for (std::size_t i = 0; i < CrudeShown.size(); ++i) {
        if (CrudeShown[i].weight != Weight::Answer) continue;
        ResultLabel* note = isNoteOfAnswer(i + 1) ? m_labels[i + 1] : nullptr;
        m_answers->add(CrudeShown[i].caption, m_labels[i], CrudeShown[i].unit, note);
    }
}

/// Rows of a caption and the figures that belong to it, up to a result.
void CrudeResults::layOutRows(QGridLayout* grid, const char* last, bool unitsBeside)
{
    const ResultLabel* end = named(last);
    for (bool isLast = false; !isLast;) {
        const std::size_t first = m_next;
        do {
            isLast = m_labels[m_next] == end;
            ++m_next;
        } while (m_next < CrudeShown.size() && !CrudeShown[m_next].caption);
        if (!isNoteOfAnswer(first + 1)) layOutRow(grid, first, m_next, unitsBeside);
    }
}

void CrudeResults::layOutRow(QGridLayout* grid, std::size_t first, std::size_t end, bool unitBeside)
{
    constexpr int columns = 4;
    const CrudeFigure& row = CrudeTable::figures[first];
    grid->addWidget(new QLabel(row.shown.caption), m_row, 0);
    int column = 1;
    for (std::size_t i = first; i < end; ++i, ++column) {
        const Weight weight = CrudeShown[i].weight;
        const int wide = weight == Weight::Remark ? columns - column : 1;
        if (weight == Weight::Answer)
            grid->addWidget(new QLabel("above"), m_row, column, Qt::AlignRight);
        else
            grid->addWidget(m_labels[i], m_row, column, 1, wide);
    }
    if (unitBeside && *row.unit)
        grid->addWidget(new QLabel(row.unit), m_row, column, 1, columns - column);
    ++m_row;
}

void CrudeResults::addHead(QGridLayout* grid, const char* title)
{
    constexpr int aboveHead = 8;
    if (m_row > 0) grid->setRowMinimumHeight(m_row++, aboveHead);
    grid->addWidget(sectionHead(title), m_row++, 0, 1, -1);
}

void CrudeResults::layOutHeads(QGridLayout* grid, const char* title, const char* left,
                               const char* right)
{
    addHead(grid, title);
    grid->addWidget(columnHead(left, Qt::AlignRight), m_row, 1);
    grid->addWidget(columnHead(right, Qt::AlignRight), m_row++, 2);
}

void CrudeResults::giveRoom(QGridLayout* grid)
{
    grid->setRowStretch(m_row, 1);
    grid->setColumnStretch(3, 1);
    // Room for a large cargo, so that the columns stand still while the officer types.
    const int figure = rangeFlag()->fontMetrics().horizontalAdvance("00000000.000");
    grid->setColumnMinimumWidth(1, figure);
    grid->setColumnMinimumWidth(2, figure);
    grid->setColumnMinimumWidth(3, fontMetrics().horizontalAdvance("Table 56 exact, 0.999999 "));
}

} // namespace korvel
