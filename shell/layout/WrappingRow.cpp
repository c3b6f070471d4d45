// SPDX-License-Identifier: MIT
#include "shell/layout/WrappingRow.h"

#include "shell/layout/Panels.h"

#include <QSpacerItem>
#include <QWidget>

#include <algorithm>
#include <numeric>
#include <utility>

namespace korvel
{
namespace
{

constexpr int whole = 3; ///< thirds of a gap

int widthOf(const QLayoutItem& item)
{
    return item.minimumSize().width();
}

/// A part that is hidden takes no room and no gap.
bool isGone(const QLayoutItem& item)
{
    return item.isEmpty() && !const_cast<QLayoutItem&>(item).spacerItem();
}

bool mayBeWider(const QLayoutItem& item)
{
    return !isGone(item) && item.expandingDirections() & Qt::Horizontal &&
           item.maximumSize().width() > widthOf(item);
}

} // namespace

WrappingRow::WrappingRow(QWidget* parent) : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

WrappingRow::~WrappingRow()
{
    // A layout that goes would take itself out of its parent.
    const std::vector<Part> parts = std::exchange(m_parts, {});
    for (const Part& part : parts)
        if (QLayout* inner = part.item->layout()) inner->setParent(nullptr);
}

void WrappingRow::setGap(int gap)
{
    m_gap = gap;
    invalidate();
}

int WrappingRow::gap() const
{
    return m_gap >= 0 ? m_gap : levelGap(*this);
}

int WrappingRow::spacing() const
{
    return levelGap(*this);
}

void WrappingRow::addStretch()
{
    addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
}

void WrappingRow::addLayout(QLayout* layout)
{
    addChildLayout(layout);
    addItem(layout);
}

void WrappingRow::addItem(QLayoutItem* item)
{
    const bool staysClose = std::exchange(m_staysClose, false);
    const bool startsGroup = std::exchange(m_startsGroup, false) || !m_hasGroups;
    m_parts.push_back({std::unique_ptr<QLayoutItem>(item), startsGroup && !staysClose, staysClose});
    invalidate();
}

QLayoutItem* WrappingRow::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_parts[static_cast<std::size_t>(index)].item.get()
                                         : nullptr;
}

QLayoutItem* WrappingRow::takeAt(int index)
{
    if (!itemAt(index)) return nullptr;
    QLayoutItem* taken = m_parts[static_cast<std::size_t>(index)].item.release();
    m_parts.erase(m_parts.begin() + index);
    invalidate();
    return taken;
}

QSize WrappingRow::sizeHint() const
{
    Line all{0, 0, 0, 0, 0};
    for (std::size_t i = 0; i < m_parts.size(); ++i)
        all = with(all, i);
    return {all.width + all.thirds * gap() / whole, all.height};
}

QSize WrappingRow::minimumSize() const
{
    QSize least;
    for (const Part& part : m_parts)
        if (!isGone(*part.item)) least = least.expandedTo(part.item->minimumSize());
    return least;
}

int WrappingRow::heightForWidth(int width) const
{
    const auto lines = linesFor(width);
    return std::accumulate(lines.begin(), lines.end(), 0,
                           [](int sum, const Line& line) { return sum + line.height; });
}

/// With gaps of a third.
bool WrappingRow::fits(const Line& line, int width) const
{
    return line.width + line.thirds * gap() / whole / whole <= width;
}

WrappingRow::Line WrappingRow::with(const Line& line, std::size_t part) const
{
    Line longer = line;
    longer.end = part + 1;
    const QLayoutItem& item = *m_parts[part].item;
    if (isGone(item)) return longer;
    const bool isFirst = line.height == 0;
    longer.width += widthOf(item);
    if (!isFirst && widthOf(item) > 0) longer.thirds += m_parts[part].staysClose ? 1 : whole;
    longer.height = std::max({line.height, item.sizeHint().height(), 1});
    return longer;
}

WrappingRow::Line WrappingRow::groupFrom(std::size_t part) const
{
    Line group = with({part, part, 0, 0, 0}, part);
    while (group.end < m_parts.size() && !m_parts[group.end].startsGroup)
        group = with(group, group.end);
    return group;
}

std::vector<WrappingRow::Line> WrappingRow::linesFor(int width) const
{
    std::vector<Line> lines;
    Line line{0, 0, 0, 0, 0};
    const auto end = [&](std::size_t next) {
        if (line.height > 0) lines.push_back(line);
        line = {next, next, 0, 0, 0};
    };
    for (std::size_t i = 0; i < m_parts.size();) {
        const Line group = groupFrom(i);
        Line longer = line;
        for (std::size_t part = i; part < group.end; ++part)
            longer = with(longer, part);
        if (!fits(longer, width) && line.height > 0) end(i);
        for (; i < group.end; ++i) {
            if (line.height > 0 && !fits(with(line, i), width)) end(i);
            line = with(line, i);
        }
    }
    end(m_parts.size());
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
    const int room = std::max(0, width - line.width);
    const int gaps = std::min(room, line.thirds * gap() / whole);
    int left = room - gaps;
    int wider = 0; // controls that may be
    for (std::size_t i = line.first; i < line.end; ++i)
        wider += mayBeWider(*m_parts[i].item);
    int thirds = 0;
    const int start = at.x();
    int controls = 0;
    bool isFirst = true;
    for (std::size_t i = line.first; i < line.end; ++i) {
        QLayoutItem& item = *m_parts[i].item;
        if (isGone(item)) continue;
        QSize size(widthOf(item), line.height);
        if (!std::exchange(isFirst, false) && size.width() > 0)
            thirds += m_parts[i].staysClose ? 1 : whole;
        if (mayBeWider(item)) {
            const int more =
                std::min(left / std::max(1, wider--), item.maximumSize().width() - size.width());
            left -= more;
            size.rwidth() += more;
        }
        at.setX(start + controls + (line.thirds > 0 ? gaps * thirds / line.thirds : 0));
        item.setGeometry(QRect(at, size));
        controls += size.width();
    }
}

} // namespace korvel
