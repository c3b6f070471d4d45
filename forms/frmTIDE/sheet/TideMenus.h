// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/day/PredictTide.h"
#include "forms/frmTIDE/sheet/StationMenus.h"

#include <QMenuBar>

#include <functional>

namespace korvel
{

/// What the entries do.
struct TideActions {
    std::function<void(const StationChoice&)> choose;
    std::function<void()> askDate;
    std::function<void()> print;
    std::function<void()> close;
    std::function<void()> about;
    std::function<void()> find;
    std::function<void(TideKind)> checkFile;
    std::function<void()> extend;
    std::function<void()> takeBack;
    std::function<void()> showWeek;
    std::function<void()> printWeek;
    std::function<void()> saveMonth;
    std::function<void(bool)> drawAll;
    std::function<void()> openKeel;
};

/// The menus of the tide window, from left to right.
class TideMenus
{
public:
    /// @param bar of the window that the menus belong to
    TideMenus(Program& program, WindowMenus& menus, QMenuBar& bar, const StationList& list,
              const TideHabits& habits, TideActions actions);

    const StationMenus& stations() const { return m_stations; }
    void enableUndo(bool isThere) { m_mnuUndo->setEnabled(isThere); }

private:
    void addPlaces();
    void addBarEntry(int index, const QString& caption, const std::function<void()>& action);
    void addEnd();
    void addStations(const TideHabits& habits);
    void addDays(bool drawsAll);

    WindowMenus& m_menus;
    QMenuBar& m_bar;
    TideActions m_do;
    StationMenus m_stations;
    QAction* m_mnuUndo = nullptr;
};

} // namespace korvel
