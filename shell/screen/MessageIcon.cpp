// SPDX-License-Identifier: MIT
#include "shell/screen/MessageIcon.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace korvel
{

const char* messageSign(QStyle::StandardPixmap which)
{
    return which == QStyle::SP_MessageBoxQuestion      ? "?"
           : which == QStyle::SP_MessageBoxInformation ? "i"
                                                       : "!";
}

QPixmap drawnMessageIcon(QStyle::StandardPixmap which, const QPalette& palette, int side)
{
    const double ratio = qApp->devicePixelRatio();
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette.color(QPalette::WindowText);
    const double pen = side / 16.0;
    painter.setPen(QPen(ink, pen));
    painter.drawEllipse(QRectF(0, 0, side, side).adjusted(pen, pen, -pen, -pen));
    QFont letters = QApplication::font();
    letters.setPixelSize(side * 5 / 8);
    letters.setBold(true);
    painter.setFont(letters);
    painter.drawText(QRect(0, 0, side, side), Qt::AlignCenter, messageSign(which));
    return picture;
}

} // namespace korvel
