// SPDX-License-Identifier: MIT
#include "forms/frmCompass/pages/DeviationPicture.h"

#include "app/reading/Format.h"
#include "forms/frmCompass/CompassTexts.h"
#include "navlib/angles.h"
#include "shell/layout/Legend.h"
#include "shell/machine/AsQString.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;

// Widths of lines and marks in heights of a line of text.
constexpr double hairWidth = 0.06;
constexpr double curveWidth = 0.14;
constexpr double markRadius = 0.22;
constexpr int fullCircle = 360;
constexpr int headStep = 45;
constexpr std::array pointNames{"N", "NE", "E", "SE", "S", "SW", "W", "NW", "N"};

} // namespace

DeviationPicture::DeviationPicture(QWidget* parent) : PictureBox(parent)
{
    setObjectName("picDeviation");
    setAccessibleName("Curve of the deviation over the compass head");
    const int line = fontMetrics().height();
    setMinimumSize(18 * line, 18 * line);
    scale();
}

QSize DeviationPicture::sizeHint() const
{
    return {minimumWidth() * 3 / 2, minimumHeight() * 4 / 3};
}

void DeviationPicture::showCurve(const DeviationCurve& curve)
{
    m_curve = curve;
    scale();
}

void DeviationPicture::showInHand(const std::optional<NavFunc113::DeviationPoint>& point)
{
    m_inHand = point;
    update();
}

/// As wide as the largest deviation needs, in whole steps of the grid.
void DeviationPicture::scale()
{
    double largest = 1;
    for (const DeviationCurve::Point& point : m_curve.points)
        largest = std::max(largest, fabs(point.at.deviation).value());
    if (m_curve.fit)
        for (int head = 0; head < fullCircle; ++head)
            largest =
                std::max(largest, fabs(m_curve.fit->coefficients().at(Degrees(head))).value());
    m_step = 1;
    for (const double wider : {2.0, 5.0, 10.0, 30.0})
        if (largest > 4 * m_step) m_step = wider;
    m_edge = m_step * std::ceil(largest / m_step);
    setUserScale({-m_edge, 0, m_edge, fullCircle});
}

void DeviationPicture::placeMargins()
{
    const QFontMetrics metrics = letterMetrics();
    const int line = metrics.height();
    setPlotMargins({metrics.horizontalAdvance("NW 000  "), 2 * line, 3 * line / 2, 3 * line / 2});
}

QPen DeviationPicture::pen(const QColor& colour, double width) const
{
    return {colour, std::max(1.0, std::floor(width * lineHeight())), Qt::SolidLine, Qt::FlatCap,
            Qt::RoundJoin};
}

QPointF DeviationPicture::pixel(const NavFunc113::DeviationPoint& point) const
{
    const double deviation = std::clamp(point.deviation.value(), -m_edge, m_edge);
    return toPixel(deviation, std::fmod(point.heading.value(), fullCircle));
}

void DeviationPicture::draw(QPainter& painter)
{
    painter.fillRect(plotArea(), colours().paper);
    drawGrid(painter);
    painter.save();
    painter.setClipRect(
        plotArea().adjusted(-lineHeight(), -lineHeight(), lineHeight(), lineHeight()));
    drawLine(painter);
    drawPoints(painter);
    painter.restore();
    drawLegend(painter);
}

void DeviationPicture::drawGrid(QPainter& painter) const
{
    const double line = lineHeight();
    const QColor text = colours().palette.color(QPalette::WindowText);
    for (int head = 0; head <= fullCircle; head += headStep) {
        const QPointF left = toPixel(-m_edge, head), right = toPixel(m_edge, head);
        painter.setPen(pen(colours().grid, hairWidth));
        painter.drawLine(left, right);
        painter.setPen(text);
        const QString name =
            QString("%1 %2").arg(pointNames[static_cast<std::size_t>(head / headStep)],
                                 asQString(Format(head % fullCircle, "000")));
        m_figures.draw(painter, {0, left.y() - line / 2, left.x() - line / 3, line},
                       Qt::AlignRight | Qt::AlignVCenter, name);
    }
    for (double deviation = -m_edge; deviation <= m_edge; deviation += m_step) {
        const QPointF top = toPixel(deviation, 0), foot = toPixel(deviation, fullCircle);
        painter.setPen(pen(deviation == 0 ? colours().ink : colours().grid, hairWidth));
        painter.drawLine(top, foot);
        painter.setPen(text);
        const QString side = deviation < 0 ? "° W" : deviation > 0 ? "° E" : "";
        m_figures.draw(painter, {foot.x() - 3 * line, foot.y() + line / 4, 6 * line, line},
                       Qt::AlignHCenter | Qt::AlignVCenter,
                       QString::number(std::fabs(deviation)) + side);
    }
}

void DeviationPicture::drawLine(QPainter& painter) const
{
    if (!m_curve.fit) return;
    QPolygonF line;
    constexpr int step = 3;
    for (int head = 0; head <= fullCircle; head += step)
        line << toPixel(m_curve.fit->coefficients().at(Degrees(head)).value(), head);
    painter.setPen(pen(colours().route, curveWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(line);
}

void DeviationPicture::drawPoints(QPainter& painter) const
{
    const double radius = markRadius * lineHeight();
    for (const DeviationCurve::Point& point : m_curve.points) {
        const QPointF at = pixel(point.at);
        if (point.isBlunder) {
            painter.setPen(pen(colours().fault, curveWidth));
            painter.drawLine(at - QPointF(radius, radius), at + QPointF(radius, radius));
            painter.drawLine(at - QPointF(radius, -radius), at + QPointF(radius, -radius));
        } else {
            painter.setPen(pen(colours().route, hairWidth));
            painter.setBrush(colours().paper);
            painter.drawEllipse(at, radius, radius);
        }
    }
    if (!m_inHand || isOnPaper()) return;
    painter.setPen(pen(colours().secondary, curveWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(pixel(*m_inHand), 2 * radius, 2 * radius);
}

void DeviationPicture::drawLegend(QPainter& painter) const
{
    const double radius = markRadius * lineHeight();
    Legend legend(painter, m_figures, {lineHeight() / 2, 0.75 * lineHeight()},
                  colours().palette.color(QPalette::WindowText));
    legend.mark(
        [&](QPointF at) {
            painter.setPen(pen(colours().route, hairWidth));
            painter.setBrush(colours().paper);
            painter.drawEllipse(at, radius, radius);
        },
        "line");
    if (m_curve.fit) legend.line(pen(colours().route, curveWidth), "curve");
    if (std::ranges::any_of(m_curve.points, &DeviationCurve::Point::isBlunder))
        legend.mark(
            [&](QPointF at) {
                painter.setPen(pen(colours().fault, curveWidth));
                painter.drawLine(at - QPointF(radius, radius), at + QPointF(radius, radius));
                painter.drawLine(at - QPointF(radius, -radius), at + QPointF(radius, -radius));
            },
            "left out");
    if (m_inHand && !isOnPaper())
        legend.mark(
            [&](QPointF at) {
                painter.setPen(pen(colours().secondary, curveWidth));
                painter.setBrush(Qt::NoBrush);
                painter.drawEllipse(at, 1.5 * radius, 1.5 * radius);
            },
            "in hand");
}

} // namespace korvel
