// SPDX-License-Identifier: MIT
#include "forms/frmSky/CalculateDay.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace korvel
{
namespace
{

using almanac::EventTime;
using NavFunc113::DateTime;
using NavFunc113::Degrees;

/// Why there is no time.
std::string reasonOf(EventTime::Kind kind, SkyEvent event)
{
    const bool isMoon = event >= SkyEvent::Moonrise;
    const bool isTwilight = event == SkyEvent::NauticalDawn || event == SkyEvent::CivilDawn ||
                            event == SkyEvent::CivilDusk || event == SkyEvent::NauticalDusk;
    const std::string body = isMoon ? "the Moon" : "the Sun";
    switch (kind) {
    case EventTime::Kind::Above:
        return body + " is above the horizon all day";
    case EventTime::Kind::Below:
        return isTwilight ? "darker than that all day" : body + " is below the horizon all day";
    case EventTime::Kind::Twilight:
        return "lighter than that all night";
    default:
        return "not on this day";
    }
}

bool isPassage(SkyEvent event)
{
    return event == SkyEvent::SunPassage || event == SkyEvent::MoonPassage;
}

class Day
{
public:
    Day(const SkyInput& input, SkyPlaces& places) : m_input(input), m_places(places) {}

    SkyDay result()
    {
        const bool isUntouched = std::ranges::all_of(
            m_input.txtSky, [](const std::string& box) { return isBlank(box); });
        if (isUntouched) return {};
        m_day.ship = readShip(m_input, m_remarks);
        if (m_day.ship) findAll();
        m_day.notice = m_remarks.text();
        return m_day;
    }

private:
    const SkyShip& ship() const { return *m_day.ship; }

    void findAll()
    {
        const DateTime from = ship().day, to = from + 1;
        const auto sun =
            almanac::sunDay(m_places.sun(from, to), ship().track(), from, to, ship().dip());
        const auto moon =
            almanac::moonDay(m_places.moon(from, to), ship().track(), from, to, ship().dip());
        tell(SkyEvent::NauticalDawn, sun.nautical.up);
        tell(SkyEvent::CivilDawn, sun.civil.up);
        tell(SkyEvent::Sunrise, sun.rise.up);
        tell(SkyEvent::Sunset, sun.rise.down);
        tell(SkyEvent::CivilDusk, sun.civil.down);
        tell(SkyEvent::NauticalDusk, sun.nautical.down);
        tell(SkyEvent::Moonrise, moon.rise.up);
        tell(SkyEvent::Moonset, moon.rise.down);
        tell(SkyEvent::SunPassage, sun.passage);
        tell(SkyEvent::MoonPassage, moon.passage);
        tellAnswers(sun);
        tellMoon();
    }

    SkyEventLine& line(SkyEvent event)
    {
        SkyEventLine& found = m_day.events[static_cast<std::size_t>(event)];
        found.name = skyEventNames[static_cast<std::size_t>(event)];
        return found;
    }

    void tell(SkyEvent event, const EventTime& time)
    {
        if (time.kind == EventTime::Kind::At) return tellAt(event, time.instant);
        line(event).ships = "none";
        line(event).where = reasonOf(time.kind, event);
    }

    void tell(SkyEvent event, const std::optional<almanac::UpperPassage>& passage)
    {
        if (!passage) return tell(event, EventTime{});
        tellAt(event, passage->instant);
        line(event).altitude = altitudeText(passage->direction.altitude);
        if (passage->direction.altitude < Degrees(0))
            m_remarks.warn(line(event).name + ": below the horizon");
    }

    void tellAt(SkyEvent event, DateTime utc)
    {
        const DateTime from = ship().day, to = from + 1;
        const auto& places =
            event >= SkyEvent::Moonrise ? m_places.moon(from, to) : m_places.sun(from, to);
        const almanac::Observer observer = ship().at(utc);
        SkyEventLine& told = line(event);
        told.utc = utc;
        // A time that rounds to the next day's midnight is of this day still.
        told.ships = timeOfDayText(ship().shipsTime(utc));
        if (told.ships == "00:00" && utc - from > 0.5) told.ships = "24:00";
        told.zulu = dayAndTimeText(utc);
        told.bearing =
            courseText(almanac::computedDirection(places.at(utc), observer).azimuth, "000.0");
        if (isPassage(event))
            told.bearing = courseText(nearestPoint(places, utc, observer), "000.0");
        told.where = placeText(observer);
    }

    /// North or south: a passage found to a tenth of a second is not to be shown as 359.9.
    static Degrees nearestPoint(const almanac::HourlyPlaces& places, DateTime utc,
                                const almanac::Observer& observer)
    {
        const Degrees bearing = almanac::computedDirection(places.at(utc), observer).azimuth;
        return cos(bearing) > 0 ? Degrees(0) : Degrees(180);
    }

    void tellAnswers(const almanac::SunDay& sun)
    {
        m_day.date =
            dayText(ship().shipsTime(ship().day)) + ", TD " + Format(ship().TD, "+0.##;-0.##");
        m_day.noon = m_day.event(SkyEvent::SunPassage).ships;
        m_day.morning = spanOfStars(SkyEvent::NauticalDawn, SkyEvent::CivilDawn);
        m_day.evening = spanOfStars(SkyEvent::CivilDusk, SkyEvent::NauticalDusk);
        m_day.middleOfMorning = middleOf(sun.nautical.up, sun.civil.up);
        m_day.middleOfEvening = middleOf(sun.civil.down, sun.nautical.down);
    }

    std::string spanOfStars(SkyEvent first, SkyEvent last) const
    {
        const SkyEventLine &from = m_day.event(first), &to = m_day.event(last);
        if (!from.utc && !to.utc) return "none";
        std::string text = from.utc ? from.ships : "..";
        text += " – ";
        text += to.utc ? to.ships : "..";
        return text;
    }

    static std::optional<DateTime> middleOf(const EventTime& a, const EventTime& b)
    {
        const bool isA = a.kind == EventTime::Kind::At, isB = b.kind == EventTime::Kind::At;
        if (isA && isB) return (a.instant + b.instant) / 2;
        if (isA) return a.instant;
        if (isB) return b.instant;
        return std::nullopt;
    }

    /// Of noon, ship's time.
    void tellMoon()
    {
        const auto moon = almanac::moonPhaseAt(ship().day + 0.5);
        m_day.moonAge = Format(moon.age, "0.0") + " days";
        m_day.moonPhase = phaseName(moon.elongation);
        m_day.moonLit = Format(100 * moon.lit, "0") + " %";
    }

    const SkyInput& m_input;
    SkyPlaces& m_places;
    Remarks m_remarks;
    SkyDay m_day;
};

} // namespace

void SkyPlaces::make(DateTime from, DateTime to)
{
    if (m_sun && m_from == from && m_to == to) return;
    const auto skies = almanac::hourlySkies(from, to);
    m_sun.emplace(almanac::Body::Sun, skies);
    m_moon.emplace(almanac::Body::Moon, skies);
    m_from = from;
    m_to = to;
}

SkyDay CalculateDay(const SkyInput& input, SkyPlaces& places)
{
    return Day(input, places).result();
}

std::string phaseName(Degrees elongation)
{
    constexpr std::array names{"new Moon",  "waxing crescent", "first quarter", "waxing gibbous",
                               "full Moon", "waning gibbous",  "last quarter",  "waning crescent"};
    constexpr double width = 4;
    const double quarters = elongation.value() / 90;
    const double nearest = std::round(quarters);
    if (std::fabs(quarters - nearest) * 90 <= width)
        return names[static_cast<std::size_t>(nearest) % 4 * 2];
    return names[static_cast<std::size_t>(std::floor(quarters)) % 4 * 2 + 1];
}

} // namespace korvel
