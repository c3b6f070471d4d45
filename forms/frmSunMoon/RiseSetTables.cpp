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
    return {"Against an independent ephemeris with the same altitude of the body, 2000 to 2050, "
            "latitudes to 60: sunrise and sunset 0.01 minutes (95 %), 3.8 at the worst, at "
            "southern latitudes of whole degrees; moonrise 4.9 and moonset 3.5 minutes (95 %), up "
            "to 82 near full Moon, about one in 400 missed",
            "Refined times: Sun 0.01 minutes, Moon 0.09 minutes at the worst, none missed",
            "Against an almanac, which takes refraction, parallax and size of the day: Sun up to "
            "1.0 minute, Moon up to 3.2 minutes",
            "Azimuths are those of the true horizon for 06:00 and 18:00 UTC of the date"};
}

} // namespace korvel
