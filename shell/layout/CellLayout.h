// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>

#include <initializer_list>
#include <memory>
#include <vector>

namespace korvel
{

/// Cells of controls, as many side by side as there is room for; what stands below each other is
/// aligned.
class CellLayout : public QLayout
{
    Q_OBJECT

public:
    /// @param columns most cells side by side
    /// @param reading Horizontal: the cells go row by row; Vertical: column by column
    CellLayout(QWidget* parent, int columns, Qt::Orientation reading);
    ~CellLayout() override;

    /// A cell of controls that stand side by side, caption, box and unit as a rule.
    void addCell(std::initializer_list<QWidget*> parts);

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_parts.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    QSize sizeHint() const override;
    /// One cell above the other.
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& room) override;

private:
    struct Shape {
        std::size_t columns, rows;
        std::vector<std::vector<int>> widths; ///< of the parts of the cells of a column
        std::vector<int> cells;               ///< widths of the columns
        std::vector<int> heights;             ///< of the rows
        QSize size;
    };
    struct Place {
        std::size_t column, row, part;
    };
    Place placeOf(std::size_t item, const Shape& shape) const;
    Shape shapeOf(std::size_t columns) const;
    Shape shapeFor(int width) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_parts;
    std::vector<std::pair<std::size_t, std::size_t>> m_places; ///< of each part: its cell and place
    std::size_t m_cells{};
    std::size_t m_columns;
    Qt::Orientation m_reading;
};

} // namespace korvel
