// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/stations/StationList.h"
#include "forms/frmTIDE/stations/StationSearch.h"
#include "forms/frmTIDE/stations/Stations.h"
#include "forms/frmTIDE/stations/TideHabits.h"
#include "shell/program/Program.h"
#include "shell/program/WindowMenus.h"

#include <QAction>
#include <QMenu>

#include <functional>
#include <vector>

namespace korvel
{

/// The menus from which a station is chosen: the areas of the tide and the stream menu, the last
/// stations, those nearest to the Position Memo. Stations without a data file are grey and say why.
class StationMenus
{
public:
    using Choose = std::function<void(const StationChoice&)>;

    StationMenus(Program& program, WindowMenus& menus, const StationList& list, Choose choose);

    /// Fills a menu with areas, each with its stations.
    void addAreas(QMenu* menu, const QString& array, std::span<const StationArea> areas,
                  bool TideMode);
    /// The streams' menu begins by saying why its stations are grey.
    void addStreamReason(QMenu* menu);
    /// Adds the last and the nearest stations to a menu.
    void addLastAndNearest(QMenu* menu, const TideHabits& habits);

    /// Greys what has no data file. A file that was laid beside the program meanwhile counts.
    void refresh();

    /// Why a station cannot be chosen; empty when it can.
    QString reasonAgainst(const StationChoice& station) const;

private:
    struct Entry {
        QAction* action;
        StationChoice station;
    };
    QAction* addStation(QMenu* menu, const QString& array, int index, const QString& caption,
                        const StationChoice& station);
    void fillLast(QMenu* menu, const TideHabits& habits);
    void fillNearest(QMenu* menu);
    void grey(const Entry& entry) const;

    Program& m_program;
    WindowMenus& m_menus;
    const StationList& m_list;
    Choose m_choose;
    std::vector<Entry> m_entries;
};

} // namespace korvel
