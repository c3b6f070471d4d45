// SPDX-License-Identifier: MIT
#include "shell/main/MainMenus.h"

#include "app/watch/Alarms.h"
#include "shell/controls/Boxes.h"
#include "shell/machine/AsQString.h"
#include "shell/program/Shortcuts.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace korvel
{

MainMenus::MainMenus(QMenuBar& bar, const WindowCatalogue& catalogue, Actions actions)
    : m_bar(bar), m_actions(std::move(actions))
{
    addCalculators(catalogue);
    addProperty();
    m_view = addMenu(m_bar.addMenu("&View"), "mnuView");
    QAction* end = m_bar.addAction("&End", this, m_actions.end);
    end->setObjectName("mnuEND");
}

QMenu* MainMenus::addMenu(QMenu* menu, const QString& name)
{
    menu->setObjectName(name);
    return menu;
}

QAction* MainMenus::addEntry(QMenu* menu, const QString& name, const QString& caption,
                             std::function<void()> action)
{
    QAction* entry = menu->addAction(caption, this, std::move(action));
    entry->setObjectName(name);
    m_entries[name] = entry;
    return entry;
}

void MainMenus::addCalculators(const WindowCatalogue& catalogue)
{
    std::map<QString, QMenu*> menus;
    menus["mnuNAV"] = addMenu(m_bar.addMenu("&Navigation"), "mnuNAV");
    menus["mnuWATCH"] = addMenu(m_bar.addMenu("&Watch"), "mnuWATCH");
    menus["mnuTide"] = addMenu(m_bar.addMenu("&Utilities"), "mnuUTIL");
    menus["mnuCONV"] = addMenu(menus["mnuTide"]->addMenu("&Conversion"), "mnuCONV");
    int key = 0;
    for (const CatalogueEntry& window : catalogue) {
        if (window.isBehindLine) menus.at(window.menu)->addSeparator();
        QAction* entry = addEntry(menus.at(window.menu), window.entryName(), window.caption,
                                  [this, name = window.name] { m_actions.openWindow(name); });
        entry->setCheckable(true);
        entry->setShortcut(QKeySequence(windowKey(window.name, key++)));
        m_windows[window.name] = entry;
    }
}

void MainMenus::addProperty()
{
    QMenu* property = addMenu(m_bar.addMenu("&Property"), "mnuPROPERTY");
    addEntry(property, "mnuPROPERTY(1)", "&Ship's time set-up..", m_actions.setUpTime);
    property->addSeparator()->setObjectName("mnuPROPERTY(2)");
    addEntry(property, "mnuPROPERTY(3)", "&Time difference..", m_actions.inputTD);

    QMenu* zone = addMenu(property->addMenu("The computer's &clock keeps"), "mnuSystemClock");
    const char* const zones[] = {"&JST", "&SMT", "&UTC"};
    for (int i = 0; i < 3; ++i)
        addEntry(zone, memberName("mnuSystemClock", i), zones[i], [this, i] {
            m_actions.chooseClockZone(static_cast<ClockZone>(i));
        })->setCheckable(true);
    addAlarms(property);
    property->addSeparator();
    addEntry(property, "mnuDIST", "1nm=1' of &latitude", m_actions.chooseDistanceUnit)
        ->setCheckable(true);
    addScreen(property);
}

void MainMenus::addScreen(QMenu* property)
{
    QMenu* colours = addMenu(property->addMenu("Colou&rs"), "mnuBackColor");
    const char* const schemes[] = {"&Day", "&Night"}; // F8 goes between them
    for (int i = 0; i < 2; ++i)
        addEntry(colours, memberName("mnuBackColor", i), schemes[i], [this, i] {
            m_actions.chooseColours(i == 1);
        })->setCheckable(true);
    addEntry(property, "mnuClockOnTop", "&Keep this window on top", m_actions.chooseClockOnTop)
        ->setCheckable(true);
    addEntry(property, "mnuReopen", "&Open these windows again at the next start",
             m_actions.chooseReopening)
        ->setCheckable(true);
    addEntry(property, "mnuOwnFrames", "Windows &without a frame at night",
             m_actions.chooseOwnFrames)
        ->setCheckable(true);
    property->addSeparator();
    addEntry(property, "mnuShip", "Ship and &voyage..", m_actions.setShip);
    addEntry(property, "mnuShipNow", "Ship &now..", m_actions.setShipNow);
    addEntry(property, "mnuShowShip", "Show the ship now in this window", m_actions.chooseShipShown)
        ->setCheckable(true);
    addEntry(property, "mnuJournal", "&Journal of kept papers", m_actions.openJournal);
}

void MainMenus::addAlarms(QMenu* property)
{
    QMenu* alarms = addMenu(property->addMenu("&Alarms"), "mnuALARM");
    for (int n = 1; n <= KV_Savedvalue::alarms; ++n)
        addEntry(alarms, memberName("mnuALARM", n), {}, [this, n] {
            m_actions.setUpAlarm(n);
        })->setCheckable(true);
    addEntry(property, "mnuSIGNAL", "Time s&ignal..", m_actions.setUpTimeSignal)
        ->setCheckable(true);
}

void MainMenus::show(const KV_Savedvalue& saved, const ScreenChoices& screen)
{
    for (int n = 1; n <= KV_Savedvalue::alarms; ++n) {
        QAction* alarm = m_entries.at(memberName("mnuALARM", n));
        alarm->setText(asQString(alarmCaption(n, saved)));
        alarm->setChecked(saved.alarmEnabled(n));
    }
    m_entries.at("mnuSIGNAL")->setChecked(saved.timeSignal());
    for (int i = 0; i < 3; ++i)
        m_entries.at(memberName("mnuSystemClock", i))
            ->setChecked(saved.clockZone() == static_cast<ClockZone>(i));
    m_entries.at("mnuDIST")->setChecked(saved.unitOfLatitude());
    for (int i = 0; i < 2; ++i)
        m_entries.at(memberName("mnuBackColor", i))->setChecked(saved.nightColours() == (i == 1));
    m_entries.at("mnuClockOnTop")->setChecked(screen.clockOnTop);
    m_entries.at("mnuReopen")->setChecked(screen.reopensWindows);
    m_entries.at("mnuOwnFrames")->setChecked(screen.ownFrames);
}

void MainMenus::showShip(bool shown)
{
    m_entries.at("mnuShowShip")->setChecked(shown);
}

void MainMenus::tickWindow(const QString& name, bool ticked)
{
    const auto entry = m_windows.find(name);
    if (entry != m_windows.end()) entry->second->setChecked(ticked);
}

} // namespace korvel
