// SPDX-License-Identifier: MIT
#include "shell/controls/NoticeSign.h"

#include <QPainter>
#include <QPainterPath>

namespace korvel
{
namespace
{

void drawTick(QPainter& painter, const QRectF& r)
{
    painter.drawPolyline(QPolygonF({{r.left(), r.center().y()},
                                    {r.left() + r.width() / 3, r.bottom()},
                                    {r.right(), r.top()}}));
}

void drawTriangle(QPainter& painter, const QRectF& r)
{
    painter.drawPolygon(QPolygonF({{r.center().x(), r.top()}, r.bottomRight(), r.bottomLeft()}));
    painter.drawLine(QPointF(r.center().x(), r.top() + r.height() * 0.4),
                     QPointF(r.center().x(), r.top() + r.height() * 0.7));
}

void drawCrossedDisc(QPainter& painter, const QRectF& r)
{
    const QRectF cross = r.adjusted(r.width() / 3, r.height() / 3, -r.width() / 3, -r.height() / 3);
    painter.setBrush(painter.pen().color());
    painter.drawEllipse(r);
    painter.setPen(QPen(painter.background().color(), painter.pen().widthF()));
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
}

} // namespace

void drawNoticeSign(QPainter& painter, const QRectF& room, std::optional<NoticeLevel> level)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(painter.pen().color(), room.width() / 8));
    painter.setBrush(Qt::NoBrush);
    if (!level)
        painter.drawEllipse(room.center(), room.width() / 4, room.width() / 4);
    else if (*level == NoticeLevel::Done)
        drawTick(painter, room);
    else if (*level == NoticeLevel::Remark)
        drawTriangle(painter, room);
    else
        drawCrossedDisc(painter, room);
    painter.restore();
}

const char* noticeWord(NoticeLevel level)
{
    switch (level) {
    case NoticeLevel::Done:
        return "Done";
    case NoticeLevel::Remark:
        return "Remark";
    case NoticeLevel::Fault:
        break;
    }
    return "Fault";
}

} // namespace korvel
