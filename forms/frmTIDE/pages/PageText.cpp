// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/pages/PageText.h"

#include <QFontMetricsF>

#include <algorithm>

namespace korvel
{

int sizeOn(double pageHeight, int size)
{
    return qRound(size * std::min(1.0, pageHeight / pageWidth));
}

QFont pageFont(const QPainter& painter, int size, bool bold)
{
    QFont font = painter.font();
    font.setPixelSize(size);
    font.setBold(bold);
    return font;
}

double lineOf(const QPainter& painter)
{
    return QFontMetricsF(painter.font()).lineSpacing();
}

/// Writes a line, left and right, and returns where the next one begins.
double writeLine(QPainter& painter, double top, const QString& left, const QString& right)
{
    const double height = lineOf(painter);
    const QRectF room(0, top, pageWidth, height);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, left);
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, right);
    return top + height;
}

} // namespace korvel
