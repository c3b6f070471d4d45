// SPDX-License-Identifier: MIT
#include "forms/frmSky/SkyWorking.h"

#include "almanac/page_cells.h"
#include "almanac/star_round.h"
#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "navlib/angles.h"

#include <cmath>

namespace korvel
{
namespace
{

using almanac::Body;
using almanac::Place;
using NavFunc113::Degrees;

Degrees hourAngle(const Place& place, const almanac::Observer& there)
{
    const double turned = (place.gha + there.longitude).value();
    return Degrees(turned - 360 * std::floor(turned / 360));
}

std::string minutesText(double minutes)
{
    return Format(minutes, "+0.0;-0.0");
}

Body bodyOf(SkyEvent event)
{
    return event >= SkyEvent::Moonrise ? Body::Moon : Body::Sun;
}

std::string secondText(NavFunc113::DateTime utc)
{
    return Format(utc, "yyyy/mm/dd hh:mm:ss");
}

std::string clockText(const SkyDay& day)
{
    return "UTC " + Format(day.ship->TD, "+ 0.0##;- 0.0##") + " h";
}

/// The altitude of the centre at which the event is.
Degrees wantedAt(SkyEvent event, const Place& place, Degrees dip)
{
    switch (event) {
    case SkyEvent::NauticalDawn:
    case SkyEvent::NauticalDusk:
        return almanac::nauticalTwilight()(place);
    case SkyEvent::CivilDawn:
    case SkyEvent::CivilDusk:
        return almanac::civilTwilight()(place);
    default:
        return almanac::upperLimbOnHorizon(dip)(place);
    }
}

PaperTable altitudesOfDay(const SkyDay& day)
{
    PaperTable table{"To the second",
                     {"Event", "UTC", "GHA", "Dec", "Lat.", "Long.", "LHA", "h", "h wanted"},
                     {}};
    for (std::size_t i = 0; i < skyEvents; ++i) {
        const SkyEventLine& line = day.events[i];
        if (!line.utc) continue;
        const auto event = static_cast<SkyEvent>(i);
        const bool isPassage = event == SkyEvent::SunPassage || event == SkyEvent::MoonPassage;
        const Place place = almanac::Sky::nearRange(*line.utc).place(bodyOf(event));
        const almanac::Observer there = day.ship->at(*line.utc);
        table.rows.push_back(
            {line.name, Format(*line.utc, "hh:mm:ss"), almanac::turnCell(place.gha),
             almanac::declinationCell(place.declination),
             positionForCopy(DegToDegMin(there.latitude), Axis::Latitude),
             positionForCopy(DegToDegMin(there.longitude), Axis::Longitude),
             almanac::turnCell(hourAngle(place, there)),
             altitudeText(almanac::computedDirection(place, there).altitude),
             isPassage ? "" : altitudeText(wantedAt(event, place, day.ship->dip()))});
    }
    return table;
}

/// What the window makes of the instants.
PaperTable shownTimes(const SkyDay& day)
{
    PaperTable table{"To the nearest minute; Zn from cos δ sin LHA and cos φ sin δ - sin φ cos δ "
                     "cos LHA",
                     {"Event", "UTC", "Shown", "Ship's time", "Zn °", "Altitude", "None because"},
                     {}};
    for (const SkyEventLine& line : day.events)
        table.rows.push_back({line.name, line.utc ? Format(*line.utc, "hh:mm:ss") : "", line.zulu,
                              line.ships, line.bearing, line.altitude, line.utc ? "" : line.where});
    return table;
}

/// Of noon, ship's time.
Working moonWorking(const SkyDay& day)
{
    const NavFunc113::DateTime noon = day.ship->day + 0.5;
    const almanac::MoonPhase moon = almanac::moonPhaseAt(noon);
    Working working{
        "The Moon at noon, ship's time",
        {"Elongation: ecliptic longitude of the Moon less that of the Sun. New Moon, "
         "first quarter, full Moon and last quarter are so called within 4° of 0°, 90°, "
         "180°, 270°",
         "Age: since the instant before at which the elongation was 0. Lit part: "
         "(1 + cos i) / 2, i the angle between Sun and earth as seen from the Moon"},
        {}};
    working.step("Elongation", "apparent places", "at " + secondText(noon) + " UTC",
                 figure(moon.elongation, 2), "°");
    working.resultStep("Phase", "elongation " + figure(moon.elongation, 2) + "°", day.moonPhase);
    working.resultStep("Age", "since " + minuteText(instantOf(noon - moon.age)) + " UTC",
                       day.moonAge);
    const Degrees angle = RadToDeg(NavFunc113::Radians(std::acos(2 * moon.lit - 1)));
    working.resultStep("Lit", "(1 + cos " + figure(angle, 2) + "°) / 2", day.moonLit);
    return working;
}

} // namespace

std::vector<Working> dayWorkings(const SkyDay& day)
{
    if (!day.ship) return {};
    Working working{"Times of the day",
                    {"The ship is run on and back along a rhumb line from the position that was "
                     "entered; an event is the instant at which the altitude of the body over her "
                     "position is the one wanted: sin h = sin φ sin δ + cos φ cos δ cos LHA",
                     "Twilight: h = -12°, -6°. Rise and set: h = HP - SD - 34' - dip, dip " +
                         altitudeText(day.ship->dip()) + ". Passage: LHA = 0",
                     "Ship's time = " + clockText(day)},
                    {}};
    working.resultStep("Day and TD", "from 0 to 24 hours of ship's time", day.date);
    working.resultStep("Stars in the morning", "from nautical to civil twilight", day.morning);
    working.resultStep("Stars in the evening", "from civil to nautical twilight", day.evening);
    working.resultStep("Sun's passage", "LHA = 0", day.noon);
    working.tables = {altitudesOfDay(day), shownTimes(day)};
    return {working, moonWorking(day)};
}

namespace
{

/// The bodies of the round, and where a hand computer gets them from.
Working presetWorking(const SkyDay& day, const SkyStars& stars)
{
    Working working{"Preset altitudes of the round",
                    {"sin Hc = sin φ sin δ + cos φ cos δ cos LHA; from Hc the parallax is taken "
                     "off, refraction, dip and index error are put on: what the sextant shows"},
                    {}};
    PaperTable table{
        "From the almanac to the sextant",
        {"Body", "GHA", "Dec", "LHA", "Hc", "Zn °", "Par. ′", "Refr. ′", "Dip ′", "I.E. ′", "Hs"},
        {}};
    const almanac::Sky sky(*stars.utc);
    const almanac::Observer there = day.ship->at(*stars.utc);
    for (const SkyBody& each : stars.bodies) {
        if (!each.isInRound) continue;
        const Place place = sky.place(each.body);
        const almanac::Direction computed = almanac::computedDirection(place, there);
        const auto terms = almanac::correctSextant(
            place, each.body, each.sextant - day.ship->indexError, almanac::Limb::Lower,
            meanAir(day.ship->eye), almanac::SightPlace{there, computed.azimuth});
        table.rows.push_back(
            {std::string(almanac::entryOf(each.body).name), almanac::turnCell(place.gha),
             almanac::declinationCell(place.declination),
             almanac::turnCell(hourAngle(place, there)), altitudeText(computed.altitude),
             courseText(computed.azimuth, "000.0"), minutesText(-terms.parallax - terms.oblateness),
             minutesText(-terms.refraction), minutesText(-terms.dip),
             minutesText(day.ship->indexError.value() * 60), altitudeText(each.sextant)});
    }
    working.tables.push_back(std::move(table));
    return working;
}

Working errorWorking(const SkyStars& stars)
{
    Working working{"Error of the fix of the round",
                    {"Least squares for north, east and an error common to all sights. A sight of "
                     "a body of magnitude m has the error σ = 1 + (m - 0.5) / 4, from 1 to 2, and "
                     "the weight w = 1 / σ²; [ ] is the sum over the bodies",
                     "a = [w cos² Zn] - [w cos Zn]² / [w], c = [w sin² Zn] - [w sin Zn]² / [w], "
                     "b = [w cos Zn sin Zn] - [w cos Zn] [w sin Zn] / [w]"},
                    {}};
    PaperTable table{"The bodies", {"Body", "Mag.", "σ", "w", "Zn °", "w cos Zn", "w sin Zn"}, {}};
    std::vector<almanac::RoundBody> round;
    for (const SkyBody& each : stars.bodies) {
        if (!each.isInRound || !each.magnitude) continue;
        round.push_back({each.body, each.seen, *each.magnitude});
        const double sigma = almanac::errorByMagnitude(*each.magnitude);
        const double weight = 1 / (sigma * sigma);
        table.rows.push_back({std::string(almanac::entryOf(each.body).name),
                              figure(*each.magnitude, 2), figure(sigma, 3), figure(weight, 3),
                              courseText(each.seen.azimuth, "000.0"),
                              figure(weight * cos(each.seen.azimuth), 3),
                              figure(weight * sin(each.seen.azimuth), 3)});
    }
    const almanac::RoundNormals sums = almanac::normalsOfRound(round);
    const std::string a = figure(sums.northNorth, 3), b = term(sums.northEast, 3),
                      c = figure(sums.eastEast, 3);
    working.resultStep("Error of the fix",
                       "√((" + a + " + " + c + ") / (" + a + " × " + c + " - " + b + "²))",
                       stars.quality);
    working.tables.push_back(std::move(table));
    return working;
}

Working minuteWorking(const SkyDay& day, const SkyStars& stars)
{
    Working working{"Minute and position", {"Ship's time = " + clockText(day)}, {}};
    working.resultStep("UTC of the stars",
                       "the minute that was entered, or half way between nautical and civil "
                       "twilight",
                       stars.zulu);
    working.resultStep("Ship's time", stars.zulu + " " + clockText(day).substr(4), stars.time);
    working.resultStep("Position then", "the ship run along a rhumb line to " + stars.zulu,
                       stars.where);
    const Place polaris =
        almanac::Sky(*stars.utc).place(almanac::findBody("Polaris").value_or(Body::Sun));
    const almanac::Observer there = day.ship->at(*stars.utc);
    working.resultStep("Polaris",
                       "GHA " + almanac::turnCell(polaris.gha) + ", Dec " +
                           almanac::declinationCell(polaris.declination) + ", LHA " +
                           almanac::turnCell(hourAngle(polaris, there)),
                       stars.polaris);
    return working;
}

PaperTable likelyTable(const UnknownResult& found)
{
    PaperTable table{"Distance = √((altitude off / 0.5°)² + (aside / 2°)²), aside the great circle "
                     "across the bearing: 2 √(cos h cos H) sin (bearing off / 2)",
                     {"Body", "GHA", "Dec", "LHA", "Altitude", "Zn °", "Off", "Off", "Distance"},
                     {}};
    const almanac::Sky sky(*found.utc);
    const almanac::Observer there = found.ship->at(*found.utc);
    for (std::size_t i = 0; i < found.likely.size(); ++i) {
        const almanac::LikelyBody& each = found.likely[i];
        const Place place = sky.place(each.body);
        table.rows.push_back(
            {found.lines[i].name, almanac::turnCell(place.gha),
             almanac::declinationCell(place.declination),
             almanac::turnCell(hourAngle(place, there)), altitudeText(each.direction.altitude),
             courseText(each.direction.azimuth, "000.0"), found.lines[i].altitudeOff,
             found.lines[i].bearingOff, figure(each.apart, 2)});
    }
    return table;
}

} // namespace

std::vector<Working> starsWorkings(const SkyDay& day, const SkyStars& stars)
{
    if (!stars.utc) return {};
    std::vector<Working> workings{minuteWorking(day, stars)};
    if (stars.roundSize() > 0) workings.push_back(presetWorking(day, stars));
    if (!stars.quality.empty()) workings.push_back(errorWorking(stars));
    return workings;
}

std::vector<Working> unknownWorkings(const UnknownResult& found)
{
    if (!found.ship) return {};
    Working working{"The body that was seen",
                    {"The altitude by the sextant less index error, dip and refraction in mean air "
                     "(10 °C, 1010 hPa) is held against the altitude of each body as seen from the "
                     "ship: sin h = sin φ sin δ + cos φ cos δ cos LHA, the Moon's less parallax"},
                    {}};
    working.resultStep("UTC", "ship's time less TD", found.zulu);
    working.resultStep("Position then", "the ship run along a rhumb line to " + found.zulu,
                       found.where);
    const double refraction = found.terms.refraction + found.terms.temperature +
                              found.terms.pressure + found.terms.airSea;
    working.resultStep("Altitude seen",
                       altitudeText(found.shown) + " " +
                           minutesText(-found.ship->indexError.value() * 60) + "' " +
                           minutesText(found.terms.dip) + "' " + minutesText(refraction) + "'",
                       found.observedText);
    working.resultStep("Likeliest", "the least distance below", found.answer);
    working.tables = {likelyTable(found)};
    return {working};
}

} // namespace korvel
