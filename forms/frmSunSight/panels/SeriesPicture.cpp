// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/panels/SeriesPicture.h"

#include "app/reading/Format.h"
#include "shell/layout/LineWeight.h"
#include "shell/machine/AsQString.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

constexpr double minutesOfDay = 1440;

double minutesFromMean(const SightSeries& series, const SeriesShot& shot)
{
    return (shot.UTC - series.UTC) * minutesOfDay;
}

/// The next of 1, 2, 5, 10, 20 ..
double roundedUp(double value)
{
    const double power = std::pow(10, std::floor(std::log10(value)));
    for (const double step : {1.0, 2.0, 5.0})
        if (value <= step * power) return step * power;
    return 10 * power;
}

/// Beside a line of the grid; that in the middle has no sign.
std::string markText(double value, const char* format)
{
    return value == 0 ? "0" : Format(value, format);
}

} // namespace

SeriesPicture::SeriesPicture(QWidget* parent) : PictureBox(parent)
{
    setObjectName("picSunSeries");
    setAccessibleName("Residuals of the shots of each series, minutes of arc over minutes of time");
    setMinimumHeight(fontMetrics().height() * 6);
    setMinimumWidth(fontMetrics().height() * 12);
}

void SeriesPicture::showSeries(const std::vector<SightSeries>& series)
{
    m_series = series;
    double time = 0.5, arc = 0.5;
    for (const SightSeries& each : series)
        for (const SeriesShot& shot : each.shots) {
            time = std::max(time, 1.05 * std::fabs(minutesFromMean(each, shot)));
            arc = std::max(arc, 1.05 * std::fabs(shot.residual.value()));
        }
    m_halfTime = roundedUp(time);
    m_halfArc = roundedUp(arc);
    setUserScale({-m_halfTime, m_halfArc, m_halfTime, -m_halfArc});
}

void SeriesPicture::placeMargins()
{
    const QFontMetrics metrics = letterMetrics();
    setPlotMargins(QMargins(metrics.horizontalAdvance("+10.0' "), metrics.height() / 2,
                            metrics.horizontalAdvance("00 min"), metrics.height() * 7 / 4));
}

void SeriesPicture::draw(QPainter& painter)
{
    if (!isOnPaper()) {
        painter.fillRect(painter.viewport(), colours().paper);
        painter.setFont(font());
    }
    paintGrid(painter);
    for (const SightSeries& each : m_series)
        paintShots(painter, each);
}

void SeriesPicture::paintGrid(QPainter& painter) const
{
    const QFontMetrics metrics = painter.fontMetrics();
    const QRectF area = plotArea();
    const double fine = LineWeight::inPixels(LineWeight::fine, metrics.height());
    for (const double arc : {-m_halfArc, 0.0, m_halfArc}) {
        const double y = toPixel(0, arc).y();
        painter.setPen(QPen(arc == 0 ? colours().ink : colours().grid, fine));
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        const QString words = asQString(markText(arc, "+0.0#;-0.0#")) + "' ";
        painter.setPen(colours().ink);
        painter.drawText(
            QPointF(area.left() - metrics.horizontalAdvance(words), y + metrics.ascent() / 2.0),
            words);
    }
    // Half a line down: the mark of the lowest arc reaches below the corner.
    const double base = area.bottom() + metrics.height() / 2.0 + metrics.ascent();
    for (const double time : {-m_halfTime, 0.0, m_halfTime}) {
        const double x = toPixel(time, 0).x();
        painter.setPen(QPen(colours().grid, fine));
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        const QString words = asQString(markText(time, "+0.#;-0.#")) + " min";
        painter.setPen(colours().ink);
        painter.drawText(QPointF(x - metrics.horizontalAdvance(words) / 2.0, base), words);
    }
}

void SeriesPicture::paintShots(QPainter& painter, const SightSeries& series) const
{
    const QFontMetrics metrics = painter.fontMetrics();
    const double arm = metrics.height() / 5.0;
    QPointF last;
    for (const SeriesShot& shot : series.shots) {
        const QPointF at = toPixel(minutesFromMean(series, shot), shot.residual.value());
        painter.setPen(Qt::NoPen);
        painter.setBrush(colours().route);
        painter.drawEllipse(at, arm, arm);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(
            QPen(colours().marker, LineWeight::inPixels(LineWeight::subject, metrics.height())));
        if (shot.isWild) painter.drawEllipse(at, 2.5 * arm, 2.5 * arm);
        last = at;
    }
    painter.setPen(colours().ink);
    const QString name = series.body.empty() ? QString("Sun") : asQString(series.body);
    const double width = metrics.horizontalAdvance(name);
    const double left = std::min(last.x() + 2 * arm, plotArea().right() - width);
    painter.drawText(QPointF(left, std::max(last.y() - arm, plotArea().top() + metrics.ascent())),
                     name);
}

} // namespace korvel
