// SPDX-License-Identifier: MIT
#include "shell/controls/RowsModel.h"

#include "app/reading/Remarks.h"
#include "shell/controls/RowsView.h"
#include "shell/machine/AsQString.h"

namespace korvel
{

int RowsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int RowsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

void RowsModel::followRows(std::size_t rows)
{
    const int wanted = static_cast<int>(rows);
    if (wanted > m_rows) {
        beginInsertRows({}, m_rows, wanted - 1);
        m_rows = wanted;
        endInsertRows();
    } else if (wanted < m_rows) {
        beginRemoveRows({}, wanted, m_rows - 1);
        m_rows = wanted;
        endRemoveRows();
    }
    emit dataChanged(index(0, 0), index(m_rows - 1, m_columns - 1));
}

Qt::Alignment RowsModel::alignmentOf(int column) const
{
    return isOfWords(column) ? Qt::AlignLeft : Qt::AlignRight;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    const int column = index.column();
    switch (role) {
    case RowsView::HasRemark:
        return isMarked(row);
    case Qt::DisplayRole:
        return asQString(linesOf(row, column).first);
    case RowsView::SecondLine:
        return asQString(linesOf(row, column).second);
    case Qt::ToolTipRole:
        if (column == 0) return asQString(remarkOf(row));
        [[fallthrough]];
    case Qt::AccessibleTextRole: {
        const Lines lines = linesOf(row, column);
        return asQString(joined({lines.first, lines.second}));
    }
    case Qt::TextAlignmentRole:
        return alignmentOf(column).toInt();
    default:
        return {};
    }
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return headOf(section);
    if (role == Qt::TextAlignmentRole) return (alignmentOf(section) | Qt::AlignBottom).toInt();
    return {};
}

} // namespace korvel
