// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCompass/DeviationCurve.h"
#include "shell/controls/PictureBox.h"
#include "shell/layout/FigureText.h"

namespace korvel
{

/// The deviation of a compass over its head: north at the top and at the foot, west to the left.
/// The curve of the book, its lines as points, those left out as crosses, and the one in hand.
class DeviationPicture : public PictureBox
{
public:
    explicit DeviationPicture(QWidget* parent);

    void showCurve(const DeviationCurve& curve);
    /// The line in hand as a ring; nothing takes it away.
    void showInHand(const std::optional<NavFunc113::DeviationPoint>& point);

    QSize sizeHint() const override;

protected:
    void draw(QPainter& painter) override;
    void placeMargins() override;

private:
    void scale();
    void drawGrid(QPainter& painter) const;
    void drawLine(QPainter& painter) const;
    void drawPoints(QPainter& painter) const;
    void drawLegend(QPainter& painter) const;
    QPointF pixel(const NavFunc113::DeviationPoint& point) const;
    QPen pen(const QColor& colour, double width) const;

    DeviationCurve m_curve;
    std::optional<NavFunc113::DeviationPoint> m_inHand;
    double m_edge = 2; ///< degrees of deviation each way
    double m_step = 1; ///< between two lines of the grid
    mutable FigureText m_figures;
};

} // namespace korvel
