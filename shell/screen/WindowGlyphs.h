// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace korvel
{

/// The picture of a window's kind, for its title bar and the list of windows: one glyph for
/// sailing, the sky, sights, time, wind, weather, tide, records, cargo and units. Drawn for each
/// size, so that it can be told from the others at 16 pixels.
/// @param window class name, "frmWind"; a null icon for a window that has no kind of its own
QIcon windowGlyph(const QString& window);

} // namespace korvel
