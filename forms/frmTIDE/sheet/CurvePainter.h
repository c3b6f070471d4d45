// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/day/DrawCurve.h"
#include "shell/screen/ColourScheme.h"

#include <QFontMetrics>
#include <QPainter>

#include <functional>
#include <optional>
#include <vector>

namespace korvel
{

/// Where the figures of a picture come to lie: on the screen or on paper.
struct CurvePlace {
    std::function<QPointF(double hour, double value)> toPixel;
    QRectF plot;          ///< what the user scale covers
    QFontMetrics letters; ///< of the picture's labels
};

/// Whether a whole level is labelled. Levels above the scale lie outside the picture; where great
/// tides meet a small window only every second, fifth or tenth one is written.
bool isLevelLabelled(double level, const CurvePicture& picture, const CurvePlace& place);

/// Turns the figures of a day's curve into strokes.
class CurvePainter
{
public:
    /// All of them must outlive it.
    CurvePainter(QPainter& painter, const CurvePicture& picture, const ColourScheme& colours,
                 const CurvePlace& place);

    void drawGrid() const;
    /// Whole levels that no label stands for.
    void drawFurtherLevels() const;
    /// The texts of the labels, for paper.
    void drawAxisTexts() const;
    void drawCurve() const;
    /// Thin and with its name, so that nobody takes it for the curve of the labels.
    void drawAllConstituents(const NavFunc113::TideValues& values) const;
    /// Rings on the curve and a line across it.
    void drawMarks(const std::vector<CurvePoint>& marks, std::optional<double> level) const;

private:
    QPointF pixel(const CurvePoint& point) const { return m_place.toPixel(point.x, point.y); }
    QLineF pixels(const CurveLine& line) const { return {pixel(line.from), pixel(line.to)}; }
    double width(double weight) const;
    void drawLevelText(const HeightLabel& label) const;

    QPainter& m_painter;
    const CurvePicture& m_picture;
    const ColourScheme& m_colours;
    const CurvePlace& m_place;
};

} // namespace korvel
