// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanSun.h"

#include "almanac/events.h"
#include "app/reading/Format.h"
#include "navlib/angles.h"
#include "navlib/arithmetic_error.h"

namespace korvel
{
namespace
{

using NavFunc113::DateTime;

class Day
{
public:
    Day(const NavFunc113::GeoPoint& at, Instant utc, Span zone)
        : m_zone(zone), m_from(std::chrono::floor<std::chrono::days>(utc + zone) - zone),
          m_observer{DegMinToDeg(at.lat), DegMinToDeg(at.longitude), {}},
          m_sun(almanac::Body::Sun, dateTimeOf(m_from), dateTimeOf(m_from) + 1)
    {
    }

    struct Ends {
        std::string up, down;
    };
    Ends endsOf(const almanac::AltitudeWanted& wanted) const
    {
        Ends ends;
        const DateTime from = dateTimeOf(m_from);
        for (const auto& crossing :
             almanac::crossings(m_sun, almanac::standingAt(m_observer), wanted, from, from + 1)) {
            std::string& end = crossing.rising ? ends.up : ends.down;
            if (end.empty()) end = timeOfDay(crossing.instant);
        }
        return ends;
    }

    /// Where nothing crosses the horizon: is the Sun above it?
    bool isUp() const
    {
        const DateTime noon = dateTimeOf(m_from) + 0.5;
        const auto direction = almanac::computedDirection(m_sun.at(noon), m_observer);
        return direction.altitude > NavFunc113::Degrees(0);
    }

private:
    std::string timeOfDay(DateTime ut) const
    {
        return Format(dateTimeOf(nearestMinute(instantOf(ut) + m_zone)), "hh:mm");
    }

    Span m_zone;
    Instant m_from;
    almanac::Observer m_observer;
    almanac::HourlyPlaces m_sun;
};

std::string betweenEnds(const char* name, const Day::Ends& ends)
{
    if (ends.up.empty() && ends.down.empty()) return std::string(name) + " all day or none";
    return std::string(name) + " " + (ends.up.empty() ? "-" : ends.up) + " to " +
           (ends.down.empty() ? "-" : ends.down);
}

} // namespace

SunOfDay sunOfDay(const NavFunc113::GeoPoint& at, Instant utc, Span zone)
{
    SunOfDay texts;
    try {
        const Day day(at, utc, zone);
        const Day::Ends sun = day.endsOf(almanac::upperLimbOnHorizon());
        if (sun.up.empty() && sun.down.empty())
            texts.riseAndSet = day.isUp() ? "does not set" : "does not rise";
        else
            texts.riseAndSet = (sun.up.empty() ? "does not rise" : "rises " + sun.up) + ", " +
                               (sun.down.empty() ? "does not set" : "sets " + sun.down);
        texts.twilight = betweenEnds("civil", day.endsOf(almanac::civilTwilight())) + ", " +
                         betweenEnds("nautical", day.endsOf(almanac::nauticalTwilight()));
    } catch (const NavFunc113::ArithmeticError&) {
        return {}; // the sky's theories end
    }
    return texts;
}

} // namespace korvel
