// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/day/TideTables.h"

#include "app/reading/Format.h"
#include "navlib/datetime.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

void addLine(std::string& table, const std::string& date, const TideDayShown& day,
             const NavFunc113::TideTurn& turn, const char* method)
{
    const bool tide = day.four.kind == TideKind::Tide;
    std::string water = waterName(turn, day.four.kind);
    water.front() = static_cast<char>(water.front() - 'A' + 'a');
    table += date + "," + clockTime(turn.time) + "," + water;
    table += "," + plainFigure(turn.value, TideKind::Tide) + (tide ? ",m," : ",kn,") + method +
             (day.isEstimated ? ",estimated level\r\n" : ",\r\n");
}

TideStation readStation(FileStore& files, TideKind kind, const std::string& place,
                        const StationList& list)
{
    if (kind == TideKind::Stream) return readStreamStation(files, place);
    const StationNotes* notes = list.notesOf(place);
    return readTideStation(files, place, notes && notes->grade == "none" ? notes->source : "");
}

// A shipped file holds the four constants of its record. One without a record is an estimate, which
// its title says.
bool isOwnFile(const TideStation& station, const StationNotes& notes,
               const FullConstants& constants, bool isOfRecord)
{
    if (notes.grade == "none") return true;
    if (constants.has(notes.place)) return !isOfRecord;
    return !constants.isEmpty() && !station.title.ends_with("(est.)");
}

} // namespace

StationDays::StationDays(FileStore& files, TideKind kind, const std::string& place,
                         const StationList& list, const FullConstants& constants)
    : m_factors(files), m_kind(kind), m_station(readStation(files, kind, place, list))
{
    const StationNotes* notes = kind == TideKind::Tide ? list.notesOf(place) : nullptr;
    if (notes) m_all = constants.of(place, m_station);
    m_isOwn = !notes || isOwnFile(m_station, *notes, constants, m_all.has_value());
    m_isEstimated = !m_isOwn && (notes->isLevelEstimated || notes->areMonthsEstimated);
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

std::string nowText(const StationDays& station, NavFunc113::Hours zone, const TideDates& dates,
                    NavFunc113::DateTime utc, bool withAll)
{
    const auto date = static_cast<std::int64_t>(std::floor(utc + NavFunc113::DaysOfHours(zone)));
    if (!dates.contains(date)) return {};
    try {
        TideDayShown day = station.day(date);
        if (!withAll) day.all.reset();
        return nowText(day, utc);
    } catch (const TideDataFault&) {
        return {}; // the day that is shown is another one; this one's fault is told when it is
                   // chosen
    }
}

/// As tables for other eyes and programs have it.
static std::string isoDate(std::int64_t serial)
{
    return Format(static_cast<double>(serial), "yyyy-mm-dd");
}

std::vector<WeekDay> weekFrom(const StationDays& station, std::int64_t serial,
                              const TideDates& dates)
{
    std::vector<WeekDay> week;
    const std::int64_t last = std::min(serial + 6, dates.lastSerial());
    for (; serial <= last; ++serial) {
        const TideDayShown day = station.day(serial);
        week.push_back({isoDate(serial),
                        springOrNeap(MoonAtNoon(serial, day.four.station.zone).elongation),
                        waterLines(day)});
    }
    return week;
}

std::string monthTable(const StationDays& station, const std::string& place, std::int64_t serial,
                       const TideDates& dates)
{
    const NavFunc113::CivilDate date = NavFunc113::DateOfSerial(serial);
    std::int64_t day =
        std::max(NavFunc113::DaySerial({date.year, date.month, 1}), dates.firstSerial());
    // The mark says that the letters are UTF-8.
    std::string table = "\xEF\xBB\xBF# " + place + ", zone time. Not for navigation.\r\n" +
                        "date,time,water,value,unit,constituents,level\r\n";
    for (; day <= dates.lastSerial() && NavFunc113::DateOfSerial(day).month == date.month; ++day) {
        const TideDayShown shown = station.day(day);
        const std::string label = isoDate(day);
        for (const WaterPair& water : watersOf(shown)) {
            if (water.four) addLine(table, label, shown, *water.four, "four");
            if (water.all) addLine(table, label, shown, *water.all, "all");
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
