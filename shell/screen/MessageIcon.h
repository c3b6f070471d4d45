// SPDX-License-Identifier: MIT
#pragma once

#include <QStyle>

namespace korvel
{

/// What a message box is about, in the colours of the palette.
/// @param side pixels of the screen's own scale
QPixmap drawnMessageIcon(QStyle::StandardPixmap which, const QPalette& palette, int side);

} // namespace korvel
