// SPDX-License-Identifier: MIT
#include "forms/frmUKC/KeelTide.h"

#include "app/reading/Format.h"
#include "forms/frmTIDE/data/TideDates.h"
#include "forms/frmTIDE/day/StationCheck.h"
#include "forms/frmTIDE/day/StationLines.h"
#include "forms/frmTIDE/day/TideTables.h"
#include "forms/frmTIDE/stations/StationSearch.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::Hours;

bool isBlank(const std::string& text)
{
    return text.find_first_not_of(' ') == std::string::npos;
}

/// The tide station that was meant: streams have no height.
std::optional<FoundStation> tideStationIn(const std::string& typed)
{
    for (const FoundStation& station : findStations(typed))
        if (station.TideMode) return station;
    return std::nullopt;
}

std::int64_t dayOf(NavFunc113::DateTime utc, Hours zone)
{
    return static_cast<std::int64_t>(std::floor(utc + NavFunc113::DaysOfHours(zone)));
}

} // namespace

double TideWeek::at(std::size_t day, Hours time) const
{
    const TideDayShown& shown = days.at(day);
    return shown.all ? shown.all->at(time) : shown.four.at(time);
}

NavFunc113::TideCurve TideWeek::curve(std::size_t day) const
{
    return [this, day](Hours time) { return at(day, time); };
}

NavFunc113::TideTurn lowestOf(const TideWeek& week, std::size_t day)
{
    const NavFunc113::TideCurve curve = week.curve(day);
    std::vector<NavFunc113::TideTurn> waters = NavFunc113::TurnsOf(curve);
    for (const Hours end : {Hours(0), Hours(24)})
        waters.push_back({end, curve(end)});
    return *std::ranges::min_element(waters, {}, &NavFunc113::TideTurn::value);
}

std::vector<HoursSpan> hoursAbove(const TideWeek& week, std::size_t day, double level)
{
    const NavFunc113::TideCurve curve = week.curve(day);
    std::vector<HoursSpan> spans;
    for (const HoursSpan& span : spansAbove(curve, level, NavFunc113::PassagesOf(curve, level))) {
        const HoursSpan inwards{Hours(std::ceil(span.from.value() * 60) / 60),
                                Hours(std::floor(span.to.value() * 60) / 60)};
        if (inwards.from < inwards.to) spans.push_back(inwards);
    }
    return spans;
}

const TideWeek& TideWeeks::week(const TideBoxes& boxes, NavFunc113::DateTime utc)
{
    if (isBlank(boxes.station)) {
        forget();
        m_week = {};
        return m_week;
    }
    // Zones have whole quarters of an hour: today changes at one of them.
    const double quarters = isBlank(boxes.day) ? std::floor(utc * 24 * 4) : 0;
    const std::string key = boxes.station + "\n" + boxes.day + "\n" + Format(quarters, "0");
    if (m_key != key) {
        m_week = read(boxes.station, boxes.day, utc);
        m_key = key;
    }
    return m_week;
}

TideWeek TideWeeks::read(const std::string& station, const std::string& day,
                         NavFunc113::DateTime utc)
{
    TideWeek week;
    const auto found = tideStationIn(station);
    if (!found) {
        week.fault = "no tide station is called so; three letters of its name find one";
        return week;
    }
    week.place = found->place;
    try {
        readDays(week, day, utc);
    } catch (const TideDataFault& fault) {
        week.days.clear();
        week.fault = fault.what();
    }
    return week;
}

void TideWeeks::readDays(TideWeek& week, const std::string& day, NavFunc113::DateTime utc)
{
    if (!m_list) m_list = std::make_unique<StationList>(m_files);
    if (!m_constants) m_constants = std::make_unique<FullConstants>(m_files);
    const StationDays station(m_files, TideKind::Tide, week.place, *m_list, *m_constants);
    const TideDates dates = TideDates::of(m_files);
    auto first = isBlank(day) ? std::optional(dayOf(utc, station.zone())) : TideDates::dateIn(day);
    if (!first) {
        week.fault = "the day is no date: year/month/day";
        return;
    }
    if (!dates.contains(*first)) {
        week.fault = TideDates::label(*first) + " is not in the factors file, " +
                     TideDates::label(dates.firstSerial()) + " to " +
                     TideDates::label(dates.lastSerial()) + "; the tide window can extend it";
        return;
    }
    for (std::size_t i = 0; i < TideWeek::mostDays && dates.contains(*first); ++i)
        week.days.push_back(station.day((*first)++));
    const StationNotes* notes = station.isOwn() ? nullptr : m_list->notesOf(week.place);
    const std::string doubts = checkStation(m_files, TideKind::Tide, week.place).doubts();
    const StationLines lines =
        describeStation(week.days.front().four, notes, m_list->errorOf(week.place), doubts);
    for (const std::string& note : {doubts, lines.uncertainty, lines.estimates})
        if (!note.empty()) week.notes.push_back(week.place + ": " + note);
    week.accuracy = lines.station + ". " + lines.accuracy;
}

} // namespace korvel
