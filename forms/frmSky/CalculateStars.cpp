// SPDX-License-Identifier: MIT
#include "forms/frmSky/CalculateStars.h"

#include "almanac/magnitudes.h"
#include "almanac/sextant.h"
#include "app/reading/Format.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace korvel
{
namespace
{

using almanac::Body;
using almanac::BodyEntry;
using almanac::BodyKind;
using almanac::Direction;
using NavFunc113::DateTime;
using NavFunc113::Degrees;

const Field& minuteField()
{
    return SkyFields[placeOf(SkyBox::StarsAt)];
}

/// Bodies that stand in the list: what almanacs have by hand, Polaris among them.
bool isListed(const BodyEntry& entry)
{
    return entry.kind != BodyKind::Star || entry.number > 0 || entry.name == "Polaris";
}

/// Position angle of the Sun from the Moon, from the zenith clockwise as one looks up.
Degrees angleTowards(const Direction& sun, const Direction& moon)
{
    const Degrees aside = sun.azimuth - moon.azimuth;
    const double right = cos(sun.altitude) * sin(aside);
    const double up = sin(sun.altitude) * cos(moon.altitude) -
                      cos(sun.altitude) * sin(moon.altitude) * cos(aside);
    return NavFunc113::RadToDeg(NavFunc113::Radians(std::atan2(right, up)));
}

class Stars
{
public:
    Stars(const SkyDay& day, const SkyStarsAsked& asked) : m_day(day), m_asked(asked) {}

    SkyStars result()
    {
        if (!m_day.ship) return {};
        m_found.utc = minute();
        if (m_found.utc) findAll();
        m_found.notice = m_remarks.text();
        return m_found;
    }

private:
    const SkyShip& ship() const { return *m_day.ship; }

    std::optional<DateTime> minute()
    {
        const DateTime midnight = std::floor(ship().shipsTime(ship().day) + 0.5);
        const std::size_t faults = m_remarks.faults.size();
        const auto typed = readShipsTime(m_asked.at, minuteField(), midnight, m_remarks);
        if (m_remarks.faults.size() > faults) return std::nullopt;
        if (typed) return checked(ship().utcOf(*typed));
        const auto middle = m_asked.twilight == SkyTwilight::Morning ? m_day.middleOfMorning
                                                                     : m_day.middleOfEvening;
        if (!middle)
            m_remarks.fault("Stars at: there is no such twilight on this day, write a time");
        if (!middle) return std::nullopt;
        return std::round(*middle * 1440) / 1440;
    }

    std::optional<DateTime> checked(DateTime utc)
    {
        // A day to either side, for an evening that belongs to the night before.
        if (utc >= ship().day - 0.5 && utc <= ship().day + 1.5 && isWithinYears(utc)) return utc;
        m_remarks.fault("Stars at: not on the day that is shown");
        return std::nullopt;
    }

    static bool isWithinYears(DateTime utc)
    {
        try {
            almanac::requireAlmanacYears(utc);
            return true;
        } catch (const almanac::OutOfRange&) {
            return false;
        }
    }

    void findAll()
    {
        const DateTime utc = *m_found.utc;
        constexpr DateTime half = 0.5 / 1440;
        const almanac::Sky now(utc);
        const auto before = almanac::Sky::nearRange(utc - half);
        const auto after = almanac::Sky::nearRange(utc + half);
        m_found.time = timeOfDayText(ship().shipsTime(utc));
        m_found.zulu = minuteText(instantOf(utc));
        m_found.where = placeText(ship().at(utc));
        for (const BodyEntry& entry : almanac::bodies()) {
            const Direction seen = seenAt(now, entry.body);
            if (entry.body == Body::Sun) m_found.sun = seen;
            if (entry.name == "Polaris") tellPolaris(seen);
            if (!isListed(entry) || seen.altitude <= Degrees(0)) continue;
            m_found.bodies.push_back(bodyOf(entry.body, seen, now, before, after));
        }
        tellMoon(now);
        chooseRound();
        judgeLight();
    }

    Direction seenAt(const almanac::Sky& sky, Body body) const
    {
        return almanac::seenFrom(sky.place(body), ship().at(sky.instant())).direction;
    }

    SkyBody bodyOf(Body body, const Direction& seen, const almanac::Sky& now,
                   const almanac::Sky& before, const almanac::Sky& after) const
    {
        const Direction early = seenAt(before, body), late = seenAt(after, body);
        return {body,
                seen,
                almanac::magnitudeOf(body, now),
                late.altitude - early.altitude,
                NavFunc113::WithinHalfTurn(late.azimuth - early.azimuth),
                preset(now.place(body), body),
                false};
    }

    /// Of the lower limb for Sun and Moon.
    Degrees preset(const almanac::Place& place, Body body) const
    {
        const auto sextant = almanac::sextantAltitude(place, body, almanac::Limb::Lower,
                                                      meanAir(ship().eye), ship().at(*m_found.utc));
        return sextant.value_or(Degrees()) + ship().indexError; // a body that is seen has one
    }

    void tellPolaris(const Direction& seen)
    {
        if (seen.altitude <= Degrees(0)) {
            m_found.polaris = "below the horizon";
            return;
        }
        m_found.polaris = "azimuth " + courseText(seen.azimuth, "000.0") + "°, altitude " +
                          altitudeText(seen.altitude);
    }

    void tellMoon(const almanac::Sky& now)
    {
        m_found.moonLit = almanac::moonPhaseAt(now.instant()).lit;
        for (const SkyBody& each : m_found.bodies)
            if (each.body == Body::Moon)
                m_found.moonBrightLimb = angleTowards(m_found.sun, each.seen);
    }

    std::vector<almanac::Glare> glares() const
    {
        std::vector<almanac::Glare> all{{m_found.sun, almanac::reachOfSun}};
        for (const SkyBody& each : m_found.bodies)
            if (each.body == Body::Moon)
                all.push_back({each.seen, almanac::reachOfMoon(m_found.moonLit)});
        return all;
    }

    void chooseRound()
    {
        std::vector<almanac::RoundBody> all;
        for (const SkyBody& each : m_found.bodies)
            if (each.magnitude) all.push_back({each.body, each.seen, *each.magnitude});
        const auto round = almanac::bestRound(almanac::fitForRound(all, glares()), m_asked.count);
        for (SkyBody& each : m_found.bodies)
            each.isInRound = std::ranges::any_of(
                round, [&](const almanac::RoundBody& chosen) { return chosen.body == each.body; });
        std::ranges::sort(m_found.bodies, {}, [](const SkyBody& each) {
            return std::pair(!each.isInRound, each.seen.azimuth);
        });
        for (const almanac::RoundBody& each : round) {
            m_found.round += m_found.round.empty() ? "" : ", ";
            m_found.round += almanac::entryOf(each.body).name;
        }
        if (round.size() < m_asked.count)
            m_remarks.warn("Only " + std::to_string(round.size()) +
                           " bodies serve for a round of " + std::to_string(m_asked.count));
        judgeRound(round);
    }

    /// The error of the position against that of one sight.
    void judgeRound(const std::vector<almanac::RoundBody>& round)
    {
        const double square = almanac::errorOfRound(round);
        m_found.quality = Format(std::sqrt(square), "0.0") + " × the error of a sight";
        constexpr double poor = 9;
        if (square > poor)
            m_remarks.warn("The bearings of this round lie too close together: the fix is poor");
    }

    void judgeLight()
    {
        const Degrees sun = m_found.sun.altitude;
        if (sun > Degrees(-3))
            m_remarks.warn("The Sun is " + altitudeText(sun) + " high: stars are hardly seen");
        else if (sun < Degrees(-13))
            m_remarks.warn("The Sun is " + altitudeText(-sun) +
                           " below the horizon, which is dark");
    }

    const SkyDay& m_day;
    const SkyStarsAsked& m_asked;
    Remarks m_remarks;
    SkyStars m_found;
};

} // namespace

SkyBodyTexts textsOf(const SkyBody& body)
{
    const BodyEntry& entry = almanac::entryOf(body.body);
    SkyBodyTexts texts;
    texts.mark = body.isInRound ? "●" : "";
    texts.number = entry.number > 0 ? std::to_string(entry.number) : "";
    texts.name = entry.name;
    texts.magnitude = body.magnitude ? Format(*body.magnitude, "0.0") : "";
    texts.altitude = altitudeText(body.seen.altitude);
    texts.azimuth = courseText(body.seen.azimuth, "000.0");
    texts.altitudeChange = Format(body.altitudeChange * 60, "+0.0;-0.0");
    texts.azimuthChange = Format(body.azimuthChange, "+0.00;-0.00");
    texts.preset = presetText(body.sextant);
    return texts;
}

std::size_t SkyStars::roundSize() const
{
    return static_cast<std::size_t>(std::ranges::count_if(bodies, &SkyBody::isInRound));
}

SkyStars CalculateStars(const SkyDay& day, const SkyStarsAsked& asked)
{
    return Stars(day, asked).result();
}

PlannedSights plannedRound(const SkyStars& stars)
{
    PlannedSights sights;
    for (const SkyBody& each : stars.bodies)
        if (each.isInRound)
            sights.push_back({std::string(almanac::entryOf(each.body).name), instantOf(*stars.utc),
                              each.sextant, each.seen.azimuth});
    return sights;
}

} // namespace korvel
