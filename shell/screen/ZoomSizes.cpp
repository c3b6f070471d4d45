// SPDX-License-Identifier: MIT
#include "shell/screen/ZoomSizes.h"

#include <QFontMetricsF>
#include <QGridLayout>
#include <QLabel>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace korvel
{

void ZoomSizes::follow(QWidget& window, int zoom)
{
    m_before = std::exchange(m_zoom, zoom);
    m_kept.clear();
    followIn(window);
    m_known = std::move(m_kept);
    m_widths.clear();
    // The toolkit keeps what a label asked for with another least size, and for an empty one what
    // it asked for with other letters; this makes it measure anew.
    for (QLabel* label : window.findChildren<QLabel*>())
        label->setIndent(label->indent());
}

/// Figures and captions grow by other ratios, for letters stand on whole pixels: the widest counts.
double ZoomSizes::widthOf(QFont letters, int zoom)
{
    letters.setPointSizeF(letters.pointSizeF() * zoom / m_zoom);
    const auto known = m_widths.find({letters, zoom});
    if (known != m_widths.end()) return known->second;
    return m_widths[{letters, zoom}] = QFontMetricsF(letters).horizontalAdvance("0000/00/00 00:00");
}

/// Up, so that a figure that fitted does so still.
int ZoomSizes::sized(Owner owner, int size, const QFont& letters)
{
    constexpr double hair = 0.01;
    const double normalWidth = widthOf(letters, 100);
    const auto known = m_known.find(owner);
    const double normal = known != m_known.end() && known->second.given == size
                              ? known->second.normal
                              : size * normalWidth / widthOf(letters, m_before);
    const int given =
        static_cast<int>(std::ceil(normal * widthOf(letters, m_zoom) / normalWidth - hair));
    m_kept[owner] = {normal, given};
    return given;
}

int ZoomSizes::limited(Owner owner, int size, const QFont& letters)
{
    return size < QWIDGETSIZE_MAX ? sized(owner, size, letters) : size;
}

void ZoomSizes::followIn(QWidget& widget)
{
    for (QObject* child : widget.children()) {
        auto* each = qobject_cast<QWidget*>(child);
        // Boxes of their own look after themselves.
        if (!each || each->isWindow()) continue;
        if (auto* own = dynamic_cast<SizedByLetters*>(each)) {
            own->sizeByLetters();
            continue;
        }
        if (!each->objectName().startsWith("qt_")) followOf(*each);
        followIn(*each);
    }
    if (widget.layout()) followIn(*widget.layout(), widget.font());
}

void ZoomSizes::followOf(QWidget& widget)
{
    const QFont letters = widget.font();
    const QSize least = widget.minimumSize();
    const QSize most = widget.maximumSize();
    const QSize newLeast(sized({&widget, LeastWidth}, least.width(), letters),
                         sized({&widget, LeastHeight}, least.height(), letters));
    const QSize newMost(limited({&widget, MostWidth}, most.width(), letters),
                        limited({&widget, MostHeight}, most.height(), letters));
    // A fixed size must not be refused on the way.
    widget.setMinimumSize(0, 0);
    widget.setMaximumSize(newMost);
    widget.setMinimumSize(newLeast);
}

void ZoomSizes::followIn(QLayout& layout, const QFont& letters)
{
    if (auto* grid = qobject_cast<QGridLayout*>(&layout)) {
        for (int i = 0; i < grid->columnCount(); ++i)
            grid->setColumnMinimumWidth(
                i, sized({&layout, Column + 2 * i}, grid->columnMinimumWidth(i), letters));
        for (int i = 0; i < grid->rowCount(); ++i)
            grid->setRowMinimumHeight(
                i, sized({&layout, Row + 2 * i}, grid->rowMinimumHeight(i), letters));
    }
    for (int i = 0; i < layout.count(); ++i) {
        if (QLayout* inner = layout.itemAt(i)->layout()) followIn(*inner, letters);
        if (QSpacerItem* gap = layout.itemAt(i)->spacerItem()) followOf(*gap, letters);
    }
}

void ZoomSizes::followOf(QSpacerItem& gap, const QFont& letters)
{
    const QSizePolicy policy = gap.sizePolicy();
    const QSize size = gap.sizeHint();
    gap.changeSize(sized({&gap, LeastWidth}, size.width(), letters),
                   sized({&gap, LeastHeight}, size.height(), letters), policy.horizontalPolicy(),
                   policy.verticalPolicy());
}

void settleLayouts(QWidget& window)
{
    for (QObject* child : window.children()) {
        auto* each = qobject_cast<QWidget*>(child);
        if (!each || each->isWindow()) continue;
        settleLayouts(*each);
        each->updateGeometry();
    }
    if (!window.layout()) return;
    window.layout()->invalidate();
    window.layout()->activate();
}

} // namespace korvel
