// SPDX-License-Identifier: MIT
#include "app/shell/WrappingRow.h"

#include <QScreen>
#include <QSpacerItem>
#include <QWidget>

#include <algorithm>
#include <numeric>

namespace korvel
{

WrappingRow::WrappingRow(QWidget* parent) : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

WrappingRow::~WrappingRow() = default;

void WrappingRow::addSpacing(int width)
{
    addItem(new QSpacerItem(width, 0, QSizePolicy::Fixed, QSizePolicy::Minimum));
}

void WrappingRow::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
}

QLayoutItem* WrappingRow::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrappingRow::takeAt(int index)
{
    if (!itemAt(index)) return nullptr;
    QLayoutItem* taken = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    return taken;
}

QSize WrappingRow::sizeHint() const
{
    QSize all;
    for (const auto& item : m_items) {
        all.rwidth() += item->minimumSize().width();
        all.rheight() = std::max(all.height(), item->sizeHint().height());
    }
    return all;
}

/// A row that is hardly too wide for the screen is easier to read in one line, with its end
/// scrolled in, than in two.
bool WrappingRow::staysWhole() const
{
    constexpr double hardly = 1.05;
    const QWidget* table = parentWidget();
    return table && sizeHint().width() <= hardly * table->screen()->availableSize().width();
}

QSize WrappingRow::minimumSize() const
{
    if (staysWhole()) return sizeHint();
    QSize least;
    for (const auto& item : m_items)
        least = least.expandedTo(item->minimumSize());
    return least;
}

int WrappingRow::heightForWidth(int width) const
{
    const auto lines = linesFor(width);
    return std::accumulate(lines.begin(), lines.end(), 0,
                           [](int sum, const Line& line) { return sum + line.height; });
}

std::vector<WrappingRow::Line> WrappingRow::linesFor(int width) const
{
    std::vector<Line> lines;
    Line line{0, 0, 0, 0};
    int pending = 0; // gaps since the last control
    const bool wraps = !staysWhole();
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        const QSize size(m_items[i]->minimumSize().width(), m_items[i]->sizeHint().height());
        if (m_items[i]->spacerItem()) {
            pending += size.width();
            continue;
        }
        const bool isFirst = line.height == 0;
        if (wraps && !isFirst && line.width + pending + size.width() > width) {
            lines.push_back(line);
            line = {i, i, 0, 0};
            pending = 0;
        }
        line.end = i + 1;
        line.width += pending + size.width();
        line.height = std::max(line.height, size.height());
        pending = 0;
    }
    if (line.height > 0) lines.push_back(line);
    return lines;
}

void WrappingRow::setGeometry(const QRect& room)
{
    QLayout::setGeometry(room);
    QPoint at = room.topLeft();
    for (const Line& line : linesFor(room.width())) {
        place(line, at, room.width());
        at.ry() += line.height;
    }
}

void WrappingRow::place(const Line& line, QPoint at, int width)
{
    int left = std::max(0, width - line.width);
    for (std::size_t i = line.first; i < line.end; ++i) {
        QLayoutItem& item = *m_items[i];
        QSize size(item.minimumSize().width(), line.height);
        // What room is left goes to the first control that may be wider.
        const int more =
            item.spacerItem()
                ? 0
                : std::min(left, std::max(0, item.maximumSize().width() - size.width()));
        left -= more;
        size.rwidth() += more;
        item.setGeometry(QRect(at, size));
        at.rx() += size.width();
    }
}

} // namespace korvel
