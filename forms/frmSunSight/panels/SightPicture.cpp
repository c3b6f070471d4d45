// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/panels/SightPicture.h"

#include "shell/layout/LineWeight.h"
#include "shell/machine/AsQString.h"

#include <QKeyEvent>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace korvel
{
namespace
{

UserScale scaleOf(const PlotView& view)
{
    return {view.centre.x - view.half, view.centre.y + view.half, view.centre.x + view.half,
            view.centre.y - view.half};
}

/// A round number of miles, about a quarter of the width.
int milesOfScale(const PlotView& view)
{
    for (int miles : {1, 2, 5, 10, 20, 50})
        if (miles * 4 >= view.half) return miles;
    return 100;
}

} // namespace

SightPicture::SightPicture(QWidget* parent) : ChartBox(parent)
{
    setObjectName("picSunSight");
    setAccessibleName("Plot of the lines of position, around the DR position; plus and minus zoom, "
                      "arrows move, Home shows 40 miles each way, End all lines");
    setToolTip("Wheel or + and -: zoom. Drag or arrows: move. Home: 40 miles each way. End: all "
               "lines");
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    setFont(small);
    const int side = fontMetrics().height() * 13;
    setMinimumSize(side * 3 / 2, side);
    setUserScale(scaleOf({}));
}

/// As high as it is wide, where the screen has room for that.
QSize SightPicture::sizeHint() const
{
    return {2 * minimumWidth(), 2 * minimumWidth()};
}

void SightPicture::showPlot(const SightPlot& plot)
{
    m_plot = plot;
    setUserScale(scaleOf(plot.view));
}

void SightPicture::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_End) return emit allWanted();
    ChartBox::keyPressEvent(event);
}

void SightPicture::zoomBy(double factor, QPointF around)
{
    emit viewWanted(zoomed(m_plot.view, factor, {around.x(), around.y()}));
}

void SightPicture::moveBy(QPointF by)
{
    PlotView view = m_plot.view;
    view.centre.x += by.x();
    view.centre.y += by.y();
    emit viewWanted(view);
}

double SightPicture::unit() const
{
    return letterMetrics().height() / 4.0;
}

void SightPicture::placeMargins()
{
    setPlotMargins(marginsFor(pictureSize()));
}

QMargins SightPicture::marginsFor(const QSize& size) const
{
    const QFontMetrics metrics = letterMetrics();
    const int left = metrics.horizontalAdvance("00-.00'0N ");
    const int bottom = metrics.height() * 5 / 4;
    const int top = metrics.height() / 2, right = metrics.horizontalAdvance("000-.00'0W") * 5 / 9;
    const int wide = size.width(), high = size.height();
    const int side = std::max(1, std::min(wide - left - right, high - top - bottom));
    const int aside = (wide - left - right - side) / 2;
    const int above = (high - top - bottom - side) / 2;
    return {left + aside, top + above, wide - left - aside - side, high - top - above - side};
}

QPen SightPicture::pen(const QColor& colour, double weight, Qt::PenStyle style) const
{
    QPen made(colour, LineWeight::inPixels(weight, letterMetrics().height()), style);
    made.setJoinStyle(Qt::RoundJoin);
    return made;
}

QPolygonF SightPicture::polygon(const std::vector<PlotPoint>& points) const
{
    QPolygonF made;
    for (const PlotPoint& point : points)
        made << pixel(point);
    return made;
}

/// Text with a rim of paper, so that it reads over lines where there is no place clear of them.
void SightPicture::paintText(QPainter& painter, const Lettering& letters) const
{
    const QPointF at(letters.room.left(),
                     letters.room.bottom() - QFontMetricsF(painter.font()).descent());
    if (isOnPaper()) { // letters, to be found in the file
        const QRectF room = painter.fontMetrics().tightBoundingRect(letters.words);
        painter.fillRect(room.translated(at).adjusted(-1, -1, 1, 1), colours().paper);
        painter.setPen(colours().ink);
        painter.drawText(at, letters.words);
        return;
    }
    QPainterPath path;
    path.addText(at, painter.font(), letters.words);
    painter.strokePath(path, pen(colours().paper, LineWeight::subject));
    painter.fillPath(path, colours().ink);
}

