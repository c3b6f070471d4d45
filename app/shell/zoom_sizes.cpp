// SPDX-License-Identifier: MIT
#include "app/shell/zoom_sizes.h"

#include "app/shell/PictureBox.h"

#include <QGridLayout>
#include <QWidget>

#include <cmath>

namespace korvel
{
namespace
{

/// Up, so that a figure that fitted does so still.
int scaled(int size, double ratio)
{
    constexpr double hair = 0.01; // there and back is the same size again
    return static_cast<int>(std::ceil(size * ratio - hair));
}

int scaledLimit(int size, double ratio)
{
    return size < QWIDGETSIZE_MAX ? scaled(size, ratio) : size;
}

void scaleWidget(QWidget& widget, double ratio)
{
    const QSize least = widget.minimumSize();
    const QSize most = widget.maximumSize();
    const QSize newLeast(scaled(least.width(), ratio), scaled(least.height(), ratio));
    const QSize newMost(scaledLimit(most.width(), ratio), scaledLimit(most.height(), ratio));
    // A fixed size must not be refused on the way.
    widget.setMinimumSize(0, 0);
    widget.setMaximumSize(newMost);
    widget.setMinimumSize(newLeast);
    if (auto* picture = dynamic_cast<PictureBox*>(&widget)) picture->scalePlotMargins(ratio);
}

void scaleGrid(QGridLayout& grid, double ratio)
{
    for (int column = 0; column < grid.columnCount(); ++column)
        grid.setColumnMinimumWidth(column, scaled(grid.columnMinimumWidth(column), ratio));
    for (int row = 0; row < grid.rowCount(); ++row)
        grid.setRowMinimumHeight(row, scaled(grid.rowMinimumHeight(row), ratio));
}

void scaleLayout(QLayout& layout, double ratio)
{
    if (auto* grid = qobject_cast<QGridLayout*>(&layout)) scaleGrid(*grid, ratio);
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* item = layout.itemAt(i);
        if (QLayout* inner = item->layout()) scaleLayout(*inner, ratio);
        QSpacerItem* gap = item->spacerItem();
        if (!gap) continue;
        const QSizePolicy policy = gap->sizePolicy();
        gap->changeSize(scaled(gap->sizeHint().width(), ratio),
                        scaled(gap->sizeHint().height(), ratio), policy.horizontalPolicy(),
                        policy.verticalPolicy());
    }
    layout.invalidate();
}

} // namespace

void scaleSizes(QWidget& window, double ratio)
{
    for (QWidget* each : window.findChildren<QWidget*>()) {
        // The toolkit's own parts and the boxes of their own look after themselves.
        if (!each->isWindow() && !each->objectName().startsWith("qt_")) scaleWidget(*each, ratio);
        if (each->layout()) scaleLayout(*each->layout(), ratio);
    }
    // What the layouts remember is of the other letters, or from the midst of this.
    for (QWidget* each : window.findChildren<QWidget*>()) {
        if (each->layout()) each->layout()->invalidate();
        each->updateGeometry();
    }
}

} // namespace korvel
