// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmWind/WindPicture.h"
#include "shell/controls/PictureBox.h"
#include "shell/layout/FigureText.h"
#include "shell/program/Program.h"

#include <optional>

namespace korvel
{

/// Ship's heading, apparent and true wind as vectors around the ship.
class WindPictureBox : public PictureBox
{
public:
    WindPictureBox();

    /// @param figures nothing: rings only
    void setWind(const std::optional<WindFigures>& figures, WindOrientation orientation);

    /// Keeps the scale while the pointer drags.
    void holdScale(bool hold);

    /// Text beside the pointer; an empty one takes it away.
    void setPointerText(QPointF user, const QString& text);

protected:
    void draw(QPainter& painter) override;
    void placeMargins() override;

private:
    void PictureHyouji(QPainter& painter) const;
    void VectrHyouji(QPainter& painter) const;
    void drawShip(QPainter& painter) const;
    void drawLegend(QPainter& painter) const;
    void drawPointerText(QPainter& painter) const;
    void drawArrow(QPainter& painter, QPointF tail, QPointF head, const QPen& look) const;

    QPointF pixel(const WindVector& place) const { return toPixel(place.x, place.y); }
    QPen pen(const QColor& colour, double width, Qt::PenStyle style = Qt::SolidLine) const;
    QPen headingPen() const;
    QPen apparentPen() const;
    QPen truePen() const;

    WindPicture m_picture;
    mutable FigureText m_figureText; ///< glyphs that it has drawn before
    std::optional<WindFigures> m_figures;
    WindOrientation m_orientation = WindOrientation::HeadUp;
    NavFunc113::Knots m_heldRadius;
    QPointF m_pointer;
    QString m_pointerText;
};

} // namespace korvel
