// SPDX-License-Identifier: MIT
#include "shell/program/Shortcuts.h"

#include "shell/controls/MeantFigure.h"
#include "shell/program/Program.h"

#include <QMenu>

#include <array>

namespace korvel
{
namespace
{

const std::array tableOfKeys = {
    Shortcut{"mnuNight", "N&ight colours", "F8", true,
             [](Program& program, QWidget&) { program.screen().toggleNight(); }},
    Shortcut{"mnuDim", "&Dimmer", "Shift+F8", false,
             [](Program& program, QWidget&) { program.screen().dim(); }},
    Shortcut{"mnuView(2)", nullptr, "", false, nullptr},
    Shortcut{"mnuLarger", "&Larger", "Ctrl++; Ctrl+=", false,
             [](Program& program, QWidget&) { program.screen().zoom(1); }},
    Shortcut{"mnuSmaller", "&Smaller", "Ctrl+-", false,
             [](Program& program, QWidget&) { program.screen().zoom(-1); }},
    Shortcut{"mnuNormalSize", "&Normal size", "Ctrl+0", false,
             [](Program& program, QWidget&) { program.screen().zoom(0); }},
    Shortcut{"mnuView(6)", nullptr, "", false, nullptr},
    Shortcut{"mnuMeant", "Write what was &meant", "F4", true,
             [](Program&, QWidget& window) { writeMeantFigure(window); }},
    Shortcut{"mnuGoTo", "&Go to...", "Ctrl+K", false,
             [](Program& program, QWidget& window) { program.goTo(window); }},
    Shortcut{"mnuNextWindow", "Ne&xt window", "Ctrl+Tab", false,
             [](Program& program, QWidget& window) { program.nextWindow(window); }},
    Shortcut{"mnuClose", "&Close", "Ctrl+W; Esc", true,
             [](Program&, QWidget& window) { window.close(); }},
    Shortcut{"mnuQuit", "&End KORVEL2000", "Ctrl+Q", false,
             [](Program& program, QWidget&) { program.actions().ExitApplication(); }},
};

/// @param owner the menu that shows it, by which the manual knows it, or the window
QAction* makeAction(const Shortcut& shortcut, Program& program, QWidget& window, QObject& owner)
{
    auto* action = new QAction(shortcut.caption, &owner);
    action->setObjectName(shortcut.name);
    action->setShortcuts(QKeySequence::listFromString(shortcut.keys));
    QObject::connect(action, &QAction::triggered, &window,
                     [&program, &window, run = shortcut.run] { run(program, window); });
    return action;
}

} // namespace

std::span<const Shortcut> shortcuts()
{
    return tableOfKeys;
}

void addShortcuts(QMenu& menu, Program& program, QWidget& window, bool isMain)
{
    for (const Shortcut& each : shortcuts()) {
        if (each.notInMain && isMain) continue;
        if (!each.caption) {
            menu.addSeparator()->setObjectName(each.name);
            continue;
        }
        menu.addAction(makeAction(each, program, window, menu));
    }
}

void addKeys(QWidget& window, Program& program)
{
    for (const Shortcut& each : shortcuts())
        if (each.caption && !each.notInMain)
            window.addAction(makeAction(each, program, window, window));
    int key = 0;
    for (const WindowLink& link : program.links) {
        auto* opens = new QAction(link.caption, &window);
        opens->setShortcut(QKeySequence(windowKey(link.name, key++)));
        QObject::connect(opens, &QAction::triggered, &window,
                         [&program, name = link.name] { program.openWindow(name); });
        window.addAction(opens);
    }
}

QString windowKey(const QString& name, int index)
{
    if (name == "frmTIDE") return "Ctrl+T";
    if (name == "frmCompass") return "Ctrl+B"; // bearings
    return index < 9 ? QString("Ctrl+%1").arg(index + 1) : QString();
}

} // namespace korvel
