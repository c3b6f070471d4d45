// SPDX-License-Identifier: MIT
#include "forms/frmSky/SkyWorking.h"

#include "almanac/page_cells.h"
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

} // namespace

std::vector<Working> dayWorkings(const SkyDay& day)
{
    if (!day.ship) return {};
    Working working{"Times of the day",
                    {"The ship is run on and back along a rhumb line from the position that was "
                     "entered; an event is the instant at which the altitude of the body over her "
                     "position is the one wanted: sin h = sin φ sin δ + cos φ cos δ cos LHA",
                     "Twilight: h = -12°, -6°. Rise and set: h = HP - SD - 34' - dip, dip " +
                         altitudeText(day.ship->dip()) + ". Passage: LHA = 0"},
                    {}};
    PaperTable table{
        "", {"Event", "UTC", "GHA", "Dec", "Lat.", "Long.", "LHA", "h", "h wanted"}, {}};
    for (std::size_t i = 0; i < skyEvents; ++i) {
        const SkyEventLine& line = day.events[i];
        if (!line.utc) continue;
        const auto event = static_cast<SkyEvent>(i);
        const bool isPassage = event == SkyEvent::SunPassage || event == SkyEvent::MoonPassage;
        const Place place = almanac::Sky::nearRange(*line.utc).place(
            event >= SkyEvent::Moonrise ? Body::Moon : Body::Sun);
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
    working.tables.push_back(std::move(table));
    return {working};
}

std::vector<Working> roundWorkings(const SkyDay& day, const SkyStars& stars)
{
    if (!day.ship || !stars.utc || stars.roundSize() == 0) return {};
    Working working{"Preset altitudes of the round",
                    {"sin Hc = sin φ sin δ + cos φ cos δ cos LHA; from Hc the parallax is taken "
                     "off, refraction, dip and index error are put on: what the sextant shows",
                     "Position " + stars.where + ", " + stars.zulu + " UTC"},
                    {}};
    PaperTable table{
        "",
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
    return {working};
}

} // namespace korvel
