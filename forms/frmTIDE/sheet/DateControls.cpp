// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/DateControls.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QWheelEvent>

namespace korvel
{

DateLabel::DateLabel(QWidget* parent) : ResultLabel(parent)
{
    setTextInteractionFlags(Qt::NoTextInteraction);
    setFocusPolicy(Qt::StrongFocus);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setCursor(Qt::PointingHandCursor);
    setMargin(fontMetrics().descent());
}

void DateLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        onClick();
}

void DateLabel::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        onClick();
        break;
    default:
        ResultLabel::keyPressEvent(event);
    }
}

void DateLabel::paintEvent(QPaintEvent* event)
{
    ResultLabel::paintEvent(event);
    if (!hasFocus()) return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = contentsRect();
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

DateScrollBar::DateScrollBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSingleStep(1);
    setPageStep(7); // from springs to neaps
}

void DateScrollBar::wheelEvent(QWheelEvent* event)
{
    m_turned += event->angleDelta().y();
    const int notches = m_turned / QWheelEvent::DefaultDeltasPerStep;
    m_turned -= notches * QWheelEvent::DefaultDeltasPerStep;
    setValue(value() - notches);
    event->accept();
}

} // namespace korvel