void SightPicture::keepOffMarks(PlotLettering& places) const
{
    const auto around = [this](const PlotPoint& at, double arm) {
        const QPointF middle = pixel(at);
        return QRectF(middle - QPointF(arm, arm), middle + QPointF(arm, arm));
    };
    places.keepOff(around({}, 2 * unit()));
    for (const PlotLine& line : m_plot.lines) {
        places.keepOff(QPolygonF({pixel({}), pixel(line.foot), pixel(line.arrowTo)}));
        for (const std::vector<PlotPoint>& run : line.runs)
            places.keepOff(polygon(run));
    }
    std::vector<PlotFix> fixes = m_plot.without;
    if (m_plot.fix) fixes.push_back(*m_plot.fix);
    for (const PlotFix& fix : fixes) {
        places.keepOff(around(fix.at, 1.5 * unit()));
        places.keepOff(polygon(fix.ellipse));
    }
    places.keepOff(QPolygonF({scaleBar().p1(), scaleBar().p2()}));
}

/// Places along a line, that of the plot first, then what is nearest to the rim; the fewer the more
/// lines there are, as few of a day's forty find a clear one anywhere.
std::vector<QPointF> SightPicture::pointsFor(const PlotLine& line) const
{
    constexpr std::size_t ofAll = 80, fewest = 2, mostOfOne = 12;
    const std::size_t most = std::clamp(ofAll / m_plot.lines.size(), fewest, mostOfOne);
    std::vector<PlotPoint> seen;
    for (const std::vector<PlotPoint>& run : line.runs)
        std::ranges::copy_if(run, std::back_inserter(seen),
                             [this](const PlotPoint& point) { return m_plot.view.shows(point); });
    std::vector<QPointF> points = {pixel(line.labelAt)};
    const std::size_t step = std::max<std::size_t>(1, seen.size() / most);
    for (std::size_t i = 0; i < seen.size(); i += step)
        points.push_back(pixel(i / step % 2 == 0 ? seen[i / 2] : seen[seen.size() - 1 - i / 2]));
    return points;
}

std::vector<SightPicture::Lettering> SightPicture::lettering() const
{
    const QFontMetricsF metrics(letterMetrics());
    PlotLettering places(plotArea(), unit());
    keepOffMarks(places);
    std::vector<Lettering> all;
    const auto add = [&](const std::string& text, const std::vector<QPointF>& points) {
        const QString words = asQString(text);
        const QSizeF size(metrics.horizontalAdvance(words), metrics.height());
        all.push_back({words, places.place(size, points)});
    };
    add(std::to_string(scaleMiles()) + " nm", {scaleBar().center()});
    const auto addAt = [&](const std::string& text, const PlotPoint& at) {
        if (m_plot.view.shows(at)) add(text, {pixel(at)});
    };
    if (m_plot.fix) addAt(m_plot.fix->label, m_plot.fix->at);
    addAt(m_plot.DRLabel, {});
    for (const PlotFix& fix : m_plot.without)
        addAt(fix.label, fix.at);
    for (const PlotLine& line : m_plot.lines)
        if (line.visible) add(line.label, pointsFor(line));
    return all;
}

void SightPicture::draw(QPainter& painter)
{
    if (!isOnPaper()) {
        painter.fillRect(painter.viewport(), colours().paper);
        painter.setFont(font());
    }
    paintGrid(painter);
    if (!m_plot.middle) return;
    paintScale(painter);
    painter.save();
    painter.setClipRect(plotArea(), Qt::IntersectClip); // within the page
    for (const PlotLine& line : m_plot.lines)
        paintLine(painter, line);
    paintDR(painter);
    for (const PlotFix& fix : m_plot.without)
        paintFix(painter, fix, true);
    if (m_plot.fix) paintFix(painter, *m_plot.fix, false);
    for (const Lettering& letters : lettering())
        paintText(painter, letters);
    painter.restore();
}

