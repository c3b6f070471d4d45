// SPDX-License-Identifier: MIT
#include "shell/screen/WidgetColours.h"

#include <QPalette>

namespace korvel
{

void setTextColour(QWidget* widget, const QColor& colour)
{
    QPalette palette = widget->palette();
    if (palette.isBrushSet(QPalette::Active, QPalette::WindowText) &&
        palette.color(QPalette::WindowText) == colour)
        return;
    palette.setColor(QPalette::WindowText, colour);
    widget->setPalette(palette);
}

void resetTextColour(QWidget* widget)
{
    if (widget->testAttribute(Qt::WA_SetPalette)) widget->setPalette(QPalette());
}

} // namespace korvel
