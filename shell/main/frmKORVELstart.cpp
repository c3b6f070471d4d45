// SPDX-License-Identifier: MIT
#include "shell/main/frmKORVELstart.h"

#include "app/machine/Questions.h"
#include "shell/main/StartPicture.h"
#include "shell/screen/ColourScheme.h"
#include "shell/screen/NightTint.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QScreen>

namespace korvel
{

frmKORVELstart::frmKORVELstart() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName("frmKORVELstart");
    setWindowTitle(programTitle);
    resize(startPictureSize(fontMetrics().height() / 16.0));
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    move(screen.center() - rect().center());
}

void frmKORVELstart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (!isNight(palette())) return drawStartPicture(painter, size());
    QPixmap picture(size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    QPainter inside(&picture);
    drawStartPicture(inside, size());
    inside.end();
    painter.drawPixmap(0, 0, tinted(picture, palette().color(QPalette::WindowText)));
}

} // namespace korvel
