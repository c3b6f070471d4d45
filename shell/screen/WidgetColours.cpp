// SPDX-License-Identifier: MIT
#include "shell/screen/WidgetColours.h"

#include <QLineEdit>

#include <QPalette>

namespace korvel
{

void setTextColour(QWidget* widget, const QColor& colour)
{
    QPalette palette = widget->palette();
    const bool isBox = qobject_cast<QLineEdit*>(widget); // its role is that of its frame
    const QPalette::ColorRole role = isBox ? QPalette::Text : widget->foregroundRole();
    if (palette.isBrushSet(QPalette::Active, role) && palette.color(role) == colour) return;
    palette.setColor(role, colour);
    widget->setPalette(palette);
}

void resetTextColour(QWidget* widget)
{
    if (widget->testAttribute(Qt::WA_SetPalette)) widget->setPalette(QPalette());
}

} // namespace korvel
