// SPDX-License-Identifier: MIT
#include "shell/layout/FollowingScrollArea.h"

#include "shell/screen/ZoomSizes.h"

#include <QApplication>
#include <QScrollBar>
#include <QShowEvent>
#include <QVBoxLayout>

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
    bringIntoView(*focus, QSize(std::clamp(room.width(), 0, focus->height()),
                                std::clamp(room.height(), 0, 3 * focus->height() / 2)));
    // What stands together is seen together where it fits: the answer below its boxes.
    const QWidget* group = focus;
    for (const QWidget* around = focus; around != widget(); around = around->parentWidget())
        if (around->height() <= viewport()->height()) group = around;
    bringIntoView(*group, {});
}

/// The toolkit's own way only looks after the text cursor; the whole of it is to be seen.
void FollowingScrollArea::bringIntoView(const QWidget& part, QSize around)
{
    const QPoint middle = part.mapTo(widget(), part.rect().center());
    constexpr int rounding = 2; // of the middle, and of the last line of the area
    ensureVisible(middle.x(), middle.y(), part.width() / 2 + rounding + around.width(),
                  part.height() / 2 + rounding + around.height());
}

void FollowingScrollArea::setHeading(QWidget* heading)
{
    m_heading = heading;
    heading->setParent(this);
    heading->installEventFilter(this);
    placeHeading();
}

/// Letters of another size make the heading higher, groups that fold make the content narrower.
bool FollowingScrollArea::eventFilter(QObject* watched, QEvent* event)
{
    const bool done = QScrollArea::eventFilter(watched, event);
    const auto changes = watched == m_heading ? QEvent::LayoutRequest : QEvent::Resize;
    if (m_heading && event->type() == changes) placeHeading();
    return done;
}

void FollowingScrollArea::setAnswers(QWidget* answers)
{
    constexpr int below = 8;
    auto* heading = new QWidget;
    auto* column = new QVBoxLayout(heading);
    column->setContentsMargins(0, 0, 0, below);
    column->addWidget(answers);
    setHeading(heading);
}

void FollowingScrollArea::foldColumns()
{
    m_fold = std::make_unique<ColumnFold>(*widget()->layout());
}

void FollowingScrollArea::foldFor(int width)
{
    if (!m_fold) return;
    // As if the bar were there: what it takes away must not bring it back and forth.
    m_fold->fold(width - verticalScrollBar()->sizeHint().width() < m_fold->widthUnfolded());
}

QSize FollowingScrollArea::sizeFor(int width)
{
    foldFor(width);
    settleLayouts(*widget());
    QSize wanted = sizeHint().boundedTo(QSize(width, QWIDGETSIZE_MAX));
    const int bar = verticalScrollBar()->sizeHint().width();
    const QLayout* content = widget()->layout();
    if (content->hasHeightForWidth()) {
        const int room = wanted.width() - bar;
        const int heading = m_heading ? headingHeight(room) : 0;
        // Preferred heights are rounded otherwise than least ones.
        wanted.setHeight(std::max(content->totalHeightForWidth(room),
                                  content->totalMinimumHeightForWidth(room)) +
                         heading);
    }
    return wanted;
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
    if (!m_isFoldedByHand) foldFor(width());
    placeHeading();
    follow(QApplication::focusWidget());
}

/// What the groups need side by side may be another width than when they last stood so: the letters
/// of a page that nobody saw were sized meanwhile.
void FollowingScrollArea::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    if (!m_fold || m_isFoldedByHand || event->spontaneous()) return;
    for (const int room : {QWIDGETSIZE_MAX, width()}) {
        foldFor(room);
        settleLayouts(*widget());
    }
}

/// Of a heading that wraps as its table does.
int FollowingScrollArea::headingHeight(int width) const
{
    const int wrapped = m_heading->heightForWidth(width);
    return wrapped > 0 ? wrapped : m_heading->sizeHint().height();
}

void FollowingScrollArea::placeHeading()
{
    if (!m_heading) return;
    const int height =
        headingHeight(std::max(viewport()->width(), widget()->minimumSizeHint().width()));
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
