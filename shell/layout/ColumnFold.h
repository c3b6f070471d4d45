// SPDX-License-Identifier: MIT
#pragma once

#include <QBoxLayout>
#include <QGridLayout>

#include <vector>

namespace korvel
{

/// Groups of controls that stand side by side, and one below the other where the room is too narrow
/// for that.
class ColumnFold
{
public:
    /// @param columns the layout of the groups: a row of them, or a grid. What stands one below the
    ///                other already stays so.
    explicit ColumnFold(QLayout& columns);

    void fold(bool folded);
    /// The room that the groups need side by side, as it was when they last stood so.
    int widthUnfolded();

private:
    struct Placed {
        QWidget* widget;
        QLayout* layout;
        int row, column, rows, columns;
    };
    static void place(QGridLayout& grid, const Placed& group, int row, int column, int rows,
                      int columns);
    void foldGrid(QGridLayout& grid, bool folded);

    QLayout& m_columns;
    QBoxLayout* m_row;            ///< nothing where the groups are no row
    std::vector<Placed> m_groups; ///< of a grid, in the order of reading
    int m_width{};
    bool m_folded = false;
};

} // namespace korvel
