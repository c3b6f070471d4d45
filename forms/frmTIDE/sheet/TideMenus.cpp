// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/TideMenus.h"

#include "shell/controls/Boxes.h"

namespace korvel
{

TideMenus::TideMenus(Program& program, WindowMenus& menus, QMenuBar& bar, const StationList& list,
                     const TideHabits& habits, TideActions actions)
    : m_menus(menus), m_bar(bar), m_do(std::move(actions)),
      m_stations(program, menus, list, m_do.choose)
{
    addPlaces();
    addBarEntry(2, "&Date", m_do.askDate);
    addBarEntry(3, "&Print", m_do.print);
    addEnd();
    addStations(habits);
    addDays(habits.drawsAll);
}

void TideMenus::addPlaces()
{
    QMenu* tide = m_menus.add("Place for &Tide..", "mnuFrmTIDE(0)");
    m_stations.addAreas(tide, "mnuArea", tideAreas(), true);
    QMenu* stream = m_menus.add("Place for Tidal &Current..", "mnuFrmTIDE(1)");
    m_stations.addAreas(stream, "mnuCuArea", streamAreas(), false);
    m_stations.addStreamReason(stream);
    m_stations.refresh();
}

/// An entry that stands in the menu bar itself.
void TideMenus::addBarEntry(int index, const QString& caption, const std::function<void()>& action)
{
    QAction* entry = m_bar.addAction(caption);
    entry->setObjectName(memberName("mnuFrmTIDE", index));
    QObject::connect(entry, &QAction::triggered, entry, action);
}

void TideMenus::addEnd()
{
    QMenu* end = m_menus.add("&End..", "mnuFrmTIDE(4)");
    m_menus.addEntry(end, "mnuEND", 0, "&END", m_do.close);
    end->addSeparator()->setObjectName("mnuEND(1)");
    m_menus.addEntry(end, "mnuEND", 2, "&About Tide/Current Calcuration", m_do.about);
}

void TideMenus::addStations(const TideHabits& habits)
{
    QMenu* stations = m_menus.add("&Stations", "mnuStations");
    m_menus.addEntry(stations, "mnuStation", 0, "&Find by name", m_do.find);
    m_stations.addLastAndNearest(stations, habits);
    m_menus.addEntry(stations, "mnuStation", 1, "&Check a tide station's file..",
                     [this] { m_do.checkFile(TideKind::Tide); });
    m_menus.addEntry(stations, "mnuStation", 2, "Check a &stream station's file..",
                     [this] { m_do.checkFile(TideKind::Stream); });
}

void TideMenus::addDays(bool drawsAll)
{
    QMenu* days = m_menus.add("Da&ys", "mnuDays");
    m_menus.addEntry(days, "mnuDay", 0, "&Extend the predictions to 2050", m_do.extend);
    m_mnuUndo = m_menus.addEntry(days, "mnuDay", 1, "&Undo the extension", m_do.takeBack);
    days->addSeparator();
    m_menus.addEntry(days, "mnuDay", 2, "&Seven days..", m_do.showWeek);
    m_menus.addEntry(days, "mnuDay", 3, "&Print seven days", m_do.printWeek);
    m_menus.addEntry(days, "mnuDay", 4, "&Month as a table file", m_do.saveMonth);
    days->addSeparator();
    QAction* all = days->addAction("&All constituents beside it");
    all->setObjectName("mnuDrawAll");
    all->setCheckable(true);
    all->setChecked(drawsAll);
    QObject::connect(all, &QAction::toggled, all, m_do.drawAll);
    days->addSeparator();
    m_menus.addEntry(days, "mnuDay", 5, "Under-&keel clearance here", m_do.openKeel);
}

} // namespace korvel
