// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace korvel
{

/// Asks the desktop for a dark frame around a window, or for its usual one again: under X11 by the
/// hints that the common window managers read, under Windows by the attributes of the window. Under
/// Wayland the toolkit draws the frames itself, in the colours of the program, or the desktop draws
/// them and takes no wishes. A desktop that does not know the wish goes on as before.
/// @param window has its window of the desktop already
void wishForFrame(const QWidget& window, bool dark);

} // namespace korvel
