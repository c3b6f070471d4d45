// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/pages/frmTIDEPage.h"
#include "shell/machine/AsQString.h"

#include "app/machine/Questions.h"
#include "app/reading/Format.h"
#include "forms/frmTIDE/pages/PageText.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

constexpr int tableColumns = 7; // of seven half hours each: 49 values

} // namespace

void frmTIDEPage::draw(QPainter& painter, const QRect& room) const
{
    const double scale = room.width() / pageWidth;
    const double pageHeight = room.height() / scale;
    painter.scale(scale, scale);
    painter.setPen(Qt::black);

    const double gap = sizeOn(pageHeight, textSize);
    const double curveTop = drawHeading(painter, pageHeight) + gap;
    const double below = tableHeight(painter) + footHeight(painter) + 3 * gap;
    const double curveHeight = std::min(0.62 * pageWidth, pageHeight - curveTop - below);
    painter.save();
    painter.translate(0, curveTop);
    drawCurve(painter, {static_cast<int>(pageWidth), static_cast<int>(curveHeight)});
    painter.restore();
    painter.setPen(Qt::black);
    const double tableTop = curveTop + curveHeight + gap;
    drawTable(painter, tableTop);
    drawFoot(painter, tableTop + tableHeight(painter) + gap);
}

double frmTIDEPage::drawHeading(QPainter& painter, double pageHeight) const
{
    const bool tide = day.four.kind == TideKind::Tide;
    const int size = sizeOn(pageHeight, textSize);
    painter.setFont(pageFont(painter, sizeOn(pageHeight, headingSize), true));
    double y = writeLine(painter, 0, place + "   " + date, tide ? "Tide" : "Tidal stream");
    painter.drawLine(QPointF(0, y), QPointF(pageWidth, y));
    y += size / 2.0;
    painter.setFont(pageFont(painter, size));
    y = writeLine(painter, y, asQString(lines.station), "Zone time " + asQString(day.four.lblTD));
    painter.setFont(pageFont(painter, size, true));
    y = writeLine(
        painter, y, "Highest, lowest:  " + asQString(day.four.lblTideInfo),
        tide ? asQString(lines.uncertainty)
             : asQString(day.four.lblCuDirection[0] + "    " + day.four.lblCuDirection[1]));
    painter.setFont(pageFont(painter, size));
    if (!lines.estimates.empty()) y = writeLine(painter, y, asQString(lines.estimates));
    if (!day.four.remark.empty()) y = writeLine(painter, y, asQString(day.four.remark));
    return drawWaters(painter, y);
}

/// The waters to the minute, by both ways.
double frmTIDEPage::drawWaters(QPainter& painter, double top) const
{
    const double height = lineOf(painter);
    for (const WaterLine& water : waterLines(day)) {
        painter.drawText(QRectF(0, top, pageWidth / 3, height), asQString(water.four));
        painter.drawText(QRectF(pageWidth / 3, top, pageWidth, height),
                         asQString(water.all.empty() ? "" : "all constituents " + water.all));
        top += height;
    }
    return top;
}

double frmTIDEPage::tableHeight(const QPainter& painter) const
{
    return (tableColumns + 1.5) * lineOf(painter);
}

void frmTIDEPage::drawTable(QPainter& painter, double top) const
{
    const bool tide = day.four.kind == TideKind::Tide;
    const double height = lineOf(painter);
    const double width = pageWidth / tableColumns;
    writeLine(painter, top,
              tide ? "Height above chart datum, metres"
                   : "Rate in knots, positive with the flood, negative with the ebb");
    top += 1.25 * height;
    for (int i = 0; i < static_cast<int>(day.four.values.size()); ++i) {
        const int column = i / tableColumns;
        const int row = i % tableColumns;
        const QRectF cell(column * width, top + row * height, width * 0.8, height);
        const int hour = i / 2;
        const std::string time = Format(hour, "00") + (i % 2 == 0 ? ":00" : ":30");
        painter.drawText(cell, Qt::AlignLeft, asQString(time));
        const double value = day.four.values[static_cast<std::size_t>(i)];
        painter.drawText(cell, Qt::AlignRight, asQString(markedFigure(value, day)));
    }
    painter.setPen(QPen(Qt::gray, 0.5));
    for (int column = 1; column < tableColumns; ++column) {
        const double x = (column - 0.1) * width;
        painter.drawLine(QPointF(x, top), QPointF(x, top + tableColumns * height));
    }
    painter.setPen(Qt::black);
}

QString frmTIDEPage::footText() const
{
    return asQString(
        "Not for navigation: the official tables have precedence.\n" + lines.accuracy + "\n" +
        lines.source +
        "\nHalf-hourly prediction from four harmonic constituents and two shallow-water "
        "terms, " +
        programTitle + ".");
}

double frmTIDEPage::footHeight(const QPainter& painter) const
{
    const QRectF room(0, 0, pageWidth, 10 * pageWidth);
    return QFontMetricsF(painter.font()).boundingRect(room, Qt::TextWordWrap, footText()).height();
}

void frmTIDEPage::drawFoot(QPainter& painter, double top) const
{
    painter.drawLine(QPointF(0, top), QPointF(pageWidth, top));
    painter.drawText(QRectF(0, top + lineOf(painter) / 3, pageWidth, footHeight(painter)),
                     Qt::TextWordWrap, footText());
}

} // namespace korvel
