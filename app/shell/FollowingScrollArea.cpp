// SPDX-License-Identifier: MIT
#include "app/shell/FollowingScrollArea.h"

#include <QApplication>
#include <QScrollBar>

namespace korvel
{

FollowingScrollArea::FollowingScrollArea(QWidget* content)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(content);
    setFocusPolicy(Qt::NoFocus); // Tab goes from box to box
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        // A row above and below comes along, so that it is seen where the next Enter leads.
        if (now && widget()->isAncestorOf(now))
            ensureWidgetVisible(now, now->height(), 3 * now->height() / 2);
    });
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { placeHeading(); });
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
                           std::max(seen.width(), widget()->sizeHint().width()), height);
    // What has scrolled out on the left must not cover its neighbours.
    m_heading->setMask(QRect(left, 0, seen.width(), height));
}

} // namespace korvel
