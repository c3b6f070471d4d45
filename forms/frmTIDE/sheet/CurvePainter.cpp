// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/CurvePainter.h"

#include "shell/layout/LineWeight.h"
#include "shell/machine/AsQString.h"

#include <algorithm>
#include <cmath>

namespace korvel
{

bool isLevelLabelled(double level, const CurvePicture& picture, const CurvePlace& place)
{
    if (level > picture.scale.top) return false;
    const double unit = place.toPixel(0, 0).y() - place.toPixel(0, 1).y();
    for (const int every : {1, 2, 5, 10})
        if (every * unit >= place.letters.height()) return std::fmod(level, every) == 0;
    return level == 0;
}

CurvePainter::CurvePainter(QPainter& painter, const CurvePicture& picture,
                           const ColourScheme& colours, const CurvePlace& place)
    : m_painter(painter), m_picture(picture), m_colours(colours), m_place(place)
{
}

double CurvePainter::width(double weight) const
{
    return LineWeight::inPixels(weight, m_place.letters.height());
}

void CurvePainter::drawGrid() const
{
    // Level and upright lines are crisper without smoothing, and much quicker.
    m_painter.setRenderHint(QPainter::Antialiasing, false);
    const auto dotted = [this](const std::vector<CurveLine>& lines, const QColor& colour) {
        m_painter.setPen(QPen(colour, width(LineWeight::fine), Qt::DotLine));
        for (const CurveLine& line : lines)
            m_painter.drawLine(pixels(line));
    };
    QColor fine = m_colours.grid;
    fine.setAlphaF(0.4f);
    dotted(m_picture.fineLevelLines, fine);
    dotted(m_picture.levelLines, m_colours.grid);
    dotted(m_picture.hourLines, m_colours.grid);
    m_painter.setPen(QPen(m_colours.grid, width(LineWeight::fine)));
    m_painter.drawLine(m_place.plot.topLeft(), m_place.plot.bottomLeft());
    m_painter.setPen(QPen(m_colours.datum, width(LineWeight::fine)));
    m_painter.drawLine(pixels(m_picture.zeroLine));
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void CurvePainter::drawLevelText(const HeightLabel& label) const
{
    if (!isLevelLabelled(label.top, m_picture, m_place)) return;
    const QPointF at = m_place.toPixel(0, label.top);
    const double gap = m_place.letters.horizontalAdvance(' ');
    m_painter.drawText(QRectF(0, at.y(), at.x() - gap, m_place.letters.height()),
                       Qt::AlignRight | Qt::AlignTop, asQString(label.caption));
}

void CurvePainter::drawFurtherLevels() const
{
    m_painter.setPen(m_colours.ink);
    for (const HeightLabel& level : m_picture.furtherLevels)
        drawLevelText(level);
}

void CurvePainter::drawAxisTexts() const
{
    m_painter.setPen(m_colours.ink);
    for (const HeightLabel& label : m_picture.lblHeight)
        drawLevelText(label);
    const double line = m_place.letters.height();
    for (const HourLabel& label : m_picture.lblTime)
        m_painter.drawText(QRectF(m_place.toPixel(label.left, label.top), QSizeF(4 * line, line)),
                           Qt::AlignLeft | Qt::AlignTop, asQString(label.caption));
}

void CurvePainter::drawCurve() const
{
    m_painter.save();
    m_painter.setClipRect(m_place.plot, Qt::IntersectClip);
    m_painter.setPen(QPen(m_colours.curve, width(LineWeight::fine)));
    for (const CurveLine& tick : m_picture.ticks)
        m_painter.drawLine(pixels(tick));
    QPolygonF curve;
    for (const CurvePoint& point : m_picture.curve)
        curve << pixel(point);
    m_painter.setPen(QPen(m_colours.curve, width(LineWeight::subject), Qt::SolidLine, Qt::RoundCap,
                          Qt::RoundJoin));
    m_painter.drawPolyline(curve);
    m_painter.restore();
}

void CurvePainter::drawAllConstituents(const NavFunc113::TideValues& values) const
{
    m_painter.save();
    m_painter.setClipRect(m_place.plot, Qt::IntersectClip);
    QPolygonF curve;
    for (std::size_t i = 0; i < values.size(); ++i)
        curve << m_place.toPixel(static_cast<double>(i) / 2, values[i]);
    m_painter.setPen(QPen(m_colours.marker, width(LineWeight::fine)));
    m_painter.drawPolyline(curve);
    const QRectF corner = m_place.plot.adjusted(0, 0, -m_painter.fontMetrics().height() / 2.0, 0);
    const QString legend = "thin: all constituents";
    const int place = Qt::AlignRight | Qt::AlignTop;
    // No line of the grid goes through it.
    m_painter.fillRect(m_painter.boundingRect(corner, place, legend), m_colours.paper);
    m_painter.drawText(corner, place, legend);
    m_painter.restore();
}

void CurvePainter::drawMarks(const std::vector<CurvePoint>& marks,
                             std::optional<double> level) const
{
    m_painter.setPen(QPen(m_colours.marker, width(LineWeight::fine), Qt::DashLine));
    if (level && *level<m_picture.scale.top&& * level> m_picture.scale.bottom)
        m_painter.drawLine(pixels({{0, *level}, {24, *level}}));
    m_painter.setPen(QPen(m_colours.marker, width(LineWeight::second)));
    m_painter.setBrush(Qt::NoBrush);
    const double radius = m_place.letters.height() / 4.0;
    for (const CurvePoint& mark : marks)
        m_painter.drawEllipse(pixel(mark), radius, radius);
}

} // namespace korvel
