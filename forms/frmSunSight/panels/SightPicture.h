// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/fix/DrawLOP.h"
#include "shell/controls/ChartBox.h"
#include "shell/layout/PlotLettering.h"
#include "shell/screen/ColourScheme.h"

namespace korvel
{

/// picSunSight: the lines of position around the DR position. The plot is kept square, so that
/// angles are true.
class SightPicture : public ChartBox
{
    Q_OBJECT

public:
    explicit SightPicture(QWidget* parent = nullptr);

    void showPlot(const SightPlot& plot);
    const SightPlot& plot() const { return m_plot; }
    QSize sizeHint() const override;

    /// Words of the plot and where they stand, in pixels.
    struct Lettering {
        QString words;
        QRectF room;
    };
    std::vector<Lettering> lettering() const;

signals:
    /// The officer wants another part of the chart: by wheel, drag or key.
    void viewWanted(const PlotView& view);
    /// The scale that shows all lines is wanted.
    void allWanted();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void zoomBy(double factor, QPointF around) override;
    void moveBy(QPointF by) override;
    void showHome() override { emit viewWanted({}); }
    void draw(QPainter& painter) override;
    void placeMargins() override;

private:
    void paintGrid(QPainter& painter) const;
    void paintScale(QPainter& painter) const;
    void paintLine(QPainter& painter, const PlotLine& line) const;
    void paintDR(QPainter& painter) const;
    void paintFix(QPainter& painter, const PlotFix& fix, bool isWithout) const;
    void paintText(QPainter& painter, const Lettering& letters) const;
    void keepOffMarks(PlotLettering& places) const;
    std::vector<QPointF> pointsFor(const PlotLine& line) const;
    QLineF scaleBar() const;
    int scaleMiles() const;
    QPen pen(const QColor& colour, double weight, Qt::PenStyle style = Qt::SolidLine) const;
    QPointF pixel(const PlotPoint& point) const { return toPixel(point.x, point.y); }
    QMargins marginsFor(const QSize& size) const;
    QPolygonF polygon(const std::vector<PlotPoint>& points) const;
    double unit() const; ///< a length of the picture's font, for marks and pens

    SightPlot m_plot;
};

} // namespace korvel
