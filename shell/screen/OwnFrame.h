// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

class QLabel;
class QMainWindow;
class QSizeGrip;

namespace korvel
{

/// A window without the desktop's frame: title and buttons stand at the right of its menu bar, by
/// whose free part it is moved, and a corner makes it larger. For desktops that have no dark
/// frames. Belongs to the window.
class OwnFrame : public QWidget
{
    Q_OBJECT

public:
    explicit OwnFrame(QMainWindow& window);

    /// Takes the desktop's frame away or gives it back.
    void hold(bool own);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void giveBack();
    void fitTitle();
    bool moveByMenuBar(QEvent& event);

    QMainWindow& m_window;
    QLabel* m_title;
    bool m_isHeld = false;
    int m_leastWidth{}; ///< of the content, as it is with the desktop's frame
    QPointer<QSizeGrip> m_corner;
};

} // namespace korvel
