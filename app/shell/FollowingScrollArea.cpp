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
    placeHeading();
}

void FollowingScrollArea::setStrip()
{
    m_isStrip = true;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFixedHeight(widget()->sizeHint().height());
}

void FollowingScrollArea::foldColumns()
{
    m_fold = std::make_unique<ColumnFold>(*widget()->layout());
}

void FollowingScrollArea::foldFor(int width)
{
    if (!m_fold) return;
    // As if the bar were there: what it takes away must not bring it back and forth.
    const int room = width - verticalScrollBar()->sizeHint().width();
    // A rim that is out of sight is less trouble than another order of the groups.
    constexpr double hardly = 1.1;
    m_fold->fold(hardly * room < m_fold->widthUnfolded());
}

QSize FollowingScrollArea::sizeHint() const
{
    const int heading = m_heading ? m_heading->sizeHint().height() : 0;
    return widget()->sizeHint().expandedTo(widget()->minimumSizeHint()) +
           QSize(verticalScrollBar()->sizeHint().width(), heading);
}

void FollowingScrollArea::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    foldFor(width());
    placeHeading();
    follow(QApplication::focusWidget());
    if (!m_isStrip) return;
    const QSize content = widget()->sizeHint();
    const bool scrolls = width() < widget()->minimumSizeHint().width();
    setFixedHeight(content.height() + (scrolls ? horizontalScrollBar()->sizeHint().height() : 0));
}

/// Of a heading that wraps as its table does.
int FollowingScrollArea::headingHeight() const
{
    const int wide = std::max(viewport()->width(), widget()->minimumSizeHint().width());
    const int wrapped = m_heading->heightForWidth(wide);
    return wrapped > 0 ? wrapped : m_heading->sizeHint().height();
}

void FollowingScrollArea::placeHeading()
{
    if (!m_heading) return;
    const int height = headingHeight();
    const QMargins margins(0, height, 0, 0);
    if (viewportMargins() != margins) setViewportMargins(margins); // letters of another size too
    const QRect seen = viewport()->geometry();
    const int left = horizontalScrollBar()->value();
    m_heading->setGeometry(seen.left() - left, seen.top() - height,
                           std::max(seen.width(), widget()->width()), height);
    // What has scrolled out on the left must not cover its neighbours.
    m_heading->setMask(QRect(left, 0, seen.width(), height));
}

} // namespace korvel
