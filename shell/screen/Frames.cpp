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

/// A window's frame of our own, kept in its property of that name; made when it is first wanted.
template <typename Frame, typename Window>
Frame* frameOf(Window& window, const char* kept, bool isWanted)
{
    auto* frame = window.property(kept).template value<Frame*>();
    if (frame || !isWanted) return frame;
    frame = new Frame(window);
    window.setProperty(kept, QVariant::fromValue(frame));
    return frame;
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
        auto* title = window.layout() ? frameOf<OwnTitle>(window, "ownTitle", m_areOwn) : nullptr;
        if (title) title->hold(m_areOwn);
        return;
    }
    if (!withMenus->menuWidget() || !withMenus->centralWidget()) return;
    if (auto* frame = frameOf<OwnFrame>(*withMenus, "ownFrame", m_areOwn)) frame->hold(m_areOwn);
}

} // namespace korvel
