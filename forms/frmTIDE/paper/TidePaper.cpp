// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/paper/TidePaper.h"

#include "app/reading/Format.h"
#include "forms/frmTIDE/data/TideDates.h"
#include "forms/frmTIDE/day/TideResults.h"

namespace korvel
{
namespace
{

using NavFunc113::Hours;

std::string quantityOf(const TideDayShown& day)
{
    return day.four.kind == TideKind::Tide ? "Height m" : "Rate kn";
}

PaperTable waterTable(const TideDayShown& day)
{
    PaperTable table{day.four.kind == TideKind::Tide
                         ? "High and low waters, zone time " + day.four.lblTD
                         : "Floods and ebbs where the rate is greatest or least, zone time " +
                               day.four.lblTD,
                     {"By four constituents"},
                     {}};
    if (day.all) table.headings.push_back("By all constituents (difference)");
    for (const WaterLine& line : waterLines(day)) {
        table.rows.push_back({line.four});
        if (day.all) table.rows.back().push_back(line.all);
    }
    return table;
}

PaperTable halfHours(const TideDayShown& day)
{
    PaperTable table{"Half-hourly values", {"Zone time " + day.four.lblTD, quantityOf(day)}, {}};
    std::optional<NavFunc113::TideValues> all;
    if (day.all) {
        all = day.all->halfHourly();
        table.headings.push_back(quantityOf(day) + ", all constituents");
    }
    for (std::size_t i = 0; i < day.four.values.size(); ++i) {
        table.rows.push_back(
            {clockTime(Hours(static_cast<double>(i) / 2)), markedFigure(day.four.values[i], day)});
        if (all) table.rows.back().push_back(markedFigure((*all)[i], day));
    }
    return table;
}

ExportTable halfHourList(const TideDayShown& day)
{
    constexpr const char* timeFormat = "yyyy-mm-ddThh:mm";
    const std::string quantity = day.isEstimated ? "height (metres, estimated level"
                                 : day.four.kind == TideKind::Tide ? "height (metres"
                                                                   : "rate (knots";
    ExportTable list{{"zone time", "UTC", quantity + ")"}, {}};
    std::optional<NavFunc113::TideValues> all;
    if (day.all) {
        all = day.all->halfHourly();
        list.headings.push_back(quantity + ", all constituents)");
    }
    for (std::size_t i = 0; i < day.four.values.size(); ++i) {
        const NavFunc113::DateTime zoneTime =
            static_cast<double>(day.four.serial) + static_cast<double>(i) / 48;
        list.rows.push_back(
            {Format(zoneTime, timeFormat),
             Format(zoneTime - NavFunc113::DaysOfHours(day.four.station.zone), timeFormat) + "Z",
             figure(day.four.values[i], 3)});
        if (all) list.rows.back().push_back(figure((*all)[i], 3));
    }
    return list;
}

void tellResults(WorkingPaper& paper, const TideAsked& asked)
{
    const TidePrediction& four = asked.day.four;
    paper.results = {
        {"Highest and lowest of the half-hourly values, hours.minutes", four.lblTideInfo}};
    const bool isTide = four.kind == TideKind::Tide;
    for (const std::size_t set : {HeadShown::flood, HeadShown::ebb})
        if (const std::string* direction = headResults[set].textIn(four); !direction->empty())
            paper.results.push_back({headResults[set].inWords(), *direction});
    paper.results.push_back({isTide ? "Range and Moon" : "Slack and Moon", rangeText(asked.day)});
    for (const CurveAnswer* answer : {&asked.height, &asked.times}) {
        const char* name = answer == &asked.height ? "At the time asked for"
                           : isTide                ? "At the height asked for or above it"
                                                   : "At the rate asked for or above it";
        if (!answer->text.empty()) paper.results.push_back({name, answer->text});
        if (!answer->all.empty()) paper.results.push_back({name, answer->all});
    }
}

} // namespace

void tellDay(WorkingPaper& paper, const std::string& place, const TideAsked& asked,
             const StationLines& lines)
{
    const TidePrediction& four = asked.day.four;
    const bool isTide = four.kind == TideKind::Tide;
    paper.kind = isTide ? "Tide of the day" : "Tidal stream of the day";
    paper.place = place;
    paper.inputs.insert(paper.inputs.begin(),
                        {{"Place", place},
                         {"Station", four.title},
                         {"Date", Format(static_cast<double>(four.serial), "yyyy-mm-dd")},
                         {"Zone time", four.lblTD}});
    tellResults(paper, asked);
    paper.tables = {waterTable(asked.day), halfHours(asked.day)};
    paper.workings = {constituentsWorking(asked.day), heightsWorking(asked)};
    for (Working& each : allConstituentsWorking(asked))
        paper.workings.push_back(std::move(each));
    for (const std::string& line :
         {lines.station, lines.uncertainty, lines.estimates, lines.accuracy, lines.source})
        if (!line.empty()) paper.limits.push_back(line);
    paper.limits.push_back("Weather is not in it: wind and air pressure change the level and the "
                           "times. Not for navigation");
    paper.list = halfHourList(asked.day);
}

} // namespace korvel
