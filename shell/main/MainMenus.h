// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/KV_Savedvalue.h"
#include "app/records/ScreenChoices.h"
#include "shell/program/WindowCatalogue.h"

#include <QObject>

#include <functional>
#include <map>

class QAction;
class QMenu;
class QMenuBar;

namespace korvel
{

/// The menus of the main window, their ticks and captions.
class MainMenus : public QObject
{
public:
    /// What the entries do.
    struct Actions {
        std::function<void(const QString& name)> openWindow;
        std::function<void()> setUpTime;
        std::function<void()> inputTD;
        std::function<void(ClockZone)> chooseClockZone;
        std::function<void(int n)> setUpAlarm;
        std::function<void()> setUpTimeSignal;
        std::function<void()> chooseDistanceUnit;
        std::function<void(bool night)> chooseColours;
        std::function<void()> setShip;
        std::function<void()> openJournal;
        std::function<void()> setShipNow, chooseShipShown;
        std::function<void()> chooseReopening;
        std::function<void()> chooseClockOnTop;
        std::function<void()> chooseOwnFrames;
        std::function<void()> end;
    };

    MainMenus(QMenuBar& bar, const WindowCatalogue& catalogue, Actions actions);

    /// The menu of what holds in every window, behind which the entry for the end stands.
    QMenu* view() const { return m_view; }

    /// Ticks and captions as the saved values have them. A choice toggles the tick of its entry
    /// whatever comes of it, so this is called after every choice.
    void show(const KV_Savedvalue& saved, const ScreenChoices& screen);
    /// Whether the ship now is shown in the main window.
    void showShip(bool shown);
    void tickWindow(const QString& name, bool ticked);

private:
    void addCalculators(const WindowCatalogue& catalogue);
    void addProperty();
    void addAlarms(QMenu* property);
    void addScreen(QMenu* property);
    QMenu* addMenu(QMenu* menu, const QString& name);
    QAction* addEntry(QMenu* menu, const QString& name, const QString& caption,
                      std::function<void()> action);

    QMenuBar& m_bar;
    Actions m_actions;
    QMenu* m_view = nullptr;
    std::map<QString, QAction*> m_entries; ///< by object name
    std::map<QString, QAction*> m_windows; ///< by name of the window
};

} // namespace korvel
