// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanTide.h"

#include "app/reading/Format.h"
#include "forms/frmPassage/PlanTexts.h"
#include "forms/frmTIDE/data/TideDates.h"
#include "forms/frmTIDE/day/TideTables.h"
#include "forms/frmTIDE/stations/StationSearch.h"

#include <cmath>
#include <optional>

namespace korvel
{

struct PlanTide::Stations {
    explicit Stations(FileStore& files) : list(files), constants(files) {}

    StationList list;
    FullConstants constants;
    std::string place; ///< of the station that was read last
    std::optional<StationDays> days;

    /// @throws TideDataFault
    const StationDays& of(FileStore& files, const std::string& wanted)
    {
        if (place != wanted || !days) {
            days.reset();
            place = wanted;
            days.emplace(files, TideKind::Tide, wanted, list, constants);
        }
        return *days;
    }
};

namespace
{

/// "2005/06/01 12:00 TD +9, 1.23 m rising", and by all constituents where they are known.
std::string tideText(const StationDays& station, const TideDates& dates, Instant utc)
{
    const NavFunc113::DateTime ut = dateTimeOf(utc);
    const NavFunc113::Hours zone = station.zone();
    const double zoneTime = ut + NavFunc113::DaysOfHours(zone);
    const auto date = static_cast<std::int64_t>(std::floor(zoneTime));
    if (!dates.contains(date))
        return "no tide of " + TideDates::label(date) + "; the tide window extends its dates, to " +
               TideDates::label(dates.lastSerial()) + " now";
    std::string zoneWords = zoneText(spanOf(zone).value_or(Span()));
    zoneWords.resize(zoneWords.find(" ("));
    return Format(zoneTime, "yyyy/mm/dd hh:mm") + " " + zoneWords + ", " +
           waterText(station.day(date), ut);
}

} // namespace

PlanTide::PlanTide(FileStore& files) : m_files(files) {}

PlanTide::~PlanTide() = default;

std::string PlanTide::at(const NavFunc113::GeoPoint& position, Instant utc)
{
    if (!m_stations) m_stations = std::make_unique<Stations>(m_files);
    constexpr std::size_t tried = 5; // of some neither list nor ship has constants
    for (const NearStation& near :
         nearestStations(m_stations->list, position.lat, position.longitude, tried)) {
        if (near.distance > furthest) break;
        try {
            const StationDays& station = m_stations->of(m_files, near.place);
            return near.place + ", " + Format(near.distance, "0") +
                   " nm: " + tideText(station, TideDates::of(m_files), utc);
        } catch (const TideDataFault&) {
            continue;
        }
    }
    return {};
}

} // namespace korvel
