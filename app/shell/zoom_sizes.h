// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace korvel
{

/// Gives everything in a window that has a size or a gap of its own the size that goes with letters
/// of another size. Controls that ask for room by their content do so by themselves.
/// @param window is left as large as it is
/// @param ratio  of the letters' width to what it was before
void scaleSizes(QWidget& window, double ratio);

} // namespace korvel
