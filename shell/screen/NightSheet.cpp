// SPDX-License-Identifier: MIT
#include "shell/screen/NightSheet.h"

#include "shell/screen/ColourScheme.h"
#include "shell/screen/NightTint.h"

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
