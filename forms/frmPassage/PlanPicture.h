// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanChart.h"
#include "shell/controls/ChartBox.h"

namespace korvel
{

/// The chart of a plan, the row in hand marked.
class PlanPicture : public ChartBox
{
    Q_OBJECT

public:
    PlanPicture();

    /// @param row in hand
    void setChart(PlanChart chart, std::size_t row);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// A waypoint was pressed.
    void rowChosen(std::size_t row);

protected:
    void zoomBy(double factor, QPointF around) override;
    void moveBy(QPointF by) override;
    void showHome() override { lookAtAll(); }
    bool takesHold(QPointF user) override;
    void resizeEvent(QResizeEvent* event) override;
    void draw(QPainter& painter) override;
    void placeMargins() override;

private:
    void look(const ChartView& view);
    void lookAtAll();
    UserScale scaleOf(const ChartView& view) const;

    void drawGraticule(QPainter& painter) const;
    void drawLegs(QPainter& painter) const;
    void drawMarks(QPainter& painter) const;
    void drawNumbers(QPainter& painter) const;
    void drawScaleBar(QPainter& painter) const;
    QPen pen(const QColor& colour, double width) const;
    QPointF pixel(const ChartSpot& spot) const { return toPixel(spot.x, spot.y); }
    double aspect() const;
    PlanChart m_chart;
    std::size_t m_row{};
    ChartView m_view;
    bool m_showsAll = true; ///< the officer has not looked elsewhere
};

} // namespace korvel
