// SPDX-License-Identifier: MIT
#include "shell/screen/WindowGlyphs.h"

#include <QPainter>
#include <QPainterPath>

#include <map>

namespace korvel
{
namespace
{

// Every glyph is drawn in a square of 16 units, in amber on a dark ground, with one stroke in red:
// so it is seen on a light title bar and does not dazzle on a dark one.
constexpr double side = 16;

struct Pens {
    QPen ink;
    QPen colour;
};
using Draw = void (*)(QPainter&, const Pens&);

/// Two fixes and the line between them.
void drawCourse(QPainter& p, const Pens& pens)
{
    p.setPen(pens.colour);
    p.drawLine(QPointF(4, 12), QPointF(12, 4));
    p.setPen(pens.ink);
    p.drawEllipse(QPointF(4, 12), 1.5, 1.5);
    p.drawEllipse(QPointF(12, 4), 1.5, 1.5);
}

/// A globe with the arc of a great circle.
void drawGreatCircle(QPainter& p, const Pens& pens)
{
    p.setPen(pens.ink);
    p.drawEllipse(QPointF(8, 8), 5.5, 5.5);
    p.drawLine(QPointF(2.5, 8), QPointF(13.5, 8));
    p.setPen(pens.colour);
    QPainterPath arc(QPointF(3.5, 11));
    arc.quadTo(QPointF(7, 2.5), QPointF(13, 6));
    p.drawPath(arc);
}

/// The Sun half above the horizon.
void drawRising(QPainter& p, const Pens& pens)
{
    p.setPen(pens.ink);
    p.drawLine(QPointF(2, 11), QPointF(14, 11));
    p.setPen(pens.colour);
    p.drawArc(QRectF(4.5, 7.5, 7, 7), 0, 180 * 16);
    p.drawLine(QPointF(8, 2.5), QPointF(8, 5));
    p.drawLine(QPointF(2.8, 5.2), QPointF(4.4, 6.8));
    p.drawLine(QPointF(13.2, 5.2), QPointF(11.6, 6.8));
}

/// Rows of a table, the last one in colour.
void drawRecord(QPainter& p, const Pens& pens)
{
    p.setPen(pens.ink);
    for (const double y : {4.0, 7.0, 10.0})
        p.drawLine(QPointF(3.5, y), QPointF(12.5, y));
    p.setPen(pens.colour);
    p.drawLine(QPointF(3.5, 13), QPointF(9, 13));
}

/// The arc and the arm of a sextant.
void drawSextant(QPainter& p, const Pens& pens)
{
    p.setPen(pens.ink);
    p.drawLine(QPointF(8, 3), QPointF(3, 11));
    p.drawLine(QPointF(8, 3), QPointF(13, 11));
    p.drawArc(QRectF(-1.4, -6.4, 18.8, 18.8), 238 * 16, 64 * 16);
    p.setPen(pens.colour);
    p.drawLine(QPointF(8, 3), QPointF(9.6, 14));
}

/// A clock.
void drawClock(QPainter& p, const Pens& pens)
{
    p.setPen(pens.ink);
    p.drawEllipse(QPointF(8, 8), 5.5, 5.5);
    p.setPen(pens.colour);
    p.drawLine(QPointF(8, 8), QPointF(8, 4.5));
    p.drawLine(QPointF(8, 8), QPointF(10.5, 9.5));
}

/// The arrow of a wind with its feathers.
void drawWind(QPainter& p, const Pens& pens)
{
    p.setPen(pens.ink);
    p.drawLine(QPointF(3, 13), QPointF(13, 3));
    p.setPen(pens.colour);
    p.drawLine(QPointF(13, 3), QPointF(13.5, 7.5));
    p.drawLine(QPointF(10.5, 5.5), QPointF(11, 9.5));
}

/// A cloud with rain.
void drawCloud(QPainter& p, const Pens& pens)
{
    p.setPen(pens.ink);
    QPainterPath cloud;
    cloud.addEllipse(QPointF(6, 7), 3, 3);
    cloud.addEllipse(QPointF(10, 6.5), 3, 3);
    cloud.addRect(QRectF(4, 7, 8.5, 3));
    p.drawPath(cloud.simplified());
    p.setPen(pens.colour);
    for (const double x : {5.5, 8.5, 11.5})
        p.drawLine(QPointF(x, 11.5), QPointF(x - 1, 14));
}

/// A drop of oil.
void drawDrop(QPainter& p, const Pens& pens)
{
    QPainterPath drop(QPointF(8, 2));
    drop.cubicTo(QPointF(9.5, 5), QPointF(12.5, 7.5), QPointF(12.5, 10));
    drop.cubicTo(QPointF(12.5, 12.5), QPointF(10.5, 14), QPointF(8, 14));
    drop.cubicTo(QPointF(5.5, 14), QPointF(3.5, 12.5), QPointF(3.5, 10));
    drop.cubicTo(QPointF(3.5, 7.5), QPointF(6.5, 5), QPointF(8, 2));
    p.setPen(pens.ink);
    p.drawPath(drop);
    p.setPen(pens.colour);
    p.drawLine(QPointF(3.8, 10), QPointF(12.2, 10));
}

/// A rule with its marks.
void drawRule(QPainter& p, const Pens& pens)
{
    p.setPen(pens.ink);
    p.drawRect(QRectF(2, 5, 12, 6));
    p.setPen(pens.colour);
    for (const double x : {5.0, 8.0, 11.0})
        p.drawLine(QPointF(x, 5.5), QPointF(x, 8));
}

/// The curve of a tide over its datum.
void drawTide(QPainter& p, const Pens& pens)
{
    p.setPen(pens.ink);
    p.drawLine(QPointF(2, 12.5), QPointF(14, 12.5));
    p.setPen(pens.colour);
    QPainterPath wave(QPointF(2, 8));
    wave.cubicTo(QPointF(4, 1), QPointF(6, 3), QPointF(8, 7));
    wave.cubicTo(QPointF(10, 11), QPointF(12, 11), QPointF(14, 5));
    p.drawPath(wave);
}

/// A compass card with its needle.
void drawCompass(QPainter& p, const Pens& pens)
{
    p.setPen(pens.ink);
    p.drawEllipse(QPointF(8, 8), 5.5, 5.5);
    p.drawLine(QPointF(8, 13.5), QPointF(8, 11.5));
    p.setPen(pens.colour);
    p.drawPolygon(QPolygonF{{11, 4.5}, {9.2, 9}, {5, 11.5}, {6.8, 7}});
}

Draw glyphOf(const QString& window)
{
    static const std::map<QString, Draw> glyphs = {
        {"frmCDDR", drawCourse},      {"frmGC2000", drawGreatCircle},
        {"frmSunMoon", drawRising},   {"frmPositionRecord", drawRecord},
        {"frmSunSight", drawSextant}, {"frmETA", drawClock},
        {"frmWind", drawWind},        {"frmWeather", drawCloud},
        {"frmCRUDE", drawDrop},       {"frmLength", drawRule},
        {"frmVolume", drawRule},      {"frmArea", drawRule},
        {"frmWeight", drawRule},      {"frmPressure", drawRule},
        {"frmTIDE", drawTide},        {"frmCompass", drawCompass},
    };
    const auto glyph = glyphs.find(window);
    return glyph == glyphs.end() ? nullptr : glyph->second;
}

QPixmap picture(Draw draw, int size)
{
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / side, size / side);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor("#14202b"));
    painter.drawRoundedRect(QRectF(0, 0, side, side), 3, 3);
    painter.setBrush(Qt::NoBrush);
    draw(painter, {QPen(QColor("#b58f57"), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin),
                   QPen(QColor("#d0553f"), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)});
    return picture;
}

} // namespace

QIcon windowGlyph(const QString& window)
{
    QIcon icon;
    if (const Draw draw = glyphOf(window))
        for (const int size : {16, 24, 32, 48})
            icon.addPixmap(picture(draw, size));
    return icon;
}

} // namespace korvel
