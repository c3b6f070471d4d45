// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanPicture.h"

#include "navlib/angles.h"

namespace korvel
{
namespace
{

constexpr double thin = 0.06; // widths of lines in heights of a line of text
constexpr double thick = 0.14;
constexpr double furthest = 100000; // pixels: what lies beyond is not drawn

} // namespace

PlanPicture::PlanPicture()
{
    setObjectName("picPlan");
    setAccessibleName("Chart of the plan; plus and minus zoom, arrows move, Home shows all of it");
    setToolTip("Wheel or + and -: zoom. Drag or arrows: move. Home: the whole plan. A press on a "
               "waypoint goes to its row.");
    look({});
}

QSize PlanPicture::sizeHint() const
{
    return minimumSizeHint();
}

QSize PlanPicture::minimumSizeHint() const
{
    return fontMetrics().height() * QSize(13, 10);
}

void PlanPicture::setChart(PlanChart chart, std::size_t row)
{
    m_chart = std::move(chart);
    m_row = row;
    if (m_showsAll)
        lookAtAll();
    else
        update();
}

double PlanPicture::aspect() const
{
    const QRectF area = plotArea();
    return area.width() > 0 ? std::max(0.05, area.height() / area.width()) : 1;
}

UserScale PlanPicture::scaleOf(const ChartView& view) const
{
    const double high = view.halfWidth * aspect();
    return {view.centre.x - view.halfWidth, view.centre.y + high, view.centre.x + view.halfWidth,
            view.centre.y - high};
}

void PlanPicture::look(const ChartView& view)
{
    m_view = view;
    setUserScale(scaleOf(view));
}

void PlanPicture::lookAtAll()
{
    m_showsAll = true;
    look(ChartView::ofAll(m_chart, aspect()));
}

void PlanPicture::resizeEvent(QResizeEvent* event)
{
    ChartBox::resizeEvent(event);
    if (m_showsAll)
        lookAtAll();
    else
        look(m_view);
}

void PlanPicture::zoomBy(double factor, QPointF around)
{
    m_showsAll = false;
    look(m_view.zoomed(factor, {around.x(), around.y()}));
}

void PlanPicture::moveBy(QPointF by)
{
    m_showsAll = false;
    look({{m_view.centre.x + by.x(), m_view.centre.y + by.y()}, m_view.halfWidth});
}

/// A press on a waypoint is for its row.
bool PlanPicture::takesHold(QPointF user)
{
    const QPointF at = toPixel(user.x(), user.y());
    for (const PlanChart::Mark& mark : m_chart.marks)
        if ((pixel(mark.at) - at).manhattanLength() < lineHeight() / 2) {
            emit rowChosen(mark.row);
            return false;
        }
    return true;
}

void PlanPicture::placeMargins()
{
    const QFontMetrics metrics = letterMetrics();
    const int gap = metrics.height() / 3;
    setPlotMargins({metrics.horizontalAdvance("00°00'N") + gap, gap,
                    metrics.horizontalAdvance("000°") / 2, metrics.height() + gap});
    setUserScale(scaleOf(m_view));
}

QPen PlanPicture::pen(const QColor& colour, double width) const
{
    return {colour, std::max(1.0, width * lineHeight()), Qt::SolidLine, Qt::RoundCap,
            Qt::RoundJoin};
}

void PlanPicture::draw(QPainter& painter)
{
    painter.fillRect(plotArea(), colours().paper);
    painter.save();
    drawGraticule(painter);
    painter.setClipRect(plotArea(), Qt::IntersectClip);
    drawLegs(painter);
    drawMarks(painter);
    drawNumbers(painter);
    drawScaleBar(painter);
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(rim(pen(colours().grid, thin)));
    painter.drawRect(plotArea());
}

void PlanPicture::drawGraticule(QPainter& painter) const
{
    const QRectF area = plotArea();
    const QFontMetricsF metrics(letterMetrics());
    const auto roomFor = [](double length, double each) {
        return static_cast<std::size_t>(std::max(1.0, length / each));
    };
    const double wide = metrics.horizontalAdvance("000°00'W") * 1.2;
    const UserScale& scale = userScale();
    const QColor words = colours().palette.color(QPalette::WindowText);
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const auto& line : meridiansOf(scale.left, scale.right, roomFor(area.width(), wide))) {
        const double x = toPixel(line.at, 0).x();
        painter.setPen(pen(colours().grid, thin));
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        painter.setPen(words);
        painter.drawText(QRectF(x - wide / 2, area.bottom(), wide, metrics.height()),
                         Qt::AlignCenter, QString::fromStdString(line.text));
    }
    for (const auto& line :
         parallelsOf(scale.bottom, scale.top, roomFor(area.height(), 2 * metrics.height()))) {
        const double y = toPixel(0, line.at).y();
        painter.setPen(pen(line.at == 0 ? colours().equator : colours().grid, thin));
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        painter.setPen(words);
        painter.drawText(QRectF(0, y - metrics.height() / 2, area.left() - metrics.height() / 4,
                                metrics.height()),
                         Qt::AlignRight | Qt::AlignVCenter, QString::fromStdString(line.text));
    }
    painter.setRenderHint(QPainter::Antialiasing);
}

