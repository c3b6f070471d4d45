// SPDX-License-Identifier: MIT
#include "forms/frmGC2000/GCPicture.h"

#include "shell/layout/Legend.h"
#include "shell/layout/LineWeight.h"
#include "shell/machine/AsQString.h"

#include <QLineF>
#include <QtMath>

#include <cmath>

namespace korvel
{
namespace
{

constexpr double rhumbDashes[] = {5, 3}; // dash and gap in widths of the line
constexpr double longestPiece = 100000;  // pixels

/// Every how many labels one is drawn, so that none touches its neighbour.
std::size_t labelStride(const std::vector<double>& places, double room)
{
    if (places.size() < 2) return 1;
    const double apart = std::fabs(places[1] - places[0]);
    return apart > 0 ? static_cast<std::size_t>(std::ceil(room / apart)) : 1;
}

/// The dashes of a line of many pieces. The toolkit begins anew at every piece, which makes a solid
/// line of pieces that are shorter than a dash.
QList<QLineF> dashed(const QList<QLineF>& pieces, double dash, double gap)
{
    QList<QLineF> dashes;
    double at = 0; // since the last dash began
    for (const QLineF& piece : pieces) {
        const double length = piece.length();
        if (!(length < longestPiece)) continue; // no chart has it
        for (double from = 0; from < length;) {
            const bool isDash = at < dash;
            const double step = std::min(length - from, (isDash ? dash : dash + gap) - at);
            if (isDash)
                dashes << QLineF(piece.pointAt(from / length),
                                 piece.pointAt((from + step) / length));
            from += step;
            at += step;
            if (at >= dash + gap) at = 0;
            if (step <= 0) break; // nothing is left but what rounding leaves
        }
    }
    return dashes;
}

} // namespace

GCPicture::GCPicture()
{
    setObjectName("picGC");
    setAccessibleName("Chart of the great circle and the rhumb line");
}

QSize GCPicture::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const int legend =
        Legend::width(metrics, "Departure Waypoint Arrival Great circle Rhumb line", 2, 3);
    return {legend + 3 * metrics.height(), 12 * metrics.height()};
}

/// The legend in two lines, and a chart that still shows a curve.
QSize GCPicture::minimumSizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const int legend = std::max(Legend::width(metrics, "Departure Waypoint Arrival", 0, 3),
                                Legend::width(metrics, "Great circle Rhumb line", 2, 0));
    return {legend + 3 * metrics.height(), 12 * metrics.height()};
}

void GCPicture::placeMargins()
{
    const QFontMetrics metrics = letterMetrics();
    const int gap = metrics.height() / 2;
    const int oneLine =
        Legend::width(metrics, "Departure Waypoint Arrival Great circle Rhumb line", 2, 3) +
        3 * metrics.height();
    m_legendLines = pictureSize().width() >= oneLine ? 1 : 2;
    // Above the chart the legend, and below it half the height of the topmost label.
    setPlotMargins({metrics.horizontalAdvance("00°N") + gap, (1 + m_legendLines) * metrics.height(),
                    metrics.horizontalAdvance("000°W") / 2, metrics.height() + gap});
}

void GCPicture::setChart(GCChart chart)
{
    // The legend stays while the route changes with every key.
    const bool sameLegend = m_chart.route.empty() == chart.route.empty();
    m_chart = std::move(chart);
    setUserScale(m_chart.scale,
                 rect().adjusted(0, sameLegend ? qCeil(legendStrip().bottom()) : 0, 0, 0));
}

