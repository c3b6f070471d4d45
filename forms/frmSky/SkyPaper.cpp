// SPDX-License-Identifier: MIT
#include "forms/frmSky/SkyPaper.h"

#include "app/reading/Format.h"
#include "forms/frmSky/SkyWorking.h"
#include "navlib/angles.h"

namespace korvel
{
namespace
{

constexpr const char* accuracyOfTimes =
    "Times of twilight and passage are within 2 seconds of another program's; rise and set take "
    "34' of refraction on the horizon and the dip of the eye, and real air moves them by a minute "
    "or two, by more in high latitudes. A mile of position is 4 seconds of time east or west";
constexpr const char* accuracyOfStars =
    "Altitudes and azimuths within 0.02' of full theory; UT taken as UTC, 0.23' at most. A mile of "
    "position is a mile of altitude. Preset altitudes take mean air (10 °C, 1010 hPa), the dip of "
    "the eye and the index error that was entered. Magnitudes of stars as catalogued, of planets "
    "within 0.1, of Mars 0.2";
constexpr const char* accuracyOfPhase =
    "Age of the Moon to 0.1 day and her lit part to 1 %, at noon, ship's time";
constexpr const char* accuracyOfUnknown =
    "Places of bodies within 0.02' of full theory: how far an observation is off is that of the "
    "observation, of the position (a mile is a minute) and of the bearing. Altitudes in mean air "
    "(10 °C, 1010 hPa), of the centre: a limb of Sun or Moon is off by 0.3°";
constexpr const char* notOfficial = "No official almanac: check it before you rely on it";

std::string decimalDegrees(NavFunc113::Degrees angle)
{
    return Format(angle, "0.00000");
}

std::vector<std::string> rowOf(const SkyBodyTexts& texts)
{
    return {texts.number,  texts.name,           texts.magnitude,     texts.altitude,
            texts.azimuth, texts.altitudeChange, texts.azimuthChange, texts.preset};
}

} // namespace

void tellDay(WorkingPaper& paper, const SkyDay& day)
{
    paper.kind = "Twilight";
    PaperTable table{"Times of the day",
                     {"Event", "Ship's time", "UTC", "Bearing °", "Altitude",
                      "Position then, or why there is none"},
                     {}};
    ExportTable list{{"event", "utc", "ships_time", "lat_deg", "lon_deg", "none_because"}, {}};
    for (const SkyEventLine& line : day.events) {
        if (line.name.empty()) continue;
        table.rows.push_back(
            {line.name, line.ships, line.zulu, line.bearing, line.altitude, line.where});
        if (!line.utc) {
            list.rows.push_back({line.name, "", "", "", "", line.where});
            continue;
        }
        const almanac::Observer there = day.ship->at(*line.utc);
        list.rows.push_back({line.name, isoText(instantOf(*line.utc)), line.ships,
                             decimalDegrees(there.latitude), decimalDegrees(there.longitude), ""});
    }
    if (!table.rows.empty()) {
        paper.tables = {std::move(table)};
        paper.list = std::move(list);
    }
    paper.workings = dayWorkings(day);
    paper.limits = {"Nautical and civil twilight: Sun's centre 12° and 6° below the horizon",
                    accuracyOfTimes, accuracyOfPhase, notOfficial};
}

void tellStars(WorkingPaper& paper, const SkyDay& day, const SkyStars& stars)
{
    paper.kind = "Stars";
    const std::vector<std::string> heads = {"No.",       "Body",       "Mag.",      "Altitude",
                                            "Azimuth °", "Alt. ′/min", "Az. °/min", "Preset"};
    PaperTable round{"The round", heads, {}}, others{"Other bodies above the horizon", heads, {}};
    ExportTable list{{"utc", "body", "number", "magnitude", "altitude_deg", "azimuth_deg",
                      "sextant_altitude_deg", "in_round"},
                     {}};
    for (const SkyBody& each : stars.bodies) {
        const SkyBodyTexts texts = textsOf(each);
        (each.isInRound ? round : others).rows.push_back(rowOf(texts));
        list.rows.push_back({isoText(instantOf(*stars.utc)), texts.name, texts.number,
                             texts.magnitude, decimalDegrees(each.seen.altitude),
                             decimalDegrees(each.seen.azimuth), decimalDegrees(each.sextant),
                             each.isInRound ? "1" : "0"});
    }
    for (PaperTable* table : {&round, &others})
        if (!table->rows.empty()) paper.tables.push_back(std::move(*table));
    if (!list.rows.empty()) paper.list = std::move(list);
    if (stars.utc) {
        paper.results.push_back({"Day", day.date});
        paper.results.push_back({"Height of the Sun", altitudeText(stars.sun.altitude)});
    }
    paper.workings = starsWorkings(day, stars);
    paper.limits = {"The round: magnitude 3.0 or brighter, 15° to 65° high, away from the Moon; "
                    "of all such rounds the one whose fix has the least error when an error common "
                    "to all sights is solved for as well, faint stars counting less",
                    accuracyOfStars, notOfficial};
}

void tellUnknown(WorkingPaper& paper, const UnknownResult& found)
{
    paper.kind = "Unknown body";
    PaperTable table{"Likeliest bodies; off: observed less where they stood",
                     {"Body", "No.", "Mag.", "Altitude, bearing", "Altitude off", "Bearing off"},
                     {}};
    for (std::size_t i = 0; i < found.likely.size(); ++i) {
        const UnknownLine& line = found.lines[i];
        table.rows.push_back({line.name, line.number, line.magnitude, line.direction,
                              line.altitudeOff, line.bearingOff});
    }
    if (!table.rows.empty()) paper.tables = {std::move(table)};
    paper.workings = unknownWorkings(found);
    paper.limits = {"Among Sun, Moon, four planets and 96 stars; half a degree of altitude counts "
                    "as much as 2 degrees of great circle across the bearing",
                    accuracyOfUnknown};
}

} // namespace korvel
