// SPDX-License-Identifier: MIT
#include "app/shell/NightSheet.h"

#include "app/shell/ColourScheme.h"
#include "app/shell/night_tint.h"

#include <QApplication>
#include <QPainter>

namespace korvel
{

void NightSheet::draw(QPainter* painter)
{
    if (!isNight(QApplication::palette())) return drawSource(painter);
    QPoint offset;
    const QPixmap sheet = sourcePixmap(Qt::LogicalCoordinates, &offset, PadToEffectiveBoundingRect);
    painter->drawPixmap(offset, sheetAtNight(sheet, QApplication::palette()));
}

} // namespace korvel
