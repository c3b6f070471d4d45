// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QPainter;

namespace korvel
{

/// @param unit pixels for one of the picture's own
QSize startPictureSize(double unit);

/// The title picture: a compass card over the sea before dawn, the program's name and what it is.
void drawStartPicture(QPainter& painter, const QSize& size);

} // namespace korvel
