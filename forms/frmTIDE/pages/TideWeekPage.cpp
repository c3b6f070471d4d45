// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/pages/TideWeekPage.h"
#include "shell/machine/AsQString.h"

#include "forms/frmTIDE/pages/PageText.h"

#include <algorithm>

namespace korvel
{
namespace
{

constexpr double waterColumn = 230;
constexpr double allColumn = 520;
constexpr int linesBeside = 14; // heading, columns' names, foot

int linesOf(const std::vector<WeekDay>& week)
{
    int lines = 0;
    for (const WeekDay& day : week)
        lines += std::max<int>(1, static_cast<int>(day.waters.size())) + 1;
    return lines;
}

double drawDay(QPainter& painter, double top, const WeekDay& day)
{
    const double height = lineOf(painter);
    painter.setPen(QPen(Qt::gray, 0.5));
    painter.drawLine(QPointF(0, top), QPointF(pageWidth, top));
    painter.setPen(Qt::black);
    top += height / 2;
    double y = top;
    painter.drawText(QPointF(0, y + height * 0.8), asQString(day.date));
    painter.drawText(QPointF(0, y + height * 1.8), asQString(day.moon));
    for (const WaterLine& water : day.waters) {
        painter.drawText(QPointF(waterColumn, y + height * 0.8), asQString(water.four));
        painter.drawText(QPointF(allColumn, y + height * 0.8), asQString(water.all));
        y += height;
    }
    return std::max(y, top + 2 * height) + height / 2;
}

} // namespace

void TideWeekPage::draw(QPainter& painter, const QRect& room) const
{
    const double scale = room.width() / pageWidth;
    painter.scale(scale, scale);
    painter.setPen(Qt::black);
    // Seven days of any station stand on one page: where there are many waters the letters shrink.
    const double wanted = (linesOf(week) + linesBeside) * 1.25;
    const int size = std::clamp(static_cast<int>(room.height() / scale / wanted), 6, textSize);
    painter.setFont(pageFont(painter, std::min(headingSize, size * 3 / 2), true));
    double y = writeLine(painter, 0, place + "   seven days",
                         kind == TideKind::Tide ? "Tide" : "Tidal stream");
    painter.setFont(pageFont(painter, size));
    y = writeLine(painter, y, asQString(lines.station), "Zone time " + zone);
    if (!lines.uncertainty.empty() || !lines.estimates.empty())
        y = writeLine(painter, y, asQString(lines.uncertainty + "   " + lines.estimates));
    painter.setFont(pageFont(painter, size, true));
    painter.drawText(QPointF(waterColumn, y + lineOf(painter)), "Four constituents");
    painter.drawText(QPointF(allColumn, y + lineOf(painter)), "All constituents (difference)");
    painter.setFont(pageFont(painter, size));
    y += 1.3 * lineOf(painter);
    for (const WeekDay& day : week)
        y = drawDay(painter, y, day);
    painter.drawLine(QPointF(0, y), QPointF(pageWidth, y));
    const QString foot = asQString("Not for navigation: the official tables have precedence.\n" +
                                   lines.accuracy + "\n" + lines.source);
    painter.drawText(QRectF(0, y + size / 2.0, pageWidth, 8 * lineOf(painter)), Qt::TextWordWrap,
                     foot);
}

} // namespace korvel
