// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace korvel
{

/// Goes to a box of a window of which only the beginning was read, the one with the focus before
/// others, and writes what was meant into it. Where that may be one of several figures it asks
/// which, and where it cannot be told it only goes there. Does nothing when all is read whole.
void writeMeantFigure(const QWidget& window);

} // namespace korvel
