// SPDX-License-Identifier: MIT
#include "forms/frmWind/WindPictureBox.h"

#include "shell/controls/VectorArrow.h"
#include "shell/layout/Legend.h"
#include "shell/layout/LineWeight.h"
#include "shell/machine/AsQString.h"

#include <QLineF>

#include <cmath>

namespace korvel
{
WindPictureBox::WindPictureBox()
{
    setObjectName("picWind");
    setAccessibleName("Ship's heading, apparent and true wind; press and drag to set the apparent "
                      "wind");
    setCursor(Qt::CrossCursor);
    const QFontMetrics metrics = fontMetrics();
    const int legend =
        Legend::width(metrics, "Ship's heading Apparent wind True wind", 3, 0) + metrics.height();
    setMinimumSize(legend, legend);
    setWind({}, WindOrientation::HeadUp);
}

void WindPictureBox::setWind(const std::optional<WindFigures>& figures, WindOrientation orientation)
{
    m_figures = figures;
    m_orientation = orientation;
    m_picture = pictureOfWind(figures.value_or(WindFigures{}), orientation, m_heldRadius);
    setUserScale(m_picture.scale);
}

void WindPictureBox::holdScale(bool hold)
{
    m_heldRadius = hold ? m_picture.rings.back() : NavFunc113::Knots();
    if (!hold) setWind(m_figures, m_orientation);
}

void WindPictureBox::setPointerText(QPointF user, const QString& text)
{
    m_pointer = user;
    m_pointerText = text;
    update();
}

void WindPictureBox::placeMargins()
{
    // A knot is as long to the right as ahead: the plot is square, the legend stands above it.
    const int top = static_cast<int>(1.5 * lineHeight());
    const int wide = pictureSize().width(), high = pictureSize().height();
    const int side = std::min(wide, high - top);
    const int left = (wide - side) / 2;
    setPlotMargins({left, top, wide - side - left, high - top - side});
}

void WindPictureBox::draw(QPainter& painter)
{
    painter.fillRect(plotArea(), colours().paper);
    painter.save();
    painter.setClipRect(plotArea(), Qt::IntersectClip);
    PictureHyouji(painter);
    if (m_figures) VectrHyouji(painter);
    drawShip(painter);
    painter.restore();
    drawLegend(painter);
    if (!m_pointerText.isEmpty()) drawPointerText(painter);
}

QPen WindPictureBox::pen(const QColor& colour, double width, Qt::PenStyle style) const
{
    return {colour, LineWeight::inPixels(width, lineHeight()), style, Qt::FlatCap, Qt::RoundJoin};
}

QPen WindPictureBox::headingPen() const
{
    return pen(colours().ink, LineWeight::second);
}

QPen WindPictureBox::apparentPen() const
{
    QPen dashed = pen(colours().secondary, LineWeight::subject);
    dashed.setDashPattern({4, 2});
    return dashed;
}

QPen WindPictureBox::truePen() const
{
    return pen(colours().route, LineWeight::subject);
}

void WindPictureBox::PictureHyouji(QPainter& painter) const
{
    const QPointF centre = pixel({});
    const NavFunc113::Knots outermost = m_picture.rings.back();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen(colours().grid, LineWeight::fine));
    for (const NavFunc113::Knots ring : m_picture.rings) {
        const double radius = toPixel(ring.value(), 0).x() - centre.x();
        painter.drawEllipse(centre, radius, radius);
    }
    for (int bearing = 0; bearing < 360; bearing += 30) {
        const QLineF spoke =
            QLineF::fromPolar(toPixel(outermost.value(), 0).x() - centre.x(), bearing);
        painter.drawLine(centre + spoke.p2() * 0.25, centre + spoke.p2());
    }
    painter.setPen(colours().ink);
    for (const WindLabel& label : m_picture.compass) {
        // Just outside the outermost ring.
        const QPointF out = pixel(label.at) - centre;
        const QPointF at = centre + out * (1 + 0.7 * lineHeight() / std::hypot(out.x(), out.y()));
        m_figureText.draw(
            painter,
            {at.x() - 2 * lineHeight(), at.y() - lineHeight() / 2, 4 * lineHeight(), lineHeight()},
            Qt::AlignCenter, asQString(label.text));
    }
    for (const NavFunc113::Knots ring : m_picture.rings) {
        // Between two spokes, so that no line runs through the figure.
        const QPointF at = pixel({ring.value() * std::sqrt(0.5), ring.value() * std::sqrt(0.5)});
        const QString text = QString::number(ring.value()) + (ring == outermost ? " kn" : "");
        const double wide = QFontMetricsF(letters()).horizontalAdvance(text);
        const QRectF room(at.x() - wide / 2 - 1, at.y() - lineHeight() / 2, wide + 2, lineHeight());
        painter.fillRect(room, colours().paper);
        m_figureText.draw(painter, room, Qt::AlignCenter, text);
    }
}

