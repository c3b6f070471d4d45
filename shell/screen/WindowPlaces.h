// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QRect>
#include <QTimer>

#include <map>

class QSize;
class QWidget;

namespace korvel
{

class Screen;

/// Remembers where a window stands and how large it is.
/// @param open whether it is to come back at the next start, if the officer wants that at all
void keepPlace(Screen& screen, const QWidget& window, bool open);

/// Remembers the place of a window shortly after it was moved, made larger or smaller, so that a
/// program that is ended by force has it too. Once, when the desktop has put its frame around the
/// window, it also sees to it that all of it lies on the screen. Belongs to the window.
class PlaceWatch : public QObject
{
    Q_OBJECT

public:
    /// @param screen outlives the window
    PlaceWatch(Screen& screen, QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Puts the window where it stood, as large as it was, when everything was last of the size
    /// that it has now; where somebody has moved it since, or it never had that size, onto its
    /// screen.
    /// @param resizes false for a window whose content alone gives its size
    void placeAfterZoom(bool resizes);

private:
    void settled();
    void keepBeforeZoom();
    bool isEnlarged() const;

    Screen& m_screen;
    QWidget& m_window;
    QTimer m_settled;
    bool m_isNew = true; ///< its frame has not been seen yet
    int m_zoom;
    std::map<int, QRect> m_places; ///< by zoom, since the window was moved by hand
    bool m_isPlaced = true;        ///< since the last zoom
    QRect m_given;                 ///< by the last zoom, and by what the desktop made of that
    QElapsedTimer m_sinceZoom;
};

/// The same for a window that is watched; others are put onto their screen.
void placeAfterZoom(QWidget& window, bool resizes = true);

/// Puts a window where it was last, and when the size of everything is still the same as large as
/// it was. What would be off the screen is moved and made smaller until it is on it.
/// @param resizes false for a window whose content alone gives its size
/// @return false when nothing is known of the window
bool putInPlace(const Screen& screen, QWidget& window, bool resizes = true);

/// Makes a window of text so large that it shows the lines and the letters in each of them, as far
/// as its screen has room.
void resizeForText(QWidget& window, int letters, int lines);

/// Puts a window of text where it was last and remembers where it goes.
void holdInPlace(Screen& screen, QWidget& window);

/// The largest size of a window that leaves its frame on the screen.
QSize roomOnScreen(const QWidget& window);

/// Moves and shrinks a window until it lies on its screen, frame and all.
void bringOntoScreen(QWidget& window);

} // namespace korvel