void GCPicture::draw(QPainter& painter)
{
    painter.fillRect(plotArea(), colours().paper);
    if (!m_chart.route.empty()) {
        painter.save();
        painter.setClipRect(plotArea(), Qt::IntersectClip);
        drawGrid(painter);
        drawLines(painter);
        drawPoints(painter);
        drawNumbers(painter);
        painter.restore();
        drawEdges(painter);
        if (isToBeDrawn(legendStrip())) drawLegend(painter);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(pen(colours().ink, LineWeight::fine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(plotArea());
}

QRectF GCPicture::legendStrip() const
{
    const double high = m_legendLines * lineHeight();
    return {0, plotArea().top() / 2 - high / 2, double(pictureSize().width()), high};
}

QPen GCPicture::pen(const QColor& colour, double width) const
{
    return {colour, LineWeight::inPixels(width, lineHeight()), Qt::SolidLine, Qt::SquareCap,
            Qt::MiterJoin};
}

QPen GCPicture::rhumbPen() const
{
    QPen dashed = pen(colours().secondary, LineWeight::second);
    dashed.setCapStyle(Qt::FlatCap);
    dashed.setDashPattern({rhumbDashes[0], rhumbDashes[1]});
    return dashed;
}

void GCPicture::drawGrid(QPainter& painter) const
{
    const QRectF seen = plotArea();
    const auto drawLine = [&](const ChartLine& line) {
        // The grid is far wider than any chart: what cannot be seen is not drawn.
        const QRectF drawn = QRectF(pixel(line.from), pixel(line.to)).normalized();
        if (drawn.right() >= seen.left() && drawn.left() <= seen.right() &&
            drawn.bottom() >= seen.top() && drawn.top() <= seen.bottom())
            painter.drawLine(pixel(line.from), pixel(line.to));
    };
    // Upright and level lines are crisp on whole pixels.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(pen(colours().grid, LineWeight::fine));
    for (const ChartLine& line : m_chart.grid)
        drawLine(line);
    painter.setPen(pen(colours().equator, LineWeight::fine));
    drawLine(m_chart.equator);
    painter.setRenderHint(QPainter::Antialiasing);
}

void GCPicture::drawLines(QPainter& painter) const
{
    // Line by line, without joins: a path of joined lines takes the painter ten times as long.
    const auto legs = [&](const std::vector<ChartPoint>& points) {
        QList<QLineF> lines;
        for (std::size_t i = 0; i + 1 < points.size(); ++i)
            lines << QLineF(pixel(points[i]), pixel(points[i + 1]));
        return lines;
    };
    QPen solid = rhumbPen();
    solid.setStyle(Qt::SolidLine);
    painter.setPen(solid);
    painter.drawLines(dashed(legs(m_chart.rhumbLine), rhumbDashes[0] * solid.widthF(),
                             rhumbDashes[1] * solid.widthF()));
    painter.setPen(pen(colours().route, LineWeight::subject));
    painter.drawLines(legs(m_chart.route));
}

void GCPicture::drawMark(QPainter& painter, QPointF at, Mark mark) const
{
    const double radius = lineHeight() * (mark == Mark::Waypoint ? 0.2 : 0.34);
    painter.setPen(pen(colours().marker, LineWeight::subject));
    painter.setBrush(mark == Mark::Departure ? colours().paper : colours().marker);
    if (mark == Mark::Arrival) {
        painter.drawRect(QRectF(at.x() - radius, at.y() - radius, 2 * radius, 2 * radius));
        return;
    }
    if (mark == Mark::Waypoint) painter.setPen(Qt::NoPen);
    painter.drawEllipse(at, radius, radius);
}

void GCPicture::drawPoints(QPainter& painter) const
{
    const auto& route = m_chart.route;
    // The marks of the ends cover those of the first and the last.
    for (const auto& point : route)
        drawMark(painter, pixel(point), Mark::Waypoint);
    drawMark(painter, pixel(route.back()), Mark::Arrival);
    drawMark(painter, pixel(route.front()), Mark::Departure);
}

QPointF GCPicture::outward(std::size_t waypoint) const
{
    const QPointF here = pixel(m_chart.route[waypoint]);
    const QPointF before = pixel(m_chart.route[waypoint - 1]);
    const QPointF after = pixel(m_chart.route[waypoint + 1]);
    const QLineF across = QLineF(before, after).normalVector().unitVector();
    const QPointF normal(across.dx(), across.dy());
    const double bend = QPointF::dotProduct(normal, 2 * here - before - after);
    return bend < 0 || (bend == 0 && normal.y() > 0) ? -normal : normal;
}

/// Outside the bend of the route, where no line crosses the number; inside it where the chart ends.
QRectF GCPicture::numberRoom(std::size_t waypoint, double wide) const
{
    const QPointF away = 0.8 * lineHeight() * outward(waypoint);
    const auto roomAt = [&](QPointF at) {
        return QRectF(at.x() - wide, at.y() - lineHeight() / 2, 2 * wide, lineHeight());
    };
    const QRectF outside = roomAt(pixel(m_chart.route[waypoint]) + away);
    return plotArea().contains(outside) ? outside : roomAt(pixel(m_chart.route[waypoint]) - away);
}

void GCPicture::drawNumbers(QPainter& painter) const
{
    const auto& route = m_chart.route;
    const double wide = letterMetrics().horizontalAdvance("19");
    std::vector<double> places;
    for (std::size_t i = 1; i + 1 < route.size(); ++i)
        places.push_back(pixel(route[i]).x());
    const std::size_t stride = labelStride(places, 1.4 * wide);
    painter.setPen(colours().ink);
    for (std::size_t i = 1; i + 1 < route.size(); i += stride) {
        // Beside an end there is no room for it.
        const auto isAtEnd = [&](const ChartPoint& end) {
            return QLineF(pixel(end), pixel(route[i])).length() < lineHeight();
        };
        if (isAtEnd(route.front()) || isAtEnd(route.back())) continue;
        m_figures.draw(painter, numberRoom(i, wide), Qt::AlignCenter, QString::number(i));
    }
}

void GCPicture::drawEdges(QPainter& painter) const
{
    const QRectF area = plotArea();
    const double tick = lineHeight() / 3;
    const double wide = letterMetrics().horizontalAdvance("000°W");
    painter.setPen(pen(colours().palette.color(QPalette::WindowText), LineWeight::fine));
    const auto label = [&](const QRectF& room, Qt::Alignment alignment, const ChartLabel& each) {
        m_figures.draw(painter, room, alignment, asQString(each.text));
    };
    std::vector<double> places;
    for (const ChartLabel& each : m_chart.meridianLabels)
        places.push_back(toPixel(each.at, 0).x());
    const std::size_t stride = labelStride(places, 1.15 * wide);
    for (std::size_t i = 0; i < places.size(); ++i) {
        painter.drawLine(QPointF(places[i], area.bottom()), {places[i], area.bottom() - tick});
        if (i % stride == 0)
            label({places[i] - wide, area.bottom() + tick / 2, 2 * wide, lineHeight()},
                  Qt::AlignCenter, m_chart.meridianLabels[i]);
    }
    places.clear();
    for (const ChartLabel& each : m_chart.parallelLabels)
        places.push_back(toPixel(0, each.at).y());
    const std::size_t rows = labelStride(places, 1.1 * lineHeight());
    for (std::size_t i = 0; i < places.size(); ++i) {
        painter.drawLine(QPointF(area.left(), places[i]), {area.left() + tick, places[i]});
        if (i % rows == 0)
            label({0, places[i] - lineHeight() / 2, area.left() - tick, lineHeight()},
                  Qt::AlignRight | Qt::AlignVCenter, m_chart.parallelLabels[i]);
    }
}

void GCPicture::drawLegend(QPainter& painter) const
{
    const QColor ink = colours().palette.color(QPalette::WindowText);
    QPointF start(plotArea().left(), legendStrip().top() + lineHeight() / 2);
    Legend legend(painter, m_figures, start, ink);
    const auto mark = [&](Mark kind, const QString& words) {
        legend.mark([&](QPointF at) { drawMark(painter, at, kind); }, words);
    };
    mark(Mark::Departure, "Departure");
    mark(Mark::Waypoint, "Waypoint");
    mark(Mark::Arrival, "Arrival");
    start.ry() += lineHeight();
    if (m_legendLines == 2) legend.goOnAt(start);
    legend.line(pen(colours().route, LineWeight::subject), "Great circle");
    legend.line(rhumbPen(), "Rhumb line");
}

} // namespace korvel
