// SPDX-License-Identifier: MIT
#include "forms/frmCompass/pages/CoursesPicture.h"

#include "navlib/angles.h"
#include "shell/controls/VectorArrow.h"
#include "shell/layout/Legend.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::HorizontalMotion;

constexpr double thin = 0.06; // widths of lines in heights of a line of text
constexpr double thick = 0.16;
constexpr int ringCount = 4;
constexpr double margin = 1.15; // of the outermost ring, for the labels

QPointF endOf(const HorizontalMotion& motion, QPointF from = {})
{
    return from + QPointF(motion.speed.value() * sin(motion.direction),
                          motion.speed.value() * cos(motion.direction));
}

} // namespace

CoursesPicture::CoursesPicture(QWidget* parent) : PictureBox(parent)
{
    setObjectName("picCourses");
    setAccessibleName("Triangle of course through the water, current and track");
    const QFontMetrics metrics = fontMetrics();
    const int legend = Legend::width(metrics, "Through the water Current Made good", 3, 0);
    setMinimumSize(legend + metrics.height(), legend * 3 / 4);
    showTriangle({}, {});
}

QSize CoursesPicture::sizeHint() const
{
    return minimumSize() * 5 / 4;
}

void CoursesPicture::showTriangle(const std::optional<CourseTriangle>& triangle,
                                  const std::optional<NavFunc113::Degrees>& head)
{
    m_triangle = triangle;
    m_head = head;
    double largest = 0;
    if (triangle)
        largest = std::max(triangle->throughWater.speed, triangle->madeGood.speed).value();
    m_step = 2;
    for (const double wider : {3.0, 5.0, 10.0, 20.0, 50.0})
        if (largest > ringCount * m_step) m_step = wider;
    const double edge = ringCount * m_step * margin;
    setUserScale({-edge, edge, edge, -edge});
}

void CoursesPicture::placeMargins()
{
    // A knot is as long to the east as to the north: the plot is square below its legend.
    const int top = static_cast<int>(1.5 * lineHeight());
    const int wide = pictureSize().width(), high = pictureSize().height();
    const int side = std::min(wide, high - top);
    const int left = (wide - side) / 2;
    setPlotMargins({left, top, wide - side - left, high - top - side});
}

QPen CoursesPicture::pen(const QColor& colour, double width, Qt::PenStyle style) const
{
    return {colour, std::max(1.0, std::floor(width * lineHeight())), style, Qt::FlatCap,
            Qt::RoundJoin};
}

QPen CoursesPicture::waterPen() const
{
    return pen(colours().ink, 0.1);
}

QPen CoursesPicture::currentPen() const
{
    QPen dashed = pen(colours().secondary, thick);
    dashed.setDashPattern({4, 2});
    return dashed;
}

QPen CoursesPicture::groundPen() const
{
    return pen(colours().route, thick);
}

void CoursesPicture::draw(QPainter& painter)
{
    painter.fillRect(plotArea(), colours().paper);
    painter.save();
    painter.setClipRect(plotArea(), Qt::IntersectClip);
    drawRings(painter);
    if (m_triangle) drawVectors(painter);
    drawShip(painter);
    painter.restore();
    drawLegend(painter);
}

void CoursesPicture::drawRings(QPainter& painter) const
{
    const QPointF centre = toPixel(0, 0);
    const double line = lineHeight();
    painter.setBrush(Qt::NoBrush);
    for (int ring = 1; ring <= ringCount; ++ring) {
        const double radius = toPixel(ring * m_step, 0).x() - centre.x();
        painter.setPen(pen(colours().grid, thin));
        painter.drawEllipse(centre, radius, radius);
        const QString text = QString::number(ring * m_step) + (ring == ringCount ? " kn" : "");
        const double aside = radius * std::sqrt(0.5), wide = m_figures.width(letters(), text);
        const QRectF room(centre.x() + aside - wide / 2 - 1, centre.y() - aside - line / 2,
                          wide + 2, line);
        painter.fillRect(room, colours().paper);
        painter.setPen(colours().ink);
        m_figures.draw(painter, room, Qt::AlignCenter, text);
    }
    constexpr std::array points{"N", "E", "S", "W"};
    for (std::size_t i = 0; i < points.size(); ++i) {
        const QPointF end = endOf({NavFunc113::quarterTurn * static_cast<double>(i),
                                   NavFunc113::Knots(ringCount * m_step)});
        const QPointF out = toPixel(end.x(), end.y());
        painter.setPen(pen(colours().grid, thin));
        painter.drawLine(centre, out);
        const QPointF at = out + (out - centre) / QLineF(centre, out).length() * 0.7 * line;
        painter.setPen(colours().ink);
        m_figures.draw(painter, {at.x() - line, at.y() - line / 2, 2 * line, line}, Qt::AlignCenter,
                       points[i]);
    }
}

void CoursesPicture::drawVectors(QPainter& painter) const
{
    const auto pixel = [this](QPointF place) { return toPixel(place.x(), place.y()); };
    const double head = 0.9 * lineHeight();
    const QPointF water = endOf(m_triangle->throughWater);
    const QPointF ground = endOf(m_triangle->current, water);
    drawVector(painter, pixel({}), pixel(water), waterPen(), head);
    drawVector(painter, pixel(water), pixel(ground), currentPen(), head);
    drawVector(painter, pixel({}), pixel(endOf(m_triangle->madeGood)), groundPen(), head);
}

void CoursesPicture::drawShip(QPainter& painter) const
{
    if (!m_head) return;
    painter.save();
    painter.translate(toPixel(0, 0));
    painter.rotate(m_head->value());
    painter.scale(lineHeight(), lineHeight());
    painter.setPen(QPen(colours().ink, thin * 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(QPolygonF{{0, -0.9}, {0.3, -0.35}, {0.3, 0.8}, {-0.3, 0.8}, {-0.3, -0.35}});
    painter.restore();
}

void CoursesPicture::drawLegend(QPainter& painter) const
{
    Legend legend(painter, m_figures, {lineHeight() / 2, 0.75 * lineHeight()},
                  colours().palette.color(QPalette::WindowText));
    legend.line(waterPen(), "Through the water");
    legend.line(currentPen(), "Current");
    legend.line(groundPen(), "Made good");
}

} // namespace korvel
