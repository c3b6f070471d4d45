// SPDX-License-Identifier: MIT
#include "forms/frmSunMoon/RiseSetWorking.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "navlib/angles.h"

namespace korvel
{
namespace
{

using namespace NavFunc113;

constexpr int listDecimals = 6; // of a degree

/// "0425LT", behind it the refined figure when there is one.
std::string cellOf(const RiseSetLabel& label)
{
    if (label.refined.empty()) return label.text;
    return label.text + (label.text.empty() ? "" : ", ") + "refined " + label.refined;
}

std::string listedTime(std::optional<DateTime> time)
{
    return time && *time != 0 ? Format(*time, "yyyy-mm-ddThh:mm:ss") : std::string();
}

} // namespace

PaperTable riseSetTable(const std::vector<RiseSetTableRow>& rows)
{
    PaperTable table{"Rise and set",
                     {"Row", "Place", "TD h", "Latitude", "Longitude", "Sunrise", "Az. °", "Sunset",
                      "Az. °", "Moonrise", "Moonset"},
                     {}};
    for (const auto& [number, typed, result, line] : rows) {
        if (!result->figures) {
            table.rows.push_back({std::to_string(number), typed.txtLocation, typed.txtTD,
                                  typed.txtLatitude, typed.txtLongitude, "", "", "", "", "", ""});
            continue;
        }
        const RiseSetRow& read = result->figures->typed;
        table.rows.push_back({std::to_string(number), typed.txtLocation, Format(read.TD, "0.##"),
                              positionForCopy(read.latitude, Axis::Latitude),
                              positionForCopy(read.longitude, Axis::Longitude),
                              cellOf(result->sunRiseTime), cellOf(result->sunRiseAz),
                              cellOf(result->sunSetTime), cellOf(result->sunSetAz),
                              cellOf(result->moonRiseTime), cellOf(result->moonSetTime)});
    }
    return table;
}

ExportTable riseSetList(const std::vector<RiseSetTableRow>& rows)
{
    ExportTable list{{"row", "place", "date (local)", "time difference (hours)",
                      "latitude (degrees)", "longitude (degrees)"},
                     {}};
    for (const std::string name : {"sunrise", "sunset", "moonrise", "moonset"}) {
        list.headings.push_back(name + " (local time)");
        list.headings.push_back(name + " refined (local time)");
    }
    list.headings.insert(list.headings.end(),
                         {"sunrise azimuth (degrees true)", "sunset azimuth (degrees true)"});
    for (const auto& [number, typed, result, line] : rows) {
        if (!result->figures) continue;
        const RowFigures& figures = *result->figures;
        std::vector<std::string> cells = {
            std::to_string(number),
            typed.txtLocation,
            Format(result->date, "yyyy-mm-dd"),
            figure(figures.typed.TD, 4),
            figure(DegMinToDeg(figures.typed.latitude), listDecimals),
            figure(DegMinToDeg(figures.typed.longitude), listDecimals)};
        for (const RiseSetFigures& event : figures.events) {
            cells.push_back(listedTime(event.found));
            cells.push_back(listedTime(event.refined));
        }
        for (const AzimuthFigures& each : figures.azimuths)
            cells.push_back(each.azimuth ? figure(*each.azimuth, 3) : "");
        list.rows.push_back(cells);
    }
    return list;
}

std::vector<std::string> riseSetLimits()
{
    return {
        "Against an independent full ephemeris with the same altitude of the body, 1900 to 2099, "
        "TD of the zone, 10 000 events of a kind: sunrise and sunset 0.02 minutes, but at "
        "southern latitudes of whole degrees up to 8.1 (to latitude 60) and 13.8 (to 63); "
        "moonrise 5.3 and moonset 3.7 minutes (95 %), near full Moon up to 99 (to 60) and 147 "
        "(to 63), one in 1700 and one in 700 missed. Where no refined time stands beside a time, "
        "it is "
        "right to 1.1 minutes (Sun) and 5.1 (Moon)",
        "Refined times, latitudes to 63: Sun 0.02 minutes, Moon 0.15, none missed; 1 minute "
        "where the Moon only skims the horizon",
        "Against an almanac, which takes refraction, parallax and size of the day: Sun up to "
        "1.1 minutes to latitude 60 and 1.6 to 63, Moon up to 4.2 and 18.5",
        "Azimuths are those of the true horizon for 06:00 and 18:00 UTC of the date"};
}

} // namespace korvel
