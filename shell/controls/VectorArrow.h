// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

namespace korvel
{

/// Draws a vector: a line in the look of a pen, and a filled head at its end.
/// @param headLength in pixels; a vector that is shorter is all head
void drawVector(QPainter& painter, QPointF tail, QPointF head, const QPen& look, double headLength);

} // namespace korvel
