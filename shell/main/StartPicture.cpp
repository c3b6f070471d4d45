// SPDX-License-Identifier: MIT
#include "shell/main/StartPicture.h"

#include "app/machine/Questions.h"

#include <QColor>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QString>

#include <cmath>
#include <numbers>

namespace korvel
{
namespace
{

constexpr double pictureWidth = 480;
constexpr double pictureHeight = 270;

/// A compass card of sixteen points around the origin, radius 1.
void drawCompassRose(QPainter& painter, const QColor& light, const QColor& dark)
{
    painter.setPen(Qt::NoPen);
    for (int rank = 2; rank >= 0; --rank) {
        const double length = rank == 0 ? 1.0 : rank == 1 ? 0.72 : 0.5;
        for (int point = 0; point < 16; ++point) {
            const bool cardinal = point % 4 == 0;
            const bool intercardinal = point % 4 == 2;
            if ((cardinal ? 0 : intercardinal ? 1 : 2) != rank) continue;
            painter.save();
            painter.rotate(point * 22.5);
            painter.setBrush(light);
            painter.drawConvexPolygon(QPolygonF{{0, 0}, {-0.11, -0.18}, {0, -length}});
            painter.setBrush(dark);
            painter.drawConvexPolygon(QPolygonF{{0, 0}, {0.11, -0.18}, {0, -length}});
            painter.restore();
        }
    }
}

void drawSea(QPainter& painter)
{
    for (int wave = 0; wave < 3; ++wave) {
        QPainterPath path(QPointF(0, pictureHeight));
        for (int x = 0; x <= static_cast<int>(pictureWidth); x += 6)
            path.lineTo(x, pictureHeight - 42 + wave * 14 +
                               5 * std::sin(x / 38.0 + wave * 1.9 * std::numbers::pi / 2));
        path.lineTo(pictureWidth, pictureHeight);
        painter.fillPath(path, QColor(20, 70 - wave * 14, 110 - wave * 20, 190));
    }
}

/// Draws a line of text from a base line on with a given width, or unscaled. Another size of the
/// font that every window uses would be another font to be looked for before anything is seen.
void drawLine(QPainter& painter, const QPointF& base, const QString& text, double width = 0)
{
    const QPointF place = painter.transform().map(base);
    const double scale =
        width > 0 ? width / QFontMetricsF(painter.font()).horizontalAdvance(text) : 1;
    painter.save();
    painter.resetTransform();
    painter.translate(place);
    painter.scale(scale, scale);
    painter.drawText(QPointF(), text);
    painter.restore();
}

/// From night to dawn. In bands, for the toolkit gives a larger gradient to threads, and to make
/// those takes longer than to fill it.
void drawSky(QPainter& painter)
{
    constexpr double band = 15;
    QLinearGradient sky(0, 0, 0, pictureHeight);
    sky.setColorAt(0, "#06121f");
    sky.setColorAt(0.75, "#1d4a70");
    sky.setColorAt(1, "#d58a4a");
    for (double top = 0; top < pictureHeight; top += band)
        painter.fillRect(QRectF(0, top, pictureWidth, band), sky);
}

} // namespace

QSize startPictureSize(double unit)
{
    return {qRound(pictureWidth * unit), qRound(pictureHeight * unit)};
}

void drawStartPicture(QPainter& painter, const QSize& size)
{
    painter.scale(size.width() / pictureWidth, size.height() / pictureHeight);
    drawSky(painter); // its bands meet at whole pixels
    painter.setRenderHint(QPainter::Antialiasing);
    drawSea(painter);

    painter.save();
    painter.translate(110, 122);
    painter.setPen(QPen(QColor(230, 205, 160), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(0, 0), 84, 84);
    painter.drawEllipse(QPointF(0, 0), 78, 78);
    painter.scale(74, 74);
    drawCompassRose(painter, QColor(245, 225, 185), QColor(160, 110, 60));
    painter.restore();

    painter.setPen(QColor(255, 250, 235));
    drawLine(painter, {216, 146}, "Calculators for the");
    drawLine(painter, {216, 168}, "officer of the watch");
    drawLine(painter, {214, 120}, programTitle, size.width() * 0.52);
}

} // namespace korvel
