// SPDX-License-Identifier: MIT
#include "shell/controls/ReadingOrder.h"

#include "shell/controls/ResultLabel.h"
#include "shell/layout/FollowingScrollArea.h"

#include <QGridLayout>
#include <QMainWindow>
#include <QScrollArea>

#include <algorithm>

namespace korvel
{
namespace
{

void readWidget(QWidget& widget, std::vector<QWidget*>& order);

/// The items of a layout in the order of reading; a grid's go by rows.
std::vector<QLayoutItem*> itemsOf(const QLayout& layout)
{
    struct Placed {
        int row, column;
        QLayoutItem* item;
    };
    std::vector<Placed> placed;
    const auto* grid = qobject_cast<const QGridLayout*>(&layout);
    for (int i = 0; i < layout.count(); ++i) {
        int row{}, column = i, rows{}, columns{};
        if (grid) grid->getItemPosition(i, &row, &column, &rows, &columns);
        placed.push_back({row, column, layout.itemAt(i)});
    }
    std::ranges::stable_sort(placed, {},
                             [](const Placed& p) { return std::pair(p.row, p.column); });
    std::vector<QLayoutItem*> items;
    items.reserve(placed.size());
    for (const Placed& each : placed)
        items.push_back(each.item);
    return items;
}

void readLayout(const QLayout& layout, std::vector<QWidget*>& order)
{
    for (QLayoutItem* item : itemsOf(layout)) {
        if (item->widget()) readWidget(*item->widget(), order);
        if (item->layout()) readLayout(*item->layout(), order);
    }
}

void readWidget(QWidget& widget, std::vector<QWidget*>& order)
{
    if (auto* area = qobject_cast<QScrollArea*>(&widget)) {
        auto* withHeading = qobject_cast<FollowingScrollArea*>(area);
        if (withHeading && withHeading->heading()) readWidget(*withHeading->heading(), order);
        if (area->widget()) readWidget(*area->widget(), order);
        return;
    }
    if (widget.layout()) return readLayout(*widget.layout(), order);
    // A result that is blank as yet has its place too.
    const bool isStop = widget.focusPolicy() & Qt::TabFocus;
    if (isStop || qobject_cast<ResultLabel*>(&widget)) order.push_back(&widget);
}

} // namespace

void setTabOrderByReading(QWidget& window)
{
    auto* main = qobject_cast<QMainWindow*>(&window);
    QWidget* content = main ? main->centralWidget() : &window;
    std::vector<QWidget*> order;
    if (content) readWidget(*content, order);
    setTabOrderThrough(order);
}

} // namespace korvel
