// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace korvel
{

/// Gives the text of a label a colour of its own. Asking for the colour that it has costs nothing:
/// labels of a table are tinted again with every key.
void setTextColour(QWidget* widget, const QColor& colour);

/// Gives the text the colour of its role again.
void resetTextColour(QWidget* widget);

} // namespace korvel
