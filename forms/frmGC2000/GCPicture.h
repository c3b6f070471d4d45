// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmGC2000/DrawWPs.h"
#include "shell/controls/PictureBox.h"
#include "shell/layout/FigureText.h"
#include "shell/program/Program.h"

namespace korvel
{

/// The chart of a great-circle route beside its rhumb line.
class GCPicture : public PictureBox
{
public:
    GCPicture();

    void setChart(GCChart chart);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void draw(QPainter& painter) override;
    void placeMargins() override;

private:
    void drawGrid(QPainter& painter) const;
    void drawLines(QPainter& painter) const;
    void drawPoints(QPainter& painter) const;
    /// Away from the route at the outside of its bend, where no line runs; length 1.
    QPointF outward(std::size_t waypoint) const;
    /// The room of a waypoint's number.
    /// @param wide half its width, pixels
    QRectF numberRoom(std::size_t waypoint, double wide) const;
    void drawNumbers(QPainter& painter) const;
    void drawEdges(QPainter& painter) const;
    void drawLegend(QPainter& painter) const;

    enum class Mark { Departure, Waypoint, Arrival };
    void drawMark(QPainter& painter, QPointF at, Mark mark) const;
    QRectF legendStrip() const;
    QPen pen(const QColor& colour, double width) const;
    QPen rhumbPen() const;
    QPointF pixel(const ChartPoint& point) const { return toPixel(point.longitude, point.lat); }

    GCChart m_chart;
    int m_legendLines = 1;
    mutable FigureText m_figures; ///< glyphs that it has drawn before
};

} // namespace korvel
