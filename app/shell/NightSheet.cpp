// SPDX-License-Identifier: MIT
#include "app/shell/NightSheet.h"

#include "app/shell/ColourScheme.h"
#include "app/shell/ScreenStyle.h"

#include <QApplication>
#include <QPainter>

namespace korvel
{

void NightSheet::draw(QPainter* painter)
{
    if (!isNight(QApplication::palette())) return drawSource(painter);
    QPoint offset;
    const QPixmap sheet = sourcePixmap(Qt::LogicalCoordinates, &offset, PadToEffectiveBoundingRect);
    QImage inverse = sheet.toImage();
    inverse.invertPixels();
    painter->drawPixmap(offset, tinted(QPixmap::fromImage(inverse),
                                       QApplication::palette().color(QPalette::WindowText)));
}

} // namespace korvel
