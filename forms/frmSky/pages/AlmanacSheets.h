// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/daily_page.h"

#include <QRect>

class QPainter;

namespace korvel
{

/// The sheets of three days: Aries, planets and stars; Sun, Moon and the times by latitude.
inline constexpr int almanacSheets = 2;

/// Draws a sheet as printed almanacs have it. Each says that it is no official one.
/// @param room of the sheet, in pixels of the device
/// @param sheet 0 or 1
void drawAlmanacSheet(QPainter& painter, const QRect& room, const almanac::DailyPage& page,
                      int sheet);

} // namespace korvel
