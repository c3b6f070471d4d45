// SPDX-License-Identifier: MIT
#include "app/shell/shortcuts.h"

#include "app/shell/Program.h"

#include <QMainWindow>
#include <QMenu>

#include <array>

namespace korvel
{
namespace
{

const std::array tableOfKeys = {
    Shortcut{"mnuNight", "N&ight colours", "F8", true,
             [](Program& program, QMainWindow&) { program.screen().toggleNight(); }},
    Shortcut{"mnuDim", "&Dimmer", "Shift+F8", false,
             [](Program& program, QMainWindow&) { program.screen().dim(); }},
    Shortcut{"mnuView(2)", nullptr, "", false, nullptr},
    Shortcut{"mnuLarger", "&Larger", "Ctrl++; Ctrl+=", false,
             [](Program& program, QMainWindow&) { program.screen().zoom(1); }},
    Shortcut{"mnuSmaller", "&Smaller", "Ctrl+-", false,
             [](Program& program, QMainWindow&) { program.screen().zoom(-1); }},
    Shortcut{"mnuNormalSize", "&Normal size", "Ctrl+0", false,
             [](Program& program, QMainWindow&) { program.screen().zoom(0); }},
    Shortcut{"mnuView(6)", nullptr, "", false, nullptr},
    Shortcut{"mnuNextWindow", "Ne&xt window", "Ctrl+Tab", false,
             [](Program& program, QMainWindow& window) { program.nextWindow(window); }},
    Shortcut{"mnuClose", "&Close", "Ctrl+W; Esc", true,
             [](Program&, QMainWindow& window) { window.close(); }},
    Shortcut{"mnuQuit", "&End KORVEL2000", "Ctrl+Q", false,
             [](Program& program, QMainWindow&) { program.actions().ExitApplication(); }},
};

} // namespace

std::span<const Shortcut> shortcuts()
{
    return tableOfKeys;
}

void addShortcuts(QMenu& menu, Program& program, QMainWindow& window, bool isCalculator)
{
    for (const Shortcut& each : shortcuts()) {
        if (each.calculatorsOnly && !isCalculator) continue;
        if (!each.caption) {
            menu.addSeparator()->setObjectName(each.name);
            continue;
        }
        QAction* entry = menu.addAction(each.caption);
        entry->setObjectName(each.name);
        entry->setShortcuts(QKeySequence::listFromString(each.keys));
        QObject::connect(entry, &QAction::triggered, &window,
                         [&program, &window, run = each.run] { run(program, window); });
    }
}

QString windowKey(int index)
{
    return index < 9 ? QString("Ctrl+%1").arg(index + 1) : QString();
}

} // namespace korvel
