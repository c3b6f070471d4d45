// SPDX-License-Identifier: MIT
#include "shell/controls/VectorArrow.h"

#include <QLineF>

#include <algorithm>

namespace korvel
{

void drawVector(QPainter& painter, QPointF tail, QPointF head, const QPen& look, double headLength)
{
    const QLineF line(tail, head);
    const double length = std::min(headLength, line.length());
    if (length < 1) return;
    const QPointF along = (head - tail) / line.length();
    const QPointF across(-along.y(), along.x());
    const QPointF neck = head - along * length;
    painter.setPen(look);
    painter.drawLine(tail, neck);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.color());
    painter.drawPolygon(
        QPolygonF{head, neck + across * length * 0.4, neck - across * length * 0.4});
}

} // namespace korvel
