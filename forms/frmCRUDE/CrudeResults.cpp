// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/CrudeResults.h"

#include "forms/frmCRUDE/CrudeShown.h"
#include "shell/layout/Panels.h"

#include <algorithm>

namespace korvel
{

CrudeResults::CrudeResults() : m_labels(CrudeShown, this)
{
    dressLabels();
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
        label->setAlignment((isNote ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        if (label->weight() == Weight::Answer) label->setRoom("0000000.000");
        if (!isNote) continue;
        label->setFont(font());
        label->setRoom({});
    }
    // Two lines: the rows below stand still when a factor of one's own makes it long.
    for (const char* note : {"lblBarrelsMethod", "lblKilolitresMethod"})
        named(note)->setRoom({}, 2);
}

/// Rows of a caption and the figures that belong to it, up to a result.
void CrudeResults::layOutRows(QGridLayout* grid, const char* last, bool unitsBeside)
{
    constexpr int columns = 4;
    const ResultLabel* end = named(last);
    for (bool isLast = false; !isLast; ++m_row) {
        const CrudeFigure& first = CrudeTable::figures[m_next];
        grid->addWidget(new QLabel(first.shown.caption), m_row, 0);
        int column = 1;
        do {
            ResultLabel* label = m_labels[m_next];
            const bool isNote = label->weight() == Weight::Remark;
            grid->addWidget(label, m_row, column, 1, isNote ? columns - column : 1);
            isLast = label == end;
            ++column;
            ++m_next;
        } while (m_next < CrudeShown.size() && !CrudeShown[m_next].caption);
        if (unitsBeside && *first.unit)
            grid->addWidget(new QLabel(first.unit), m_row, column, 1, columns - column);
    }
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
    // Where there is room for it the usual note of the barrels stands in one line.
    const int note =
        fontMetrics().horizontalAdvance("at 60 °F = kL at 15 °C / 0.1589156, by density ");
    grid->addItem(new QSpacerItem(note - figure, 0, QSizePolicy::Preferred), m_row, 3);
}

} // namespace korvel
