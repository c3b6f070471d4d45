// SPDX-License-Identifier: MIT
#include "forms/frmSunMoon/RiseSetWorking.h"

#include "app/reading/Format.h"
#include "navlib/angles.h"

#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

constexpr int decimals = 6; // of a degree
constexpr const char* instantFormat = "yyyy-mm-dd hh:mm:ss";

/// What the paper says of one of the four events.
struct EventWords {
    const char* name;
    const char* title;
    bool isSun;
    RiseSetLabel RiseSetResult::*label;
};
constexpr std::array<EventWords, 4> eventWords = {{
    {"sunrise", "Sunrise", true, &RiseSetResult::sunRiseTime},
    {"sunset", "Sunset", true, &RiseSetResult::sunSetTime},
    {"moonrise", "Moonrise", false, &RiseSetResult::moonRiseTime},
    {"moonset", "Moonset", false, &RiseSetResult::moonSetTime},
}};

std::string degreesText(Degrees angle)
{
    return angleTerm(angle, decimals);
}

std::string instantText(DateTime instant)
{
    return Format(instant, instantFormat);
}

Working placeWorking(const RiseSetTableRow& row, const RowFigures& figures)
{
    Working working{"Row " + std::to_string(row.number) +
                        (row.typed.txtLocation.empty() ? "" : ", " + row.typed.txtLocation),
                    {"North and east are positive; local time = UTC + TD"},
                    {}};
    working.angleStep("Latitude", "φ", figures.typed.latitude);
    working.angleStep("Longitude", "λ", figures.typed.longitude);
    if (!row.line.empty()) working.resultStep("Row in focus", "place, φ and λ", row.line);
    working.step("Time difference", "TD = local time - UTC, as typed", row.typed.txtTD,
                 Format(figures.typed.TD, "0.0####"), "h");
    return working;
}

Working ageWorking(const RiseSetResult& result)
{
    Working working{"Age of the Moon",
                    {"Ecliptic longitudes by series of cosines, 61 terms for the Moon and 16 for "
                     "the Sun, listed in the manual, \"Series of Sun and Moon\"; a month counts 30 "
                     "days"},
                    {}};
    const std::string at = "at " + instantText(result.date + 0.5) + " UTC";
    working.step("Longitude of the Moon", "λm, mean equinox", at,
                 figure(result.phase->moonLongitude, decimals), "°");
    working.step("Longitude of the Sun", "λs, mean equinox", at,
                 figure(result.phase->sunLongitude, decimals), "°");
    const bool isAhead = result.phase->sunLongitude > result.phase->moonLongitude;
    working.step("Age", "30 (λm - λs) / 360, whole months left out",
                 "30 × (" + figure(result.phase->moonLongitude, decimals) + " - " +
                     figure(result.phase->sunLongitude, decimals) + (isAhead ? " + 360" : "") +
                     ") / 360",
                 figure(result.phase->age, 4), "days");
    working.resultStep("Moon's age", "rounded to 0.1", *result.moonAge, "days");
    const DateTime noon = result.date + 0.5;
    const DateTime newMoon = NavFunc113::LastNewMoon(noon);
    working.step("Days since new Moon", "since the last new Moon, UTC",
                 instantText(noon) + " - " + instantText(newMoon), figure(noon - newMoon, 2),
                 "days");
    return working;
}

std::vector<std::string> methodOf(const EventWords& words, const RiseSetRule& rule)
{
    const std::string body = words.isSun ? "Sun" : "Moon";
    return {
        "The " + body + "'s centre stands at the altitude h0 = " + figure(rule.altitude, 4) +
            (words.isSun ? "°: refraction and semi-diameter"
                         : "°: refraction and semi-diameter raise it as much as the parallax "
                           "lowers it"),
        "Declination δ and E = GHA - 15° × hours of UTC by short series of cosines (" +
            std::string(words.isSun ? "16 terms in longitude, 8 in distance"
                                    : "61 terms in longitude, 44 in latitude") +
            ", two of nutation, dynamical time = UTC + 60 s; all listed in the manual, \"Series of "
            "Sun "
            "and Moon\")",
        "For i = -1, 0 and 1 in this order two steps: with the body's place at 12h + TD UTC of the "
        "date + i days, then at the UTC of the time that came of it; the first that ends on "
        "the date counts",
        "cos H = (sin h0 - sin φ sin δ) / (cos φ cos δ); hours from 0h of the date t = 24 (i + "
        "n - 1) + (" +
            std::string(rule.side < 0 ? "-" : "") +
            "H - E - λ) / 15 + TD, n = " + figure(rule.wholeDays, 0)};
}

