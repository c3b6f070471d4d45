// SPDX-License-Identifier: MIT
#include "app/shell/window_places.h"

#include "app/shell/Screen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace korvel
{
namespace
{

/// What a window manager puts around a window; known for sure only when it is shown.
QSize frameOf(const QWidget& window)
{
    const QSize known = window.frameSize() - window.size();
    if (!known.isEmpty()) return known;
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return {title / 2, title * 3 / 2};
}

QRect screenAt(const QRect& place)
{
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    if (!screen) screen = QGuiApplication::screenAt(place.topLeft());
    return (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

/// @param place the upper left corner of the frame, and the size inside it
void putAt(QWidget& window, const QRect& place, bool resizes)
{
    const QRect room = screenAt(place);
    const QSize frame = frameOf(window);
    const QSize size = place.size().boundedTo(room.size() - frame);
    if (resizes && window.size() != size) window.resize(size);
    const QSize outside = size + frame;
    const QPoint corner(
        std::max(room.left(), std::min(place.left(), room.right() + 1 - outside.width())),
        std::max(room.top(), std::min(place.top(), room.bottom() + 1 - outside.height())));
    if (window.pos() != corner) window.move(corner);
}

} // namespace

void keepPlace(Screen& screen, const QWidget& window, bool open)
{
    const bool enlarged = window.isMaximized() || window.isFullScreen();
    const QSize size = enlarged ? window.normalGeometry().size() : window.size();
    const QPoint corner = enlarged ? window.normalGeometry().topLeft() : window.pos();
    screen.keepPlace(window.objectName(), {corner.x(), corner.y(), size.width(), size.height(),
                                           screen.choices().zoom, open});
}

bool putInPlace(const Screen& screen, QWidget& window, bool resizes)
{
    const auto place = screen.placeOf(window.objectName());
    if (!place) return false;
    const bool sameZoom = place->zoom == screen.choices().zoom;
    const QSize size = sameZoom && resizes ? QSize(place->width, place->height) : window.size();
    putAt(window, QRect(QPoint(place->x, place->y), size), resizes);
    return true;
}

void bringOntoScreen(QWidget& window)
{
    putAt(window, QRect(window.pos(), window.size()), true);
}

} // namespace korvel