void SightPicture::paintGrid(QPainter& painter) const
{
    const QRectF area = plotArea();
    const QFontMetrics metrics = painter.fontMetrics();
    double free = 0; // where the next longitude has room
    for (const PlotGridLine& line : m_plot.grid) {
        painter.setPen(pen(colours().grid, LineWeight::fine, Qt::DotLine));
        const QPointF from = pixel(line.from), to = pixel(line.to);
        painter.drawLine(from, to);
        painter.setPen(colours().ink);
        const QString label = asQString(line.label);
        const double width = metrics.horizontalAdvance(label);
        if (line.from.x != line.to.x) {
            painter.drawText(
                QPointF(area.left() - width - unit(), from.y() + metrics.ascent() / 2.0), label);
        } else if (from.x() - width / 2 > free) {
            painter.drawText(QPointF(from.x() - width / 2, area.bottom() + metrics.ascent()),
                             label);
            free = from.x() + width / 2 + 3 * unit();
        }
    }
    painter.setPen(rim(pen(colours().ink, LineWeight::fine)));
    painter.drawRect(area);
}

/// North arrow, on the margin, and a round number of miles.
void SightPicture::paintScale(QPainter& painter) const
{
    painter.setPen(pen(colours().ink, LineWeight::fine));
    const QPointF north = plotArea().topRight() + QPointF(3 * unit(), 0);
    const QPointF foot = north + QPointF(0, 7 * unit());
    painter.drawLine(foot, north);
    painter.drawLine(north, north + QPointF(-unit(), 2 * unit()));
    painter.drawLine(north, north + QPointF(unit(), 2 * unit()));
    painter.drawText(foot + QPointF(-unit(), 3 * unit()), "N");

    painter.setPen(pen(colours().ink, LineWeight::second));
    painter.drawLine(scaleBar());
    for (const QPointF& tick : {scaleBar().p1(), scaleBar().p2()})
        painter.drawLine(tick, tick - QPointF(0, unit()));
}

int SightPicture::scaleMiles() const
{
    return milesOfScale(m_plot.view);
}

QLineF SightPicture::scaleBar() const
{
    const QPointF end = plotArea().bottomRight() + QPointF(-2 * unit(), -2 * unit());
    const double length = pixel({double(scaleMiles()), 0}).x() - pixel({0, 0}).x();
    return {end - QPointF(length, 0), end};
}

void SightPicture::paintLine(QPainter& painter, const PlotLine& line) const
{
    painter.setPen(pen(colours().secondary, LineWeight::fine, Qt::DashLine));
    painter.drawLine(pixel({}), pixel(line.foot));
    painter.setPen(pen(colours().secondary, LineWeight::second));
    const QPointF foot = pixel(line.foot), tip = pixel(line.arrowTo);
    painter.drawLine(foot, tip);
    const double direction = std::atan2(tip.y() - foot.y(), tip.x() - foot.x());
    for (double side : {-0.4, 0.4})
        painter.drawLine(tip,
                         tip - 2 * unit() *
                                   QPointF(std::cos(direction + side), std::sin(direction + side)));
    painter.setPen(pen(colours().route, LineWeight::subject));
    for (const std::vector<PlotPoint>& run : line.runs)
        painter.drawPolyline(polygon(run));
}

void SightPicture::paintDR(QPainter& painter) const
{
    painter.setPen(pen(colours().ink, LineWeight::subject));
    const QPointF middle = pixel({});
    const double arm = 2 * unit();
    painter.drawLine(middle - QPointF(arm, 0), middle + QPointF(arm, 0));
    painter.drawLine(middle - QPointF(0, arm), middle + QPointF(0, arm));
}

void SightPicture::paintFix(QPainter& painter, const PlotFix& fix, bool isWithout) const
{
    painter.setPen(
        pen(colours().tertiary, LineWeight::subject, isWithout ? Qt::DashLine : Qt::SolidLine));
    painter.drawPolygon(polygon(fix.ellipse));
    painter.setPen(pen(colours().marker, LineWeight::subject));
    const QPointF at = pixel(fix.at);
    const double arm = 1.3 * unit();
    if (isWithout)
        painter.drawRect(QRectF(at - QPointF(arm, arm), at + QPointF(arm, arm)));
    else
        painter.drawEllipse(at, 1.5 * unit(), 1.5 * unit());
}

} // namespace korvel