void PlanPicture::drawLegs(QPainter& painter) const
{
    // Piece by piece: a path of joined lines takes the painter ten times as long.
    QList<QLineF> others, inHand;
    for (const PlanChart::Leg& leg : m_chart.legs)
        for (std::size_t i = 1; i < leg.points.size(); ++i) {
            const QLineF line(pixel(leg.points[i - 1]), pixel(leg.points[i]));
            if (line.p1().manhattanLength() < furthest && line.p2().manhattanLength() < furthest)
                (leg.row == m_row ? inHand : others) << line;
        }
    painter.setPen(pen(colours().route, thick));
    painter.drawLines(others);
    painter.setPen(pen(colours().route, 2 * thick));
    painter.drawLines(inHand);
}

void PlanPicture::drawMarks(QPainter& painter) const
{
    const QRectF seen = plotArea();
    const double radius = 0.22 * lineHeight();
    for (const PlanChart::Mark& mark : m_chart.marks) {
        const QPointF at = pixel(mark.at);
        if (!seen.contains(at)) continue;
        const bool isInHand = mark.row == m_row;
        painter.setPen(pen(colours().route, thick / 1.5));
        painter.setBrush(isInHand ? colours().marker : colours().paper);
        const double size = isInHand ? 1.6 * radius : radius;
        painter.drawEllipse(at, size, size);
    }
}

/// Numbers of the rows, where each has room; that of the row in hand first.
void PlanPicture::drawNumbers(QPainter& painter) const
{
    const QRectF seen = plotArea();
    const QFontMetricsF metrics(letterMetrics());
    std::vector<QRectF> taken;
    painter.setPen(colours().ink);
    const auto number = [&](const PlanChart::Mark& mark) {
        const QString text = QString::number(mark.row + 1);
        const QPointF at = pixel(mark.at);
        QRectF room(at.x() + 0.4 * lineHeight(), at.y() - 1.1 * metrics.height(),
                    metrics.horizontalAdvance(text), metrics.height());
        if (room.right() > seen.right()) room.moveRight(at.x() - 0.4 * lineHeight());
        if (room.top() < seen.top()) room.moveTop(at.y() + 0.2 * lineHeight());
        if (!seen.contains(at)) return;
        for (const QRectF& other : taken)
            if (other.intersects(room)) return;
        taken.push_back(room);
        painter.drawText(room, Qt::AlignCenter, text);
    };
    constexpr std::size_t most = 60; // the eye does not read more
    for (const PlanChart::Mark& mark : m_chart.marks)
        if (mark.row == m_row) number(mark);
    for (const PlanChart::Mark& mark : m_chart.marks)
        if (taken.size() < most) number(mark);
}

/// On Mercator's chart a mile grows with the latitude: the bar holds in the middle of the picture.
void PlanPicture::drawScaleBar(QPainter& painter) const
{
    const QRectF area = plotArea();
    const auto lat = latitudeAtY(toUser(area.center()).y());
    const double perDegree = area.width() / (userScale().right - userScale().left);
    const double perMile = perDegree / 60 / NavFunc113::cos(lat);
    const double miles = milesOfScaleBar(area.width() / 3 / perMile);
    const double unit = lineHeight() / 3;
    const QPointF end = area.bottomRight() + QPointF(-unit, -unit);
    const QPointF start = end - QPointF(miles * perMile, 0);
    painter.setPen(pen(colours().ink, thin));
    painter.drawLine(start, end);
    for (const QPointF& tick : {start, end})
        painter.drawLine(tick, tick - QPointF(0, unit));
    const double high = letterMetrics().height();
    painter.drawText(QRectF(area.left(), end.y() - high - unit / 2, end.x() - area.left(), high),
                     Qt::AlignRight | Qt::AlignVCenter, QString("%1 nm").arg(miles));
}

} // namespace korvel
