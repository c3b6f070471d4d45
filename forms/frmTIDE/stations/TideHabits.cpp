// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/stations/TideHabits.h"

#include "forms/frmTIDE/stations/Stations.h"

#include <algorithm>
#include <string_view>

namespace korvel
{
namespace
{

// A choice that came later stands behind the last station: versions that do not know it pass that
// station over, and their files stay whole.
constexpr std::string_view detailsMark = ";details";

} // namespace

void TideHabits::remember(const StationChoice& station)
{
    std::erase(stations, station);
    stations.insert(stations.begin(), station);
    if (stations.size() > kept) stations.resize(kept);
}

std::vector<FieldKind> habitKinds()
{
    std::vector<FieldKind> kinds = {FieldKind::Number, FieldKind::Tick};
    for (std::size_t i = 0; i < TideHabits::kept; ++i) {
        kinds.push_back(FieldKind::Tick);
        kinds.push_back(FieldKind::Text);
    }
    return kinds;
}

Record recordOf(const TideHabits& habits)
{
    Record record = {static_cast<double>(habits.offeredYear), habits.drawsAll};
    for (std::size_t i = 0; i < TideHabits::kept; ++i) {
        const StationChoice station =
            i < habits.stations.size() ? habits.stations[i] : StationChoice{};
        record.emplace_back(station.TideMode);
        record.emplace_back(station.place);
    }
    if (habits.showsDetails) record.back() = textOf(record.back()) + std::string(detailsMark);
    return record;
}

TideHabits habitsOf(const Record& record)
{
    TideHabits habits;
    const double year = numberOf(record[0]);
    if (year > 0 && year < 10000) habits.offeredYear = static_cast<int>(year);
    habits.drawsAll = tickOf(record[1]);
    for (std::size_t i = 2; i + 1 < record.size(); i += 2) {
        StationChoice station{tickOf(record[i]), textOf(record[i + 1])};
        if (station.place.ends_with(detailsMark)) {
            habits.showsDetails = true;
            station.place.resize(station.place.size() - detailsMark.size());
        }
        if (station.TideMode ? isTideStation(station.place) : isStreamStation(station.place))
            habits.stations.push_back(station);
    }
    return habits;
}

} // namespace korvel
