// SPDX-License-Identifier: MIT
#include "shell/screen/WindowPlaces.h"

#include "shell/screen/Screen.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWidget>

#include <chrono>
#include <utility>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;

// A desktop puts its frame around a window some time after it is shown.
constexpr auto settlingTime = 400ms;

/// What a window manager puts around a window. It is known of a window that is shown, and the same
/// for all; nothing is guessed before, for a guess would move a window at every start.
QMargins frameOf(const QWidget& window)
{
    const auto known = [](const QWidget& each) {
        const QRect inside = each.geometry();
        const QRect frame = each.frameGeometry();
        const QMargins margins(inside.left() - frame.left(), inside.top() - frame.top(),
                               frame.right() - inside.right(), frame.bottom() - inside.bottom());
        return margins.right() < 0 ? QMargins() : margins; // the toolkit's sign for "unknown"
    };
    if (!known(window).isNull()) return known(window);
    for (const QWidget* each : QApplication::topLevelWidgets())
        if (each->isVisible() && !known(*each).isNull()) return known(*each);
    return {};
}

QRect screenAt(const QRect& place)
{
    const QScreen* screen = QApplication::screenAt(place.center());
    if (!screen) screen = QApplication::screenAt(place.topLeft());
    return (screen ? screen : QApplication::primaryScreen())->availableGeometry();
}

/// @param place the window without its frame: where the frame comes to lie is up to the window
/// manager, and not the same before and after a window is shown
void putAt(QWidget& window, const QRect& place, bool resizes)
{
    const QRect room = screenAt(place).marginsRemoved(frameOf(window));
    const QSize size = resizes ? place.size().boundedTo(room.size()) : place.size();
    const QPoint corner(
        std::max(room.left(), std::min(place.left(), room.right() + 1 - size.width())),
        std::max(room.top(), std::min(place.top(), room.bottom() + 1 - size.height())));
    window.setGeometry({corner, size});
}

bool isOffScreen(const QWidget& window)
{
    return !screenAt(window.geometry()).contains(window.frameGeometry());
}

} // namespace

void keepPlace(Screen& screen, const QWidget& window, bool open)
{
    // Without its frame: what is set before a window is shown is taken so by every desktop.
    const bool enlarged = window.isMaximized() || window.isFullScreen();
    const QRect place = enlarged ? window.normalGeometry() : window.geometry();
    screen.keepPlace(window.objectName(), {place.x(), place.y(), place.width(), place.height(),
                                           screen.choices().zoom, open});
}

PlaceWatch::PlaceWatch(Screen& screen, QWidget& window)
    : QObject(&window), m_screen(screen), m_window(window), m_zoom(screen.choices().zoom)
{
    m_settled.setSingleShot(true);
    m_settled.setInterval(settlingTime);
    connect(&m_settled, &QTimer::timeout, this, &PlaceWatch::settled);
    connect(&screen, &Screen::aboutToZoom, this, &PlaceWatch::keepBeforeZoom);
    window.installEventFilter(this);
}

void PlaceWatch::settled()
{
    if (!m_window.isVisible()) return;
    // Until now its frame was not known, and the title bar may lie above the screen.
    if (std::exchange(m_isNew, false) && !isEnlarged() && isOffScreen(m_window))
        bringOntoScreen(m_window);
    keepPlace(m_screen, m_window, true);
}

bool PlaceWatch::isEnlarged() const
{
    return m_window.isMaximized() || m_window.isFullScreen();
}

void PlaceWatch::keepBeforeZoom()
{
    const int before = std::exchange(m_zoom, m_screen.choices().zoom);
    if (!m_window.isVisible() || isEnlarged()) {
        m_places.clear();
        return;
    }
    // Several steps at once: it stands as it did before the first.
    if (!std::exchange(m_isPlaced, false)) return;
    const QRect place = m_window.geometry();
    if (place != m_given) m_places.clear();
    m_places[before] = place;
}

void PlaceWatch::placeAfterZoom(bool resizes)
{
    const auto known = m_places.find(m_zoom);
    if (known != m_places.end())
        m_window.setGeometry(
            {known->second.topLeft(), resizes ? known->second.size() : m_window.size()});
    else
        bringOntoScreen(m_window);
    m_isPlaced = true;
    m_given = m_window.geometry();
    m_sinceZoom.start();
}

void placeAfterZoom(QWidget& window, bool resizes)
{
    if (auto* watch = window.findChild<PlaceWatch*>({}, Qt::FindDirectChildrenOnly))
        watch->placeAfterZoom(resizes);
    else
        bringOntoScreen(window);
}

bool PlaceWatch::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        if (m_sinceZoom.isValid() && !m_sinceZoom.hasExpired(settlingTime / 1ms))
            m_given = m_window.geometry(); // the desktop's answer, nobody's hand is as fast
        m_settled.start();
        break;
    case QEvent::Show:
    case QEvent::WindowStateChange:
        m_settled.start();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool putInPlace(const Screen& screen, QWidget& window, bool resizes)
{
    const auto place = screen.placeOf(window.objectName());
    if (!place) {
#ifdef Q_OS_WIN
        // That system gives a window a corner without a look at its size; a window manager finds
        // room for all of it.
        bringOntoScreen(window);
#endif
        return false;
    }
    const bool sameZoom = place->zoom == screen.choices().zoom;
    const QSize size = sameZoom && resizes ? QSize(place->width, place->height) : window.size();
    putAt(window, QRect(QPoint(place->x, place->y), size), resizes);
    return true;
}

void holdInPlace(Screen& screen, QWidget& window)
{
    putInPlace(screen, window);
    new PlaceWatch(screen, window);
}

QSize roomOnScreen(const QWidget& window)
{
    return window.screen()->availableGeometry().marginsRemoved(frameOf(window)).size();
}

void resizeForText(QWidget& window, int letters, int lines)
{
    const QFontMetrics metrics = window.fontMetrics();
    const QSize wanted(letters * metrics.averageCharWidth(), lines * metrics.lineSpacing());
    window.resize(wanted.boundedTo(roomOnScreen(window)));
}

void bringOntoScreen(QWidget& window)
{
    putAt(window, window.geometry(), true);
}

} // namespace korvel