void WindPictureBox::drawArrow(QPainter& painter, QPointF tail, QPointF head,
                               const QPen& look) const
{
    drawVector(painter, tail, head, look, 0.9 * lineHeight());
}

void WindPictureBox::VectrHyouji(QPainter& painter) const
{
    const QPointF centre = pixel({});
    // The apparent wind is the true wind and the ship's own motion added.
    painter.setPen(pen(colours().marker, LineWeight::fine, Qt::DotLine));
    painter.drawLine(pixel(m_picture.trueWind), pixel(m_picture.apparentWind));
    painter.drawLine(pixel(m_picture.heading), pixel(m_picture.apparentWind));
    // The heading points where the ship goes, the winds blow from their end to the ship.
    drawArrow(painter, centre, pixel(m_picture.heading), headingPen());
    // They stop at the hull, so that their heads do not lie upon each other.
    const auto blow = [&](const WindVector& wind, const QPen& look) {
        const QLineF line(pixel(wind), centre);
        const double share =
            line.length() > 2.5 * lineHeight() ? 1 - 1.1 * lineHeight() / line.length() : 1;
        drawArrow(painter, line.p1(), line.pointAt(share), look);
    };
    blow(m_picture.apparentWind, apparentPen());
    blow(m_picture.trueWind, truePen());
}

void WindPictureBox::drawShip(QPainter& painter) const
{
    const bool turned = m_orientation == WindOrientation::NorthUp && m_figures;
    painter.save();
    painter.translate(pixel({}));
    painter.rotate(turned ? m_figures->course.value() : 0);
    painter.scale(lineHeight(), lineHeight());
    painter.setPen(QPen(colours().ink, LineWeight::fine * 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(QPolygonF{{0, -0.9}, {0.3, -0.35}, {0.3, 0.8}, {-0.3, 0.8}, {-0.3, -0.35}});
    painter.restore();
}

void WindPictureBox::drawLegend(QPainter& painter) const
{
    Legend legend(painter, m_figureText, {lineHeight() / 2, 0.75 * lineHeight()},
                  colours().palette.color(QPalette::WindowText));
    legend.line(headingPen(), "Ship's heading");
    legend.line(apparentPen(), "Apparent wind");
    legend.line(truePen(), "True wind");
}

void WindPictureBox::drawPointerText(QPainter& painter) const
{
    const QSizeF text = QFontMetricsF(painter.font()).size(Qt::TextSingleLine, m_pointerText);
    QRectF room(toPixel(m_pointer.x(), m_pointer.y()) + QPointF(lineHeight(), -1.5 * lineHeight()),
                text + QSizeF(lineHeight(), 0.2 * lineHeight()));
    // Beside the pointer, and never outside the picture.
    room.moveLeft(std::clamp(room.left(), 0.0, std::max(0.0, width() - room.width())));
    room.moveTop(std::clamp(room.top(), 0.0, std::max(0.0, height() - room.height())));
    painter.setPen(pen(colours().ink, LineWeight::fine));
    painter.setBrush(colours().paper);
    painter.drawRect(room);
    painter.drawText(room, Qt::AlignCenter, m_pointerText);
}

} // namespace korvel
