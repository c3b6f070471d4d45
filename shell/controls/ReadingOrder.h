// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace korvel
{

/// Lets Tab go through a window as one reads it: down each group of controls and from group to
/// group, left to right, as its layouts place them.
void setTabOrderByReading(QWidget& window);

} // namespace korvel
