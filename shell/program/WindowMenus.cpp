// SPDX-License-Identifier: MIT
#include "shell/program/WindowMenus.h"

#include "shell/controls/Boxes.h"
#include "shell/machine/AsQString.h"
#include "shell/program/Program.h"
#include "shell/program/Shortcuts.h"

#include <QMenuBar>

namespace korvel
{

WindowMenus::WindowMenus(Program& program, QMainWindow& window)
    : m_program(program), m_window(window)
{
}

QMenu* WindowMenus::add(const QString& caption, const QString& name)
{
    QMenu* menu = m_window.menuBar()->addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

QAction* WindowMenus::addEntry(QMenu* menu, const QString& array, int index, const QString& caption,
                               std::function<void()> action)
{
    QAction* entry = menu->addAction(caption, &m_window, std::move(action));
    entry->setObjectName(memberName(array, index));
    return entry;
}

QAction* WindowMenus::addMemoEntry(QMenu*& menu, const QString& title, const QString& array,
                                   const QString& caption, std::function<void()> action)
{
    if (!menu) menu = add(title, array);
    return addEntry(menu, array, static_cast<int>(menu->actions().size()), caption,
                    std::move(action));
}

QAction* WindowMenus::addStoreSingle(const QString& caption, Text value)
{
    return addMemoEntry(m_mnuMemo, "&Memo", "mnuMemo", caption, [this, value = std::move(value)] {
        m_program.actions().StoreInMemo(KORVEL2000Actions::Single, value());
    });
}

QAction* WindowMenus::addStorePosition(const QString& caption, Text latitude, Text longitude)
{
    return addMemoEntry(m_mnuMemo, "&Memo", "mnuMemo", caption,
                        [this, latitude = std::move(latitude), longitude = std::move(longitude)] {
                            m_program.actions().storePosition(latitude(), longitude());
                        });
}

void WindowMenus::addRecallSingle(const QString& caption, QLineEdit* box)
{
    addMemoEntry(m_mnuRem, "&Recall", "mnuRem", caption, [this, box] { recallSingle(box); });
}

void WindowMenus::addRecallPosition(const QString& caption, QLineEdit* latitude,
                                    QLineEdit* longitude)
{
    addRecallPosition(caption, [=] { return std::pair(latitude, longitude); });
}

void WindowMenus::addRecallPosition(const QString& caption, PositionBoxes boxes)
{
    addMemoEntry(m_mnuRem, "&Recall", "mnuRem", caption, [this, boxes = std::move(boxes)] {
        const auto [latitude, longitude] = boxes();
        recallPosition(latitude, longitude);
    });
}

void WindowMenus::recallSingle(QLineEdit* box)
{
    if (m_program.actions().ConfirmMemoRecall(KORVEL2000Actions::SinM) == Answer::Yes)
        box->setText(asQString(memoText(m_program.saved().singleMemo())));
}

void WindowMenus::recallPosition(QLineEdit* latitude, QLineEdit* longitude)
{
    if (m_program.actions().ConfirmMemoRecall(KORVEL2000Actions::PsnM) != Answer::Yes) return;
    latitude->setText(asQString(memoText(m_program.saved().memoLatitude())));
    longitude->setText(asQString(memoText(m_program.saved().memoLongitude())));
}

void WindowMenus::addLinks(const QString& array)
{
    fillWithLinks(add("&Windows", array), array);
}

void WindowMenus::fillWithLinks(QMenu* menu, const QString& array)
{
    m_hasLinks = true;
    int index = 0;
    int key = 0;
    for (const WindowLink& link : m_program.links) {
        const QString keys = windowKey(link.name, key++);
        if (link.name == m_window.objectName()) continue;
        addEntry(menu, array, index++, link.caption, [this, name = link.name] {
            m_program.openWindow(name);
        })->setShortcut(QKeySequence(keys));
    }
}

void WindowMenus::addView()
{
    QMenu* view = add("&View", "mnuView");
    addShortcuts(*view, m_program, m_window, false);
    if (m_hasLinks) return;
    QMenu* links = view->addMenu("&Windows");
    links->setObjectName("mnuViewWindows");
    fillWithLinks(links, "mnuViewWindows");
}

} // namespace korvel
