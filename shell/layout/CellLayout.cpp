// SPDX-License-Identifier: MIT
#include "shell/layout/CellLayout.h"

#include "shell/layout/Panels.h"

#include <algorithm>
#include <numeric>

namespace korvel
{
namespace
{

int sum(const std::vector<int>& sizes, int gap)
{
    return std::accumulate(sizes.begin(), sizes.end(), 0) +
           gap * std::max(0, static_cast<int>(sizes.size()) - 1);
}

/// A unit is not to be read with the caption of its neighbour.
int cellGap(const QLayout& layout)
{
    return 2 * levelGap(layout);
}

} // namespace

CellLayout::CellLayout(QWidget* parent, int columns, Qt::Orientation reading)
    : QLayout(parent), m_columns(static_cast<std::size_t>(columns)), m_reading(reading)
{
    setContentsMargins(0, 0, 0, 0);
}

CellLayout::~CellLayout() = default;

void CellLayout::addCell(std::initializer_list<QWidget*> parts)
{
    std::size_t part = 0;
    for (QWidget* each : parts) {
        addWidget(each);
        m_places.back() = {m_cells, part++};
    }
    ++m_cells;
}

void CellLayout::addItem(QLayoutItem* item)
{
    m_parts.emplace_back(item);
    m_places.emplace_back(m_cells, 0);
    invalidate();
}

QLayoutItem* CellLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_parts[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* CellLayout::takeAt(int index)
{
    if (!itemAt(index)) return nullptr;
    QLayoutItem* taken = m_parts[static_cast<std::size_t>(index)].release();
    m_parts.erase(m_parts.begin() + index);
    m_places.erase(m_places.begin() + index);
    return taken;
}

CellLayout::Place CellLayout::placeOf(std::size_t item, const Shape& shape) const
{
    const auto [cell, part] = m_places[item];
    if (m_reading == Qt::Horizontal) return {cell % shape.columns, cell / shape.columns, part};
    return {cell / shape.rows, cell % shape.rows, part};
}

CellLayout::Shape CellLayout::shapeOf(std::size_t columns) const
{
    Shape shape{columns, (m_cells + columns - 1) / columns, {}, {}, {}, {}};
    shape.widths.resize(columns);
    shape.heights.resize(shape.rows);
    for (std::size_t i = 0; i < m_parts.size(); ++i) {
        const Place at = placeOf(i, shape);
        std::vector<int>& widths = shape.widths[at.column];
        widths.resize(std::max(widths.size(), at.part + 1));
        widths[at.part] = std::max(widths[at.part], m_parts[i]->minimumSize().width());
        shape.heights[at.row] = std::max(shape.heights[at.row], m_parts[i]->sizeHint().height());
    }
    for (const std::vector<int>& widths : shape.widths)
        shape.cells.push_back(sum(widths, levelGap(*this)));
    shape.size = {sum(shape.cells, cellGap(*this)), sum(shape.heights, uprightGap(*this))};
    return shape;
}

CellLayout::Shape CellLayout::shapeFor(int width) const
{
    Shape shape = shapeOf(m_columns);
    while (shape.columns > 1 && shape.size.width() > width)
        shape = shapeOf(shape.columns - 1);
    return shape;
}

QSize CellLayout::sizeHint() const
{
    return shapeOf(m_columns).size;
}

QSize CellLayout::minimumSize() const
{
    return {shapeOf(1).size.width(), 0};
}

int CellLayout::heightForWidth(int width) const
{
    return shapeFor(width).size.height();
}

void CellLayout::setGeometry(const QRect& room)
{
    QLayout::setGeometry(room);
    const Shape shape = shapeFor(room.width());
    const auto before = [](const std::vector<int>& sizes, std::size_t count, int gap) {
        return std::accumulate(sizes.begin(), sizes.begin() + static_cast<std::ptrdiff_t>(count),
                               0) +
               gap * static_cast<int>(count);
    };
    for (std::size_t i = 0; i < m_parts.size(); ++i) {
        const Place at = placeOf(i, shape);
        const int x = before(shape.cells, at.column, cellGap(*this)) +
                      before(shape.widths[at.column], at.part, levelGap(*this));
        const int y = before(shape.heights, at.row, uprightGap(*this));
        m_parts[i]->setGeometry(
            QRect(room.topLeft() + QPoint(x, y),
                  QSize(shape.widths[at.column][at.part], shape.heights[at.row])));
    }
}

} // namespace korvel
