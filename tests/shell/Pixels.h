// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRect>
#include <QWidget>

#include <map>

/// What tests see of the screen.
namespace korvel::testing
{

/// What stands on the screen of a widget: what changed, but did not ask to be painted anew, stands
/// there as it was. Of one that is not in sight as a whole, what it would paint.
QImage onScreen(QWidget& widget);

/// Relative luminance as WCAG 2 defines it.
double luminance(QRgb colour);

/// How often each colour stands in a part of a picture.
std::map<QRgb, int> coloursOf(const QImage& image, const QRect& part);

/// Whether a colour stands for another where thin lines are blended with the ground.
bool isLike(QRgb one, QRgb other);
/// How many pixels about a place have a colour on its ground, be it thinned by smoothing.
int strokesAbout(const QImage& image, QPointF place, int reach, const QColor& colour,
                 const QColor& ground);

/// @param strayLight that is added to both luminances; 0.05 by the definition
double contrast(QRgb one, QRgb other, double strayLight = 0.05);

/// How far the strongest pixels of a part of a picture stand off the colour that most of it has.
double strongestContrast(const QImage& image, const QRect& part, double strayLight = 0.05);

} // namespace korvel::testing
