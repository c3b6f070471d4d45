// SPDX-License-Identifier: MIT
#include "navlib/rise_set.h"

#include "navlib/angles.h"
#include "navlib/ephemeris.h"

#include <cmath>

namespace NavFunc113
{
namespace
{

constexpr Degrees sunEventAltitude(-0.9033);
constexpr Degrees moonEventAltitude(0);
constexpr double rising = -1;
constexpr double setting = 1;

/// What the search of one event needs of its body.
struct Event {
    BodyPlace (*place)(DateTime instant);
    DateTime (*hour)(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                     DegMin longitude);
    Degrees altitude;
    double side;          ///< rising or setting
    Degrees motionInADay; ///< of the body's hour angle
};

constexpr Degrees sunMotion(360);
constexpr Degrees moonMotion(347.8); ///< mean; it varies by about 3 degrees
constexpr Event sunRise{SunPlace, SunRiseHour, sunEventAltitude, rising, sunMotion};
constexpr Event sunSet{SunPlace, SunSetHour, sunEventAltitude, setting, sunMotion};
constexpr Event moonRise{MoonPlace, MoonRiseHour, moonEventAltitude, rising, moonMotion};
constexpr Event moonSet{MoonPlace, MoonSetHour, moonEventAltitude, setting, moonMotion};

struct Triangle {
    double sineProduct;
    double cosineProduct;
};

Triangle triangleOf(DegMin latitude, DegMin declination)
{
    const Radians phi = DegToRad(DegMinToDeg(latitude));
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
    const auto [sineProduct, cosineProduct] = triangleOf(latitude, declination);
    return RadToDeg(ArcCos(Quotient(sin(sunEventAltitude) - sineProduct, cosineProduct)));
}

Degrees moonEventHourAngle(DegMin latitude, DegMin declination)
{
    // Refraction and the rim raise the Moon about as much as its parallax lowers it, so its centre
    // on the horizon serves.
    const auto [sineProduct, cosineProduct] = triangleOf(latitude, declination);
    return RadToDeg(ArcCos(Quotient(-sineProduct, cosineProduct)));
}

DateTime search(const Event& event, DateTime date, Hours TD, DegMin& latitude, DegMin longitude)
{
    latitude = DegMin(latitude.packed() + 1e-10);
    for (int i = -1; i <= 1; ++i) {
        const auto eventAfter = [&](DateTime instant) {
            const BodyPlace body = event.place(instant);
            return i + date +
                   event.hour(TD, body.hourAngleOffset, body.declination, latitude, longitude) - 1;
        };
        // TD enters the first estimate with the other sign than the second, on purpose: it only
        // says where the iteration starts.
        DateTime found = eventAfter(i + date + 0.5 + DaysOfHours(TD));
        found = eventAfter(found - DaysOfHours(TD));
        if (std::floor(found) == date) return found;
    }
    return 0;
}

/// Days from an instant to the event nearest to it, by the body's place at that instant; nothing
/// when the body does not meet the altitude at that declination. Only the difference of two hour
/// angles is reduced, so no jump of the offset can carry it into another day.
std::optional<double> stepToEvent(const Event& event, DateTime instant, DegMin latitude,
                                  DegMin longitude)
{
    const BodyPlace body = event.place(instant);
    const auto [sineProduct, cosineProduct] = triangleOf(latitude, body.declination);
    const double cosine = (sin(event.altitude) - sineProduct) / cosineProduct;
    if (!(std::fabs(cosine) <= 1)) return std::nullopt;
    const Degrees hourAngle =
        (instant - std::floor(instant)) * fullTurn + body.hourAngleOffset + DegMinToDeg(longitude);
    const Degrees atEvent = event.side * RadToDeg(Radians(std::acos(cosine)));
    return WithinHalfTurn(atEvent - hourAngle) / event.motionInADay;
}

std::optional<DateTime> iterate(const Event& event, DateTime start, DegMin latitude,
                                DegMin longitude)
{
    constexpr double halfSecond = 0.5 / 86400;
    DateTime instant = start;
    for (int pass = 0; pass < 12; ++pass) {
        const auto step = stepToEvent(event, instant, latitude, longitude);
        if (!step) return std::nullopt;
        instant += *step;
        if (std::fabs(*step) < halfSecond) return instant;
    }
    return std::nullopt;
}

std::optional<DateTime> refine(const Event& event, DateTime date, Hours TD, DegMin latitude,
                               DegMin longitude, DateTime found)
{
    constexpr double minute = 1.0 / 1440;
    if (found != 0) {
        const auto step = stepToEvent(event, found - DaysOfHours(TD), latitude, longitude);
        if (step && std::fabs(*step) < minute) return found;
    }
    // From both ends and the middle of the day: whatever falls on it is reached from one of them.
    std::optional<DateTime> earliest;
    for (double start : {0.0, 0.5, 1.0}) {
        const auto instant = iterate(event, date + start - DaysOfHours(TD), latitude, longitude);
        if (!instant) continue;
        const DateTime local = *instant + DaysOfHours(TD);
        if (std::floor(local) == date && (!earliest || local < *earliest)) earliest = local;
    }
    return earliest;
}

} // namespace

DateTime SunRiseHour(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                     DegMin longitude)
{
    return dayCount(1, -sunEventHourAngle(latitude, declination), TD, hourAngleOffset, longitude);
}

DateTime SunSetHour(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                    DegMin longitude)
{
    return dayCount(1, sunEventHourAngle(latitude, declination), TD, hourAngleOffset, longitude);
}

DateTime MoonRiseHour(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                      DegMin longitude)
{
    return dayCount(3, -moonEventHourAngle(latitude, declination), TD, hourAngleOffset, longitude);
}

DateTime MoonSetHour(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                     DegMin longitude)
{
    return dayCount(2, moonEventHourAngle(latitude, declination), TD, hourAngleOffset, longitude);
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
    return search(sunRise, date, TD, latitude, longitude);
}

DateTime SunSetSearch(DateTime date, Hours TD, DegMin& latitude, DegMin longitude)
{
    return search(sunSet, date, TD, latitude, longitude);
}

DateTime MoonRiseSearch(DateTime date, Hours TD, DegMin& latitude, DegMin longitude)
{
    return search(moonRise, date, TD, latitude, longitude);
}

DateTime MoonSetSearch(DateTime date, Hours TD, DegMin& latitude, DegMin longitude)
{
    return search(moonSet, date, TD, latitude, longitude);
}

std::optional<DateTime> RefinedSunRise(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                       DateTime found)
{
    return refine(sunRise, date, TD, latitude, longitude, found);
}

std::optional<DateTime> RefinedSunSet(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                      DateTime found)
{
    return refine(sunSet, date, TD, latitude, longitude, found);
}

std::optional<DateTime> RefinedMoonRise(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                        DateTime found)
{
    return refine(moonRise, date, TD, latitude, longitude, found);
}

std::optional<DateTime> RefinedMoonSet(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                       DateTime found)
{
    return refine(moonSet, date, TD, latitude, longitude, found);
}

} // namespace NavFunc113
