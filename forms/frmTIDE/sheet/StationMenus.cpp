// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/StationMenus.h"

#include "app/reading/Format.h"
#include "app/reading/PackedText.h"
#include "app/records/KV_Savedvalue.h"
#include "forms/frmTIDE/data/TideData.h"
#include "shell/controls/Boxes.h"
#include "shell/machine/AsQString.h"

namespace korvel
{
namespace
{

QString shown(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

constexpr std::size_t nearestShown = 8;

} // namespace

StationMenus::StationMenus(Program& program, WindowMenus& menus, const StationList& list,
                           Choose choose)
    : m_program(program), m_menus(menus), m_list(list), m_choose(std::move(choose))
{
}

QAction* StationMenus::addStation(QMenu* menu, const QString& array, int index,
                                  const QString& caption, const StationChoice& station)
{
    return m_menus.addEntry(menu, array, index, caption, [this, station] { m_choose(station); });
}

void StationMenus::addAreas(QMenu* menu, const QString& array, std::span<const StationArea> areas,
                            bool TideMode)
{
    for (int index = 0; const StationArea& area : areas) {
        QMenu* submenu = menu->addMenu(shown(area.caption));
        submenu->setObjectName(memberName(array, index++));
        submenu->setEnabled(!area.places.empty());
        submenu->setToolTipsVisible(true);
        QObject::connect(submenu, &QMenu::aboutToShow, submenu, [this] { refresh(); });
        for (int item = 0; std::string_view place : area.places) {
            const StationChoice station{TideMode, std::string(place)};
            m_entries.push_back(
                {addStation(submenu, shown(area.itemArray), item++, shown(place), station),
                 station});
        }
    }
}

void StationMenus::addStreamReason(QMenu* menu)
{
    menu->addSeparator();
    QAction* reason = menu->addAction(
        "&No open stream constants exist for these waters: the manual shows the file form");
    reason->setObjectName("mnuStreamReason");
    reason->setEnabled(false);
}

void StationMenus::addLastAndNearest(QMenu* menu, const TideHabits& habits)
{
    QMenu* last = menu->addMenu("&Last stations");
    last->setObjectName("mnuLastStations");
    fillLast(last, habits);
    QMenu* nearest = menu->addMenu("&Nearest to the Position Memo");
    nearest->setObjectName("mnuNearestStations");
    QObject::connect(menu, &QMenu::aboutToShow, menu, [this, last, nearest, &habits] {
        fillLast(last, habits);
        fillNearest(nearest);
    });
    fillNearest(nearest);
}

void StationMenus::fillLast(QMenu* menu, const TideHabits& habits)
{
    menu->clear();
    menu->setToolTipsVisible(true);
    menu->setEnabled(!habits.stations.empty());
    for (int index = 0; const StationChoice& station : habits.stations) {
        const QString kind = station.TideMode ? "" : " (stream)";
        grey({addStation(menu, "mnuLast", index++, shown(station.place) + kind, station), station});
    }
}

void StationMenus::fillNearest(QMenu* menu)
{
    menu->clear();
    menu->setToolTipsVisible(true);
    const KV_Savedvalue& saved = m_program.saved();
    // Nothing stored is 0 N 0 E, which cannot be stored.
    const bool isStored = saved.memoLatitude().packed() != 0 || saved.memoLongitude().packed() != 0;
    menu->setEnabled(isStored);
    menu->menuAction()->setToolTip(isStored ? "" : "The Position Memo holds no position");
    if (!isStored) return;
    QAction* from = menu->addAction(
        shown("from " + inFullForm(Format(saved.memoLatitude(), "00.00'0N;00.00'0S") + " " +
                                   Format(saved.memoLongitude(), "000.00'0E;000.00'0W"))));
    from->setObjectName("mnuNearestFrom");
    from->setEnabled(false);
    const std::vector<NearStation> near =
        nearestStations(m_list, saved.memoLatitude(), saved.memoLongitude(), nearestShown);
    for (int index = 0; const NearStation& station : near) {
        const QString distance = asQString(Format(station.distance.value(), "0") + " nm");
        const StationChoice choice{true, station.place};
        grey({addStation(menu, "mnuNearest", index++, shown(station.place) + "   " + distance,
                         choice),
              choice});
    }
    menu->setEnabled(!near.empty());
}

void StationMenus::refresh()
{
    for (const Entry& entry : m_entries)
        grey(entry);
}

void StationMenus::grey(const Entry& entry) const
{
    const QString reason = reasonAgainst(entry.station);
    entry.action->setEnabled(reason.isEmpty());
    entry.action->setToolTip(reason);
}

QString StationMenus::reasonAgainst(const StationChoice& station) const
{
    const std::string file =
        station.TideMode ? tideFileName(station.place) : streamFileName(station.place);
    // What is there but cannot be read is chosen and told in full.
    if (m_program.files().look(file).status != FileStore::Content::Status::Missing) return {};
    const StationNotes* notes = station.TideMode ? m_list.notesOf(station.place) : nullptr;
    std::string reason = station.TideMode ? "" : std::string(whyNoStreams);
    if (notes && notes->grade == "none") reason = notes->source;
    return asQString("No data: " + (reason.empty() ? file + " is missing" : reason) +
                     ". A file put into Harmonic Constants is used at once.");
}

} // namespace korvel
