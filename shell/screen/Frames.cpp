// SPDX-License-Identifier: MIT
#include "shell/screen/Frames.h"

#include "shell/screen/DarkFrames.h"
#include "shell/screen/OwnFrame.h"
#include "shell/screen/OwnTitle.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>

namespace korvel
{
namespace
{

/// That of a window with a menu bar; made when it is first wanted.
OwnFrame* ownFrameOf(QMainWindow& window, bool isWanted)
{
    constexpr const char* kept = "ownFrame";
    auto* frame = window.property(kept).value<OwnFrame*>();
    if (frame || !isWanted) return frame;
    frame = new OwnFrame(window);
    window.setProperty(kept, QVariant::fromValue(frame));
    return frame;
}

/// That of the manual or of a dialog.
OwnTitle* ownTitleOf(QWidget& window, bool isWanted)
{
    constexpr const char* kept = "ownTitle";
    auto* title = window.property(kept).value<OwnTitle*>();
    if (title || !isWanted) return title;
    title = new OwnTitle(window);
    window.setProperty(kept, QVariant::fromValue(title));
    return title;
}

bool hasFrame(const QWidget& window)
{
    const auto type = window.windowType();
    return type == Qt::Window || type == Qt::Dialog;
}

} // namespace

Frames::Frames(QObject* parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

void Frames::apply(bool dark, bool own)
{
    m_isDark = dark;
    m_wereDark = m_wereDark || dark;
    m_areOwn = own;
    for (QWidget* each : QApplication::topLevelWidgets())
        dress(*each);
}

bool Frames::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched->isWidgetType())
        if (auto& shown = static_cast<QWidget&>(*watched); shown.isWindow()) dress(shown);
    return false;
}

void Frames::dress(QWidget& window) const
{
    if (!hasFrame(window)) return;
    if (m_wereDark) wishForFrame(window, m_isDark);
    auto* withMenus = qobject_cast<QMainWindow*>(&window);
    if (!withMenus) {
        if (OwnTitle* title = window.layout() ? ownTitleOf(window, m_areOwn) : nullptr)
            title->hold(m_areOwn);
        return;
    }
    if (!withMenus->menuWidget() || !withMenus->centralWidget()) return;
    if (OwnFrame* frame = ownFrameOf(*withMenus, m_areOwn)) frame->hold(m_areOwn);
}

} // namespace korvel
