// SPDX-License-Identifier: MIT
#include "shell/screen/DarkFrames.h"

#include <QGuiApplication>
#include <QLibrary>
#include <QPalette>
#include <QStandardPaths>
#include <QWidget>
#include <QWindow>

#if QT_CONFIG(xcb)
#include <QtGui/qguiapplication_platform.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#endif

namespace korvel
{
namespace
{

#if defined(Q_OS_WIN)

/// @see the attributes of a window that the system's desktop window manager documents
enum Attribute : unsigned { DarkMode = 20, BorderColour = 34, CaptionColour = 35, TextColour = 36 };
constexpr std::uint32_t ownOfSystem = 0xFFFFFFFF;

std::uint32_t asSystemColour(const QColor& colour)
{
    return static_cast<std::uint32_t>(colour.red() | colour.green() << 8 | colour.blue() << 16);
}

void wish(const QWindow& window, bool dark)
{
    using Set = long(__stdcall*)(void*, unsigned, const void*, unsigned);
    // Not there on the oldest systems that the program runs on.
    static const auto set =
        reinterpret_cast<Set>(QLibrary::resolve("dwmapi", "DwmSetWindowAttribute"));
    if (!set) return;
    const auto give = [&](Attribute attribute, std::uint32_t value) {
        set(reinterpret_cast<void*>(window.winId()), attribute, &value, sizeof value);
    };
    const QPalette palette = QGuiApplication::palette();
    const auto colour = [&](QPalette::ColorRole role) {
        return dark ? asSystemColour(palette.color(role)) : ownOfSystem;
    };
    give(DarkMode, dark ? 1 : 0);
    give(BorderColour, colour(QPalette::Dark));
    give(CaptionColour, colour(QPalette::Window));
    give(TextColour, colour(QPalette::WindowText));
}

#elif QT_CONFIG(xcb)

/// The part of the X11 protocol's library that is needed. Not linked: under Wayland the program
/// runs where there is none.
struct Protocol {
    decltype(&xcb_intern_atom) internAtom;
    decltype(&xcb_intern_atom_reply) internAtomReply;
    decltype(&xcb_change_property) changeProperty;
    decltype(&xcb_flush) flush;

    Protocol()
    {
        QLibrary library("xcb", 1);
        const auto find = [&](auto& function, const char* name) {
            function = reinterpret_cast<std::decay_t<decltype(function)>>(library.resolve(name));
        };
        find(internAtom, "xcb_intern_atom");
        find(internAtomReply, "xcb_intern_atom_reply");
        find(changeProperty, "xcb_change_property");
        find(flush, "xcb_flush");
    }
    bool isThere() const { return internAtom && internAtomReply && changeProperty && flush; }

    xcb_atom_t atom(xcb_connection_t* server, const char* name) const
    {
        const auto asked =
            internAtom(server, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
        xcb_intern_atom_reply_t* reply = internAtomReply(server, asked, nullptr);
        const xcb_atom_t atom = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
        std::free(reply); // the library's own way
        return atom;
    }
};

void wish(const QWindow& window, bool dark)
{
    const bool hasFrames = QGuiApplication::platformName() == "xcb";
    auto* x11 = hasFrames ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    static const Protocol protocol;
    if (!x11 || !protocol.isThere()) return;
    xcb_connection_t* server = x11->connection();
    const auto put = [&](const char* property, const char* type, const QByteArray& text) {
        protocol.changeProperty(server, XCB_PROP_MODE_REPLACE,
                                static_cast<xcb_window_t>(window.winId()),
                                protocol.atom(server, property), protocol.atom(server, type), 8,
                                static_cast<std::uint32_t>(text.size()), text.constData());
    };
    put("_GTK_THEME_VARIANT", "UTF8_STRING", dark ? "dark" : "");
    static const QString darkColours = QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                                              "color-schemes/BreezeDark.colors");
    put("_KDE_NET_WM_COLOR_SCHEME", "STRING", dark ? darkColours.toUtf8() : QByteArray());
    protocol.flush(server);
}

#else

void wish(const QWindow&, bool) {}

#endif

} // namespace

void wishForFrame(const QWidget& window, bool dark)
{
    const QWindow* shown = window.windowHandle();
    if (shown && shown->handle()) wish(*shown, dark);
}

} // namespace korvel
