// SPDX-License-Identifier: MIT
#include "app/shell/FollowingScrollArea.h"

#include <QApplication>
#include <QScrollBar>

#include <algorithm>

namespace korvel
{

FollowingScrollArea::FollowingScrollArea(QWidget* content)
    : m_focus([this](QWidget* now) { follow(now); })
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(content);
    setFocusPolicy(Qt::NoFocus); // Tab goes from box to box
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { placeHeading(); });
}

void FollowingScrollArea::follow(QWidget* focus)
{
    if (!focus || !widget()->isAncestorOf(focus)) return;
    // A row above and below comes along where there is room, so that it is seen where the next
    // Enter leads.
    const QSize room = (viewport()->size() - focus->size()) / 2;
    const QSize around(std::clamp(room.width(), 0, focus->height()),
                       std::clamp(room.height(), 0, 3 * focus->height() / 2));
    // The toolkit's own way only looks after the text cursor; the whole box is to be seen.
    const QPoint middle = focus->mapTo(widget(), focus->rect().center());
    ensureVisible(middle.x(), middle.y(), focus->width() / 2 + around.width(),
                  focus->height() / 2 + around.height());
}

void FollowingScrollArea::setHeading(QWidget* heading)
{
    m_heading = heading;
    heading->setParent(this);
    setViewportMargins(0, heading->sizeHint().height(), 0, 0);
    placeHeading();
}

void FollowingScrollArea::setStrip()
{
    m_isStrip = true;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFixedHeight(widget()->sizeHint().height());
}

QSize FollowingScrollArea::sizeHint() const
{
    const int heading = m_heading ? m_heading->sizeHint().height() : 0;
    return widget()->sizeHint() + QSize(verticalScrollBar()->sizeHint().width(), heading);
}

void FollowingScrollArea::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    placeHeading();
    follow(QApplication::focusWidget());
    if (!m_isStrip) return;
    const QSize content = widget()->sizeHint();
    const bool scrolls = width() < widget()->minimumSizeHint().width();
    setFixedHeight(content.height() + (scrolls ? horizontalScrollBar()->sizeHint().height() : 0));
}

void FollowingScrollArea::placeHeading()
{
    if (!m_heading) return;
    const QRect seen = viewport()->geometry();
    const int left = horizontalScrollBar()->value();
    const int height = m_heading->sizeHint().height();
    m_heading->setGeometry(seen.left() - left, seen.top() - height,
                           std::max(seen.width(), widget()->width()), height);
    // What has scrolled out on the left must not cover its neighbours.
    m_heading->setMask(QRect(left, 0, seen.width(), height));
}

} // namespace korvel
