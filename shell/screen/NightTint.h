// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

class QPalette;

namespace korvel
{

/// The same picture in the shades of one colour, its brightest part as bright as that.
QPixmap tinted(const QPixmap& picture, const QColor& brightest);

/// An icon whose pictures are tinted when they are drawn; dark ones are turned round first.
QIcon tinted(const QIcon& icon, const QColor& brightest);

/// A sheet that is dark on white as light on dark in the colours of a palette of the night. What
/// stands off the white stands off the dark as much, as far as the brightest text allows.
QPixmap sheetAtNight(const QPixmap& sheet, const QPalette& night);

} // namespace korvel
