// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCompass/CalculateCourses.h"
#include "shell/controls/PictureBox.h"
#include "shell/layout/FigureText.h"

namespace korvel
{

/// The triangle of speed through the water, current and speed made good, north up, the ship in the
/// middle.
class CoursesPicture : public PictureBox
{
public:
    explicit CoursesPicture(QWidget* parent);

    /// @param triangle nothing: rings only
    /// @param head     true, of the ship that is drawn
    void showTriangle(const std::optional<CourseTriangle>& triangle,
                      const std::optional<NavFunc113::Degrees>& head);

    QSize sizeHint() const override;

protected:
    void draw(QPainter& painter) override;
    void placeMargins() override;

private:
    void drawRings(QPainter& painter) const;
    void drawVectors(QPainter& painter) const;
    void drawShip(QPainter& painter) const;
    void drawLegend(QPainter& painter) const;
    QPen pen(const QColor& colour, double width, Qt::PenStyle style = Qt::SolidLine) const;
    QPen waterPen() const;
    QPen currentPen() const;
    QPen groundPen() const;

    std::optional<CourseTriangle> m_triangle;
    std::optional<NavFunc113::Degrees> m_head;
    double m_step{}; ///< knots between two rings
    mutable FigureText m_figures;
};

} // namespace korvel