PaperTable searchTable(const RiseSetFigures& figures, DateTime date)
{
    PaperTable table{"Steps of the search",
                     {"i", "UTC of the place", "δ °", "E °", "H °", "t hours", "local time"},
                     {}};
    for (const EventStep& step : figures.search)
        table.rows.push_back({std::to_string(step.round), instantText(step.instant),
                              figure(DegMinToDeg(step.body.declination), decimals),
                              figure(step.body.hourAngleOffset, decimals),
                              step.hourAngle ? figure(*step.hourAngle, decimals) : "none",
                              step.hourAngle ? figure((step.event - date) * 24, 5) : "",
                              step.hourAngle ? instantText(step.event) : ""});
    return table;
}

PaperTable refinementTable(const RiseSetFigures& figures, Hours TD)
{
    const RiseSetRule rule = RuleOf(figures.event);
    PaperTable table{
        "Refined search: step = (" + std::string(rule.side < 0 ? "-" : "") +
            "H - local hour angle) / " + figure(rule.motionInADay, 1) +
            "° a day, local hour angle = 15° × hours of UTC + E + λ, within half a turn; φ as "
            "typed; without H to the culmination",
        {"from", "UTC of the place", "δ °", "E °", "H °", "step, minutes", "local time"},
        {}};
    constexpr std::array<const char*, 4> starts = {"time found", "0h", "12h", "24h"};
    for (const EventStep& step : figures.refinement) {
        const double minutes = (step.event - DaysOfHours(TD) - step.instant) * 1440;
        table.rows.push_back({starts.at(static_cast<std::size_t>(step.round)),
                              instantText(step.instant),
                              figure(DegMinToDeg(step.body.declination), decimals),
                              figure(step.body.hourAngleOffset, decimals),
                              step.hourAngle ? figure(*step.hourAngle, decimals) : "none",
                              figure(minutes, 3), instantText(step.event)});
    }
    return table;
}

/// The last step of the search, figures put in.
void addLastStep(Working& working, const RiseSetFigures& figures, const RowFigures& row,
                 DateTime date)
{
    const RiseSetRule rule = RuleOf(figures.event);
    const EventStep& last = figures.search.back();
    const std::string phi = degreesText(DegMinToDeg(figures.latitude));
    const std::string delta = degreesText(DegMinToDeg(last.body.declination));
    working.step("Latitude of the search", "φ, each search adds 0.00000001 minutes",
                 Working::angleFigures(figures.latitude),
                 figure(DegMinToDeg(figures.latitude), decimals), "°");
    const std::string cosine = "(sin " + degreesText(rule.altitude) + " - sin " + phi + " × sin " +
                               delta + ") / (cos " + phi + " × cos " + delta + ")";
    if (!last.hourAngle) {
        working.step("Hour angle of the last step", "cos H lies beyond ±1, or there is no quotient",
                     cosine, "none");
        return;
    }
    working.step("Hour angle of the last step", "H = arccos(..)", "arccos(" + cosine + ")",
                 figure(*last.hourAngle, decimals), "°");
    working.step("Hours from 0h of the date", "t = 24 (i + n - 1) + (±H - E - λ) / 15 + TD",
                 "24 × (" + std::to_string(last.round) + " + " + figure(rule.wholeDays, 0) +
                     " - 1) + (" + degreesText(rule.side * *last.hourAngle) + " - " +
                     degreesText(last.body.hourAngleOffset) + " - " +
                     degreesText(DegMinToDeg(row.typed.longitude)) + ") / 15 + " +
                     term(row.typed.TD.value(), 5),
                 figure((last.event - date) * 24, 5), "h");
}

