// SPDX-License-Identifier: MIT
#include "navlib/sky/rise_set.h"

#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace NavFunc113
{
namespace
{

constexpr Degrees sunEventAltitude(-0.9033);
constexpr Degrees moonEventAltitude(0);
constexpr double rising = -1;
constexpr double setting = 1;

struct Triangle {
    double sineProduct;
    double cosineProduct;
};

Triangle triangleOf(Degrees latitude, DegMin declination)
{
    const Radians phi = DegToRad(latitude);
    const Radians delta = DegToRad(DegMinToDeg(declination));
    return {sin(phi) * sin(delta), cos(phi) * cos(delta)};
}

DateTime dayCount(double wholeDays, Degrees hourAngle, Hours TD, Degrees hourAngleOffset,
                  DegMin longitude)
{
    return wholeDays +
           DaysOfHours(HoursOfArc(hourAngle - hourAngleOffset - DegMinToDeg(longitude)) + TD);
}

Degrees sunEventHourAngle(DegMin latitude, DegMin declination)
{
    const auto [sineProduct, cosineProduct] = triangleOf(DegMinToDeg(latitude), declination);
    return RadToDeg(ArcCos(Quotient(sin(sunEventAltitude) - sineProduct, cosineProduct)));
}

Degrees moonEventHourAngle(DegMin latitude, DegMin declination)
{
    // Refraction and the rim raise the Moon about as much as its parallax lowers it, so its centre
    // on the horizon serves.
    const auto [sineProduct, cosineProduct] = triangleOf(DegMinToDeg(latitude), declination);
    return RadToDeg(ArcCos(Quotient(-sineProduct, cosineProduct)));
}

/// What the search of one event needs of its body.
struct Event {
    BodyPlace (*place)(DateTime instant);
    Degrees (*hourAngle)(DegMin latitude, DegMin declination);
    RiseSetRule rule;
};

constexpr Degrees sunMotion(360);
constexpr Degrees moonMotion(347.8); ///< mean; it varies by about 3 degrees
constexpr Event sunRise{SunPlace, sunEventHourAngle, {sunEventAltitude, rising, 1, sunMotion}};
constexpr Event sunSet{SunPlace, sunEventHourAngle, {sunEventAltitude, setting, 1, sunMotion}};
constexpr Event moonRise{MoonPlace, moonEventHourAngle, {moonEventAltitude, rising, 3, moonMotion}};
constexpr Event moonSet{MoonPlace, moonEventHourAngle, {moonEventAltitude, setting, 2, moonMotion}};

const Event& eventOf(RiseSet event)
{
    switch (event) {
    case RiseSet::SunRise:
        return sunRise;
    case RiseSet::SunSet:
        return sunSet;
    case RiseSet::MoonRise:
        return moonRise;
    case RiseSet::MoonSet:
        break;
    }
    return moonSet;
}

DateTime hourOf(const Event& event, Hours TD, Degrees hourAngleOffset, DegMin declination,
                DegMin latitude, DegMin longitude)
{
    return dayCount(event.rule.wholeDays, event.rule.side * event.hourAngle(latitude, declination),
                    TD, hourAngleOffset, longitude);
}

/// A place, and what the search is for there; where its steps go.
struct Quest {
    const Event& event;
    Hours TD;
    DegMin latitude;
    DegMin longitude;
    std::vector<EventStep>& steps;
};

DateTime eventAfter(const Quest& quest, int i, DateTime date, DateTime instant)
{
    const Event& event = quest.event;
    const BodyPlace body = event.place(instant);
    quest.steps.push_back({i, instant, body, std::nullopt, 0});
    EventStep& step = quest.steps.back();
    step.hourAngle = event.hourAngle(quest.latitude, body.declination);
    step.event = i + date +
                 dayCount(event.rule.wholeDays, event.rule.side * *step.hourAngle, quest.TD,
                          body.hourAngleOffset, quest.longitude) -
                 1;
    return step.event;
}

DateTime search(const Quest& quest, DateTime date)
{
    for (int i = -1; i <= 1; ++i) {
        // TD enters the first estimate with the other sign than the second, on purpose: it only
        // says where the iteration starts.
        DateTime found = eventAfter(quest, i, date, i + date + 0.5 + DaysOfHours(quest.TD));
        found = eventAfter(quest, i, date, found - DaysOfHours(quest.TD));
        if (std::floor(found) == date) return found;
    }
    return 0;
}

/// From an instant to the event nearest to it, by the body's place at that instant. Only the
/// difference of two hour angles is reduced, so no jump of the offset can carry it into another
/// day.
struct StepToEvent {
    double days;
    bool isMet; ///< false: the body does not meet the altitude at that declination, and the step
                ///< leads to where it comes nearest, on the meridian
};

StepToEvent stepToEvent(const Quest& quest, int round, DateTime instant)
{
    const Event& event = quest.event;
    const BodyPlace body = event.place(instant);
    const auto [sineProduct, cosineProduct] =
        triangleOf(DegMinToDeg(quest.latitude), body.declination);
    const double cosine = (sin(event.rule.altitude) - sineProduct) / cosineProduct;
    const bool isMet = std::fabs(cosine) <= 1;
    const Degrees hourAngle = (instant - std::floor(instant)) * fullTurn + body.hourAngleOffset +
                              DegMinToDeg(quest.longitude);
    const Degrees eventHourAngle = RadToDeg(Radians(std::acos(std::clamp(cosine, -1.0, 1.0))));
    const Degrees atEvent = event.rule.side * eventHourAngle;
    const double days = WithinHalfTurn(atEvent - hourAngle) / event.rule.motionInADay;
    quest.steps.push_back(
        {round, instant, body, std::nullopt, instant + days + DaysOfHours(quest.TD)});
    if (isMet) quest.steps.back().hourAngle = eventHourAngle;
    return {days, isMet};
}

std::optional<DateTime> iterate(const Quest& quest, int round, DateTime start)
{
    constexpr double halfSecond = 0.5 / 86400;
    DateTime instant = start;
    for (int pass = 0; pass < 12; ++pass) {
        const auto [days, isMet] = stepToEvent(quest, round, instant);
        instant += days;
        if (std::fabs(days) >= halfSecond) continue;
        if (!isMet) break;
        return instant;
    }
    return std::nullopt;
}

std::optional<DateTime> refine(const Quest& quest, DateTime date, DateTime found)
{
    constexpr double minute = 1.0 / 1440;
    if (found != 0) {
        if (const auto instant = iterate(quest, 0, found - DaysOfHours(quest.TD))) {
            const DateTime local = *instant + DaysOfHours(quest.TD);
            if (std::fabs(local - found) < minute && std::floor(local) == date) return local;
        }
    }
    // From both ends and the middle of the day: whatever falls on it is reached from one of them.
    std::optional<DateTime> earliest;
    for (int round : {1, 2, 3}) {
        const double start = 0.5 * (round - 1);
        const auto instant = iterate(quest, round, date + start - DaysOfHours(quest.TD));
        if (!instant) continue;
        const DateTime local = *instant + DaysOfHours(quest.TD);
        if (std::floor(local) == date && (!earliest || local < *earliest)) earliest = local;
    }
    return earliest;
}

std::optional<DateTime> refined(RiseSet event, DateTime date, Hours TD, DegMin latitude,
                                DegMin longitude, DateTime found)
{
    std::vector<EventStep> unheard;
    return RefineRiseSet(event, date, TD, latitude, longitude, found, unheard);
}

DateTime searched(RiseSet event, DateTime date, Hours TD, DegMin& latitude, DegMin longitude)
{
    std::vector<EventStep> unheard;
    return SearchRiseSet(event, date, TD, latitude, longitude, unheard);
}

} // namespace

DateTime SunRiseHour(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                     DegMin longitude)
{
    return hourOf(sunRise, TD, hourAngleOffset, declination, latitude, longitude);
}

DateTime SunSetHour(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                    DegMin longitude)
{
    return hourOf(sunSet, TD, hourAngleOffset, declination, latitude, longitude);
}

DateTime MoonRiseHour(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                      DegMin longitude)
{
    return hourOf(moonRise, TD, hourAngleOffset, declination, latitude, longitude);
}

DateTime MoonSetHour(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                     DegMin longitude)
{
    return hourOf(moonSet, TD, hourAngleOffset, declination, latitude, longitude);
}

Degrees SunRiseAzimuth(DegMin latitude, DegMin declination)
{
    const Radians phi = DegToRad(DegMinToDeg(latitude));
    const Radians delta = DegToRad(DegMinToDeg(declination));
    return RadToDeg(ArcCos(Quotient(sin(delta), cos(phi))));
}

Degrees SunSetAzimuth(DegMin latitude, DegMin declination)
{
    return fullTurn - SunRiseAzimuth(latitude, declination);
}

DateTime SunRiseSearch(DateTime date, Hours TD, DegMin& latitude, DegMin longitude)
{
    return searched(RiseSet::SunRise, date, TD, latitude, longitude);
}

DateTime SunSetSearch(DateTime date, Hours TD, DegMin& latitude, DegMin longitude)
{
    return searched(RiseSet::SunSet, date, TD, latitude, longitude);
}

DateTime MoonRiseSearch(DateTime date, Hours TD, DegMin& latitude, DegMin longitude)
{
    return searched(RiseSet::MoonRise, date, TD, latitude, longitude);
}

DateTime MoonSetSearch(DateTime date, Hours TD, DegMin& latitude, DegMin longitude)
{
    return searched(RiseSet::MoonSet, date, TD, latitude, longitude);
}

std::optional<DateTime> RefinedSunRise(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                       DateTime found)
{
    return refined(RiseSet::SunRise, date, TD, latitude, longitude, found);
}

std::optional<DateTime> RefinedSunSet(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                      DateTime found)
{
    return refined(RiseSet::SunSet, date, TD, latitude, longitude, found);
}

std::optional<DateTime> RefinedMoonRise(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                        DateTime found)
{
    return refined(RiseSet::MoonRise, date, TD, latitude, longitude, found);
}

std::optional<DateTime> RefinedMoonSet(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                       DateTime found)
{
    return refined(RiseSet::MoonSet, date, TD, latitude, longitude, found);
}

RiseSetRule RuleOf(RiseSet event)
{
    return eventOf(event).rule;
}

DateTime SearchRiseSet(RiseSet event, DateTime date, Hours TD, DegMin& latitude, DegMin longitude,
                       std::vector<EventStep>& steps)
{
    latitude = DegMin(latitude.packed() + 1e-10);
    return search({eventOf(event), TD, latitude, longitude, steps}, date);
}

std::optional<DateTime> RefineRiseSet(RiseSet event, DateTime date, Hours TD, DegMin latitude,
                                      DegMin longitude, DateTime found,
                                      std::vector<EventStep>& steps)
{
    return refine({eventOf(event), TD, latitude, longitude, steps}, date, found);
}

} // namespace NavFunc113
