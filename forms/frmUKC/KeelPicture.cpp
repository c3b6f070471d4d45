// SPDX-License-Identifier: MIT
#include "forms/frmUKC/KeelPicture.h"

#include "app/reading/Format.h"
#include "shell/layout/LineWeight.h"
#include "shell/machine/AsQString.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

constexpr double hoursOfDay = 24;
constexpr int samplesOfHour = 3;

} // namespace

KeelPicture::KeelPicture()
{
    setObjectName("picKeel");
    setAccessibleName("Tide of seven days with the hours when the minimum is kept; the list beside "
                      "it says the same");
}

QSize KeelPicture::sizeHint() const
{
    return fontMetrics().height() * QSize(40, 11);
}

QSize KeelPicture::minimumSizeHint() const
{
    return fontMetrics().height() * QSize(20, 9);
}

void KeelPicture::show(const TideWeek& week, const UKCResult& result)
{
    m_bands.clear();
    m_curve.clear();
    m_days.clear();
    m_level.reset();
    m_chosen.reset();
    double low = 0, high = 1;
    for (std::size_t day = 0; day < week.days.size(); ++day) {
        const double midnight = hoursOfDay * static_cast<double>(day);
        for (int i = 0; i <= hoursOfDay * samplesOfHour; ++i) {
            const double hour = double(i) / samplesOfHour;
            const double height = week.at(day, NavFunc113::Hours(hour));
            low = std::min(low, height);
            high = std::max(high, height);
            m_curve << QPointF(midnight + hour, height);
        }
        for (const HoursSpan& span : result.spans[day])
            m_bands.push_back({midnight + span.from.value(), midnight + span.to.value()});
        m_days.push_back(asQString(Format(static_cast<double>(week.days[day].four.serial), "m/d")));
    }
    const KeelFigures& figures = result.figures;
    if (week.isThere() && figures.leastTide) m_level = figures.leastTide->value();
    if (week.isThere() && figures.tide && figures.tide->time)
        m_chosen = QPointF(figures.tide->time->value(), figures.tide->height.value());
    const double days = std::max<double>(1, static_cast<double>(week.days.size()));
    setUserScale({0, high + 0.2, hoursOfDay * days, low - 0.2});
}

void KeelPicture::placeMargins()
{
    const QFontMetrics metrics = letterMetrics();
    const int gap = metrics.height() / 3;
    setPlotMargins({metrics.horizontalAdvance("-00 m") + gap, gap, gap, metrics.height() + gap});
}

QPen KeelPicture::pen(const QColor& colour, double weight) const
{
    return QPen(colour, LineWeight::inPixels(weight, lineHeight()), Qt::SolidLine, Qt::RoundCap,
                Qt::RoundJoin);
}

void KeelPicture::draw(QPainter& painter)
{
    painter.fillRect(isOnPaper() ? plotArea() : QRectF(rect()), colours().paper);
    if (m_curve.isEmpty()) {
        painter.setPen(colours().echo);
        painter.drawText(rect(), Qt::AlignCenter,
                         "Type a tide station for the hours of seven days");
        return;
    }
    drawHours(painter);
    drawGrid(painter);
    drawDays(painter);
    drawLevels(painter);
    painter.save();
    painter.setClipRect(plotArea(), Qt::IntersectClip);
    drawLeastTide(painter);
    drawCurve(painter);
    painter.restore();
}

/// The hours when the minimum is kept, as bands along the foot and a tint above it.
void KeelPicture::drawHours(QPainter& painter) const
{
    const QRectF area = plotArea();
    constexpr float faint = 0.22f;
    QColor tint = colours().route;
    tint.setAlphaF(faint);
    const double bar = lineHeight() / 4;
    for (const Band& band : m_bands) {
        const double left = toPixel(band.from, 0).x(), right = toPixel(band.to, 0).x();
        painter.fillRect(QRectF(left, area.top(), right - left, area.height()), tint);
        painter.fillRect(QRectF(left, area.bottom() - bar, right - left, bar), colours().route);
    }
}

void KeelPicture::drawGrid(QPainter& painter) const
{
    const QRectF area = plotArea();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(
        QPen(colours().grid, LineWeight::inPixels(LineWeight::fine, lineHeight()), Qt::DotLine));
    constexpr double sixHours = 6;
    for (double hour = sixHours; hour < userScale().right; hour += sixHours)
        if (std::fmod(hour, hoursOfDay) != 0)
            painter.drawLine(QPointF(toPixel(hour, 0).x(), area.top()),
                             QPointF(toPixel(hour, 0).x(), area.bottom()));
    painter.setPen(pen(colours().grid, LineWeight::fine));
    for (double hour = 0; hour <= userScale().right; hour += hoursOfDay)
        painter.drawLine(QPointF(toPixel(hour, 0).x(), area.top()),
                         QPointF(toPixel(hour, 0).x(), area.bottom()));
    painter.setPen(pen(colours().datum, LineWeight::fine));
    painter.drawLine(toPixel(0, 0), toPixel(userScale().right, 0));
    painter.setRenderHint(QPainter::Antialiasing);
}

void KeelPicture::drawDays(QPainter& painter) const
{
    painter.setPen(colours().ink);
    const double height = letterMetrics().height();
    for (std::size_t day = 0; day < m_days.size(); ++day) {
        const double left = toPixel(hoursOfDay * static_cast<double>(day), 0).x();
        const double right = toPixel(hoursOfDay * static_cast<double>(day + 1), 0).x();
        painter.drawText(QRectF(left, plotArea().bottom() + height / 6, right - left, height),
                         Qt::AlignCenter, m_days[day]);
    }
}

void KeelPicture::drawLevels(QPainter& painter) const
{
    const QFontMetrics metrics = letterMetrics();
    const double unit = toPixel(0, 0).y() - toPixel(0, 1).y();
    const int every = std::max(1, static_cast<int>(std::ceil(1.5 * metrics.height() / unit)));
    painter.setPen(colours().ink);
    for (int level = static_cast<int>(std::ceil(userScale().bottom)); level <= userScale().top;
         ++level) {
        if (level % every != 0) continue;
        const QPointF at = toPixel(0, level);
        painter.drawText(QRectF(0, at.y() - metrics.height() / 2.0, at.x() - metrics.height() / 4.0,
                                metrics.height()),
                         Qt::AlignRight | Qt::AlignVCenter, QString("%1 m").arg(level));
    }
}

void KeelPicture::drawCurve(QPainter& painter) const
{
    QPolygonF line;
    for (const QPointF& point : m_curve)
        line << toPixel(point.x(), point.y());
    painter.setPen(pen(colours().curve, LineWeight::subject));
    painter.drawPolyline(line);
    if (!m_chosen) return;
    painter.setPen(pen(colours().marker, LineWeight::second));
    painter.setBrush(colours().paper);
    const double radius = lineHeight() / 4;
    painter.drawEllipse(toPixel(m_chosen->x(), m_chosen->y()), radius, radius);
}

/// The tide that the minimum takes; beyond the picture where every tide, or none, will do.
void KeelPicture::drawLeastTide(QPainter& painter) const
{
    if (!m_level) return;
    QPen dashed = pen(colours().marker, LineWeight::fine);
    dashed.setStyle(Qt::DashLine);
    painter.setPen(dashed);
    painter.drawLine(toPixel(0, *m_level), toPixel(userScale().right, *m_level));
}

} // namespace korvel
