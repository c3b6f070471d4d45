// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanChart.h"
#include "shell/controls/PictureBox.h"

#include <optional>

namespace korvel
{

/// The chart of a plan, the row in hand marked: wheel, keys and drag zoom and move it.
class PlanPicture : public PictureBox
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
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void draw(QPainter& painter) override;
    void placeMargins() override;

private:
    void look(const ChartView& view);
    void lookAtAll();
    UserScale scaleOf(const ChartView& view) const;
    void press(QPointF user, Qt::MouseButtons buttons);
    void drag(QPointF user, Qt::MouseButtons buttons);

    void drawGraticule(QPainter& painter) const;
    void drawLegs(QPainter& painter) const;
    void drawMarks(QPainter& painter) const;
    void drawNumbers(QPainter& painter) const;
    void drawScaleBar(QPainter& painter) const;
    QPen pen(const QColor& colour, double width) const;
    QPointF pixel(const ChartSpot& spot) const { return toPixel(spot.x, spot.y); }
    double aspect() const;
    PlanChart m_chart;
    std::size_t m_row = 0;
    ChartView m_view;
    bool m_showsAll = true;        ///< the officer has not looked elsewhere
    std::optional<QPointF> m_held; ///< what the pointer drags, in units of the chart
};

} // namespace korvel
