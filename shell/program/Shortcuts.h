// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>

class QMenu;
class QWidget;

namespace korvel
{

class Program;

/// A key that does the same in every window. This table is the one place that declares them: the
/// menu that shows them and the keys themselves are made of it.
struct Shortcut {
    const char* name;    ///< of its entry, "mnuView(0)"
    const char* caption; ///< with its mnemonic; nullptr for a separator
    const char* keys;    ///< the first is shown: "Ctrl+W; Esc"
    bool notInMain;      ///< the main window has it in a menu of its own, or not at all
    void (*run)(Program& program, QWidget& window);
};

std::span<const Shortcut> shortcuts();

/// Fills a menu with the shortcuts that a window has.
/// @param isMain whether it is that of the main window
void addShortcuts(QMenu& menu, Program& program, QWidget& window, bool isMain);

/// Gives the keys to a window without menus that closes by keys of its own, those of the windows
/// included.
void addKeys(QWidget& window, Program& program);

/// The key of a window, the nth of the catalogue, from 0: "Ctrl+1" .. "Ctrl+9", "Ctrl+T" for the
/// tide, "Ctrl+B" for the compass; empty for the rest.
QString windowKey(const QString& name, int index);

} // namespace korvel