void addTimes(Working& working, const RiseSetFigures& figures, const RiseSetLabel& label,
              const std::string& name)
{
    if (!label.text.empty())
        working.resultStep(working.title,
                           *figures.found == 0 ? "no step of the search ends on the date"
                                               : "t to the second, cut to the minute",
                           label.text);
    if (!label.refined.empty()) {
        working.resultStep("Refined time",
                           figures.refined ? "local time of the refined search, " +
                                                 instantText(*figures.refined) + ", cut"
                                           : "no start leads to an event on the date",
                           label.refined);
        return;
    }
    if (figures.calendarEnds) {
        working.whyNone = "The calendar ends before the search does.";
        return;
    }
    if (!figures.found || !figures.refined) {
        working.whyNone = "Neither search finds a " + name + " on this date.";
        return;
    }
    working.step("Check by the refined search",
                 "its time is near enough to the one found not to be shown",
                 (*figures.found == 0 ? "none found" : "found: " + instantText(*figures.found)),
                 instantText(*figures.refined));
}

Working eventWorking(const EventWords& words, const RiseSetFigures& figures, const RowFigures& row,
                     const RiseSetResult& result)
{
    Working working{words.title, methodOf(words, RuleOf(figures.event)), {}};
    if (!figures.search.empty()) addLastStep(working, figures, row, result.date);
    addTimes(working, figures, result.*words.label, words.name);
    working.tables = {searchTable(figures, result.date)};
    if (!figures.refinement.empty())
        working.tables.push_back(refinementTable(figures, row.typed.TD));
    return working;
}

void addAzimuth(Working& working, const std::string& name, const AzimuthFigures& figures,
                const RiseSetLabel& label, bool isSetting)
{
    const std::string phi = degreesText(DegMinToDeg(figures.latitude));
    const std::string delta = degreesText(DegMinToDeg(figures.declination));
    working.step("Declination for " + name, "δ", "at " + instantText(figures.instant) + " UTC",
                 figure(DegMinToDeg(figures.declination), decimals), "°");
    if (!figures.azimuth) {
        working.step("Azimuth of " + name, "cos Z = sin δ / cos φ lies beyond ±1, or is 0",
                     "sin " + delta + " / cos " + phi, "none");
        return;
    }
    working.step(
        "Azimuth of " + name, isSetting ? "360° - arccos(sin δ / cos φ)" : "arccos(sin δ / cos φ)",
        std::string(isSetting ? "360° - " : "") + "arccos(sin " + delta + " / cos " + phi + ")",
        figure(*figures.azimuth, decimals), "°");
    working.resultStep("Azimuth of " + name, "rounded to 0.1°", label.text, "degrees true");
    if (!label.refined.empty())
        working.resultStep("Azimuth of " + name, "the same with φ as typed", label.refined,
                           "degrees true");
}

Working azimuthWorking(const RowFigures& row, const RiseSetResult& result)
{
    Working working{"Sun's azimuth",
                    {"The Sun's centre on the true horizon: no refraction, no dip; declination at "
                     "06:00 UTC of the date for the rising, at 18:00 UTC for the setting"},
                    {}};
    addAzimuth(working, "sunrise", row.azimuths[0], result.sunRiseAz, false);
    addAzimuth(working, "sunset", row.azimuths[1], result.sunSetAz, true);
    return working;
}

} // namespace

std::vector<Working> riseSetWorkings(const RiseSetTableRow& row)
{
    const RiseSetResult& result = *row.result;
    std::vector<Working> workings;
    if (result.figures) {
        const RowFigures& figures = *result.figures;
        workings.push_back(placeWorking(row, figures));
        for (std::size_t i = 0; i < eventWords.size(); ++i)
            workings.push_back(eventWorking(eventWords[i], figures.events[i], figures, result));
        workings.push_back(azimuthWorking(figures, result));
    } else {
        workings.push_back(
            {"Row " + std::to_string(row.number), {}, {}, {}, "The row in focus is not computed."});
    }
    if (result.phase) workings.push_back(ageWorking(result));
    return workings;
}

} // namespace korvel
