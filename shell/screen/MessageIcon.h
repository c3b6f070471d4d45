// SPDX-License-Identifier: MIT
#pragma once

#include <QStyle>

namespace korvel
{

/// What stands in the icon of a message box: "?" of a question, "i" of a word, "!" of a warning.
const char* messageSign(QStyle::StandardPixmap which);

/// What a message box is about, in the colours of the palette.
/// @param side pixels of the screen's own scale
QPixmap drawnMessageIcon(QStyle::StandardPixmap which, const QPalette& palette, int side);

} // namespace korvel
