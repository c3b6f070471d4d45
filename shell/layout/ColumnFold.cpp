// SPDX-License-Identifier: MIT
#include "shell/layout/ColumnFold.h"

#include <algorithm>

namespace korvel
{

ColumnFold::ColumnFold(QLayout& columns)
    : m_columns(columns), m_row(qobject_cast<QBoxLayout*>(&columns))
{
    if (m_row && m_row->direction() != QBoxLayout::LeftToRight) m_row = nullptr;
}

int ColumnFold::widthUnfolded()
{
    if (!m_folded) m_width = m_columns.totalMinimumSize().width();
    return m_width;
}

void ColumnFold::fold(bool folded)
{
    if (folded == m_folded) return;
    if (folded) widthUnfolded();
    m_folded = folded;
    if (m_row) m_row->setDirection(folded ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    if (auto* grid = qobject_cast<QGridLayout*>(&m_columns)) foldGrid(*grid, folded);
}

void ColumnFold::foldGrid(QGridLayout& grid, bool folded)
{
    if (m_groups.empty()) {
        for (int i = 0; i < grid.count(); ++i) {
            Placed group{grid.itemAt(i)->widget(), grid.itemAt(i)->layout(), 0, 0, 0, 0};
            grid.getItemPosition(i, &group.row, &group.column, &group.rows, &group.columns);
            m_groups.push_back(group);
        }
        std::ranges::stable_sort(m_groups, {},
                                 [](const Placed& g) { return std::pair(g.row, g.column); });
    }
    const int columns = grid.columnCount();
    while (QLayoutItem* item = grid.takeAt(0))
        if (item->widget()) delete item; // a layout is its own item
    int line = 0;
    for (const Placed& group : m_groups) {
        if (folded)
            place(grid, group, line++, 0, 1, columns);
        else
            place(grid, group, group.row, group.column, group.rows, group.columns);
    }
}

void ColumnFold::place(QGridLayout& grid, const Placed& group, int row, int column, int rows,
                       int columns)
{
    if (group.widget)
        grid.addWidget(group.widget, row, column, rows, columns);
    else if (group.layout)
        grid.addLayout(group.layout, row, column, rows, columns);
}

} // namespace korvel
