// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/TideTables.h"

#include "app/Format.h"
#include "navlib/datetime.h"

#include <algorithm>

namespace korvel
{
namespace
{

void addLine(std::string& table, const TideDayShown& day, const NavFunc113::TideTurn& turn,
             const char* method)
{
    const bool tide = day.four.kind == TideKind::Tide;
    table += TideDates::label(day.four.serial) + "," + clockTime(turn.time) + ",";
    table += tide ? (turn.isHigh ? "high" : "low") : (turn.isHigh ? "flood" : "ebb");
    table += "," + Format(turn.value, "0.00") + (tide ? ",m," : ",kn,") + method +
             (day.isEstimated ? ",estimated level\r\n" : ",\r\n");
}

TideStation readStation(FileStore& files, TideKind kind, const std::string& place,
                        const StationList& list)
{
    if (kind == TideKind::Stream) return readStreamStation(files, place);
    const StationNotes* notes = list.notesOf(place);
    return readTideStation(files, place, notes && notes->grade == "none" ? notes->source : "");
}

} // namespace

StationDays::StationDays(FileStore& files, TideKind kind, const std::string& place,
                         const StationList& list, const FullConstants& constants)
    : m_factors(files), m_kind(kind), m_station(readStation(files, kind, place, list))
{
    const StationNotes* notes = kind == TideKind::Tide ? list.notesOf(place) : nullptr;
    if (notes) m_all = constants.of(place, m_station);
    m_isEstimated = notes && (notes->isLevelEstimated || notes->areMonthsEstimated);
}

TideDayShown StationDays::day(std::int64_t serial) const
{
    return day(serial, {});
}

TideDayShown StationDays::day(std::int64_t serial, const TidePrediction& shown) const
{
    const DaysFactors factors = readDaysFactors(m_factors, serial - firstFactorsSerial);
    const auto predict = m_kind == TideKind::Tide ? predictTideDay : predictStreamDay;
    TideDayShown day{predict(m_station, factors, serial, shown), {}, m_isEstimated};
    if (m_all) day.all = m_all->ofDay(serial);
    return day;
}

std::vector<WeekDay> weekFrom(const StationDays& station, std::int64_t serial,
                              const TideDates& dates)
{
    std::vector<WeekDay> week;
    const std::int64_t last = std::min(serial + 6, dates.lastSerial());
    for (; serial <= last; ++serial) {
        const TideDayShown day = station.day(serial);
        week.push_back({TideDates::label(serial),
                        springOrNeap(moonAgeOf(serial, day.four.station.zone)), waterLines(day)});
    }
    return week;
}

std::string monthTable(const StationDays& station, const std::string& place, std::int64_t serial,
                       const TideDates& dates)
{
    const NavFunc113::CivilDate date = NavFunc113::DateOfSerial(serial);
    std::int64_t day =
        std::max(NavFunc113::DaySerial({date.year, date.month, 1}), dates.firstSerial());
    std::string table = "# " + place + ", zone time. Not for navigation.\r\n" +
                        "date,time,water,value,unit,constituents,level\r\n";
    for (; day <= dates.lastSerial() && NavFunc113::DateOfSerial(day).month == date.month; ++day) {
        const TideDayShown shown = station.day(day);
        for (const WaterPair& water : watersOf(shown)) {
            if (water.four) addLine(table, shown, *water.four, "four");
            if (water.all) addLine(table, shown, *water.all, "all");
        }
    }
    return table;
}

std::string monthFileName(const std::string& place, TideKind kind, std::int64_t serial)
{
    return (kind == TideKind::Tide ? "Tide " : "Stream ") + place + " " +
           Format(static_cast<double>(serial), "yyyy-mm") + ".csv";
}

} // namespace korvel
