// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QSizeGrip;
class QToolButton;

namespace korvel
{

/// A button of a frame of our own; no stop of the Tab key, as with the desktop's frame.
QToolButton* addFrameButton(QHBoxLayout& row, const QString& sign, const QString& name,
                            const QString& says);

/// What OwnFrame is to windows with menus, for the manual and the dialogs: a line above all else,
/// with title and cross, by which the window is moved; a corner makes the manual larger. Belongs to
/// the window.
class OwnTitle : public QWidget
{
    Q_OBJECT

public:
    /// @param window has a layout
    explicit OwnTitle(QWidget& window);

    /// Takes the desktop's frame away or gives it back.
    void hold(bool own);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    void placeCorner();

    QWidget& m_window;
    QLabel* m_title;
    QPointer<QSizeGrip> m_corner;
    bool m_isHeld = false;
};

} // namespace korvel
