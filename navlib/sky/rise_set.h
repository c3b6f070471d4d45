// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/sky/ephemeris.h"

#include <optional>
#include <vector>

/// Rising and setting of the Sun and the Moon.
///
/// Latitudes and longitudes are north and east positive; TD is the difference of local time from
/// UTC in hours, east positive.
namespace NavFunc113
{

/// Hour of an event as a day count, in local time, whose whole part has no meaning of its own.
///
/// The Sun's event is its centre 0.9033 degrees below the horizon, the Moon's its centre on the
/// horizon.
/// @param hourAngleOffset see ephemeris.h, degrees
/// @throws ArithmeticError InvalidArgument when the body neither rises nor sets, DivisionByZero
///         at a pole or when it rises exactly six hours from the meridian
DateTime SunRiseHour(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                     DegMin longitude);
DateTime SunSetHour(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                    DegMin longitude);
DateTime MoonRiseHour(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                      DegMin longitude);
DateTime MoonSetHour(Hours TD, Degrees hourAngleOffset, DegMin declination, DegMin latitude,
                     DegMin longitude);

/// True azimuth at rising, 0 to 180, and at setting, 180 to 360. No refraction, no dip.
/// @throws ArithmeticError as the hours; DivisionByZero also for a declination of exactly 0
Degrees SunRiseAzimuth(DegMin latitude, DegMin declination);
Degrees SunSetAzimuth(DegMin latitude, DegMin declination);

/// Local time of an event on a date.
///
/// @param date      day number, a whole number
/// @param latitude  grows by 1e-10 in the caller's variable, so that the Moon over the equator does
///                  not meet a cosine of exactly 0. The packed value grows: a southern latitude of
///                  whole degrees moves 40 minutes south (-12.00 becomes -11.9999999999, which
///                  reads as 12 degrees 40), and its events are out by up to 14 minutes
/// @return date-time in local time; 0 when no event was found on that date
/// @throws ArithmeticError as the hours
///
/// Two steps of iteration, no more. The Moon's hour-angle offset jumps by 360 degrees near full
/// Moon; a step across the jump belongs to the day before or after, and the time is then out by
/// 20 to 147 minutes or the event is missed. The refined routines below do not have this.
///
/// Accuracy, 1900 to 2099, TD of the zone, against ERFA and a long series of the Moon with the same
/// altitude of the body (bench/EphemerisAccuracy.cpp, 10000 events of a kind; 95 per cent within /
/// worst, minutes): Sun 0.01 / 0.02 but for southern latitudes of whole degrees, where it is
/// 3.8 / 8.1 to latitude 60 and 4.6 / 13.8 to 63; moonrise 5.0 / 99 and moonset 3.5 / 97 to
/// latitude 60, 5.3 / 111 and 3.7 / 147 to 63; one of the Moon's in 1700 (to 60) and in 700 (to 63)
/// missed or invented. With a TD that is not the zone's the first estimate may lie a day off: then
/// 29 per cent of sunrises, 7 of moonrises and 3 of sunsets are not found.
DateTime SunRiseSearch(DateTime date, Hours TD, DegMin& latitude, DegMin longitude);
DateTime SunSetSearch(DateTime date, Hours TD, DegMin& latitude, DegMin longitude);
DateTime MoonRiseSearch(DateTime date, Hours TD, DegMin& latitude, DegMin longitude);
DateTime MoonSetSearch(DateTime date, Hours TD, DegMin& latitude, DegMin longitude);

/// The same events with the hour-angle offset kept continuous, iterated until the step is below
/// half a second. Same altitudes of the body as above, latitude as it stands.
///
/// Accuracy as above, latitudes to 63: Sun 0.01 / 0.02 minutes, Moon 0.06 / 0.15, none missed where
/// the body stays up or down for two hours; where it skims the horizon, 1 minute. Against the
/// horizon of an almanac (upper limb, refraction 34 minutes of arc, parallax and size of the day)
/// the fixed altitudes cost: Sun 0.65 / 1.1 minutes to latitude 60 and 0.74 / 1.6 to 63, rising
/// early and setting late; Moon 1.3 / 4.2 and 1.5 / 18.5.
///
/// @param found time that the search found, 0 when it found none. An event of the date that is less
///              than a minute away is the one; otherwise the whole day is looked through.
/// @return local date-time on that date, the earliest when there are two; nothing when there is
///         no such event on that date. Never faults for a body that neither rises nor sets.
std::optional<DateTime> RefinedSunRise(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                       DateTime found = 0);
std::optional<DateTime> RefinedSunSet(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                      DateTime found = 0);
std::optional<DateTime> RefinedMoonRise(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                        DateTime found = 0);
std::optional<DateTime> RefinedMoonSet(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                       DateTime found = 0);

/// The events, and what their searches hold fixed.
enum class RiseSet { SunRise, SunSet, MoonRise, MoonSet };
struct RiseSetRule {
    Degrees altitude;     ///< of the body's centre
    double side;          ///< -1 rising, 1 setting
    double wholeDays;     ///< in the day count of the hour
    Degrees motionInADay; ///< of the body's hour angle, in the refined search
};
RiseSetRule RuleOf(RiseSet event);

/// One step of a search: the body's place at an instant, and the event that follows from it.
struct EventStep {
    int round{}; ///< of the search: -1, 0, 1 days from the date; of the refined one 0 for the
                 ///< check of a time found, then 1, 2, 3 from the start, middle and end of the day
    DateTime instant{}; ///< UTC
    BodyPlace body;
    std::optional<Degrees> hourAngle; ///< of the event; absent: the body does not meet the altitude
    DateTime event{}; ///< local time; without an hour angle that of the culmination in the
                      ///< refined search, and 0 in the other
};

/// The searches above, their steps added to a list; those before a fault stay in it.
DateTime SearchRiseSet(RiseSet event, DateTime date, Hours TD, DegMin& latitude, DegMin longitude,
                       std::vector<EventStep>& steps);
std::optional<DateTime> RefineRiseSet(RiseSet event, DateTime date, Hours TD, DegMin latitude,
                                      DegMin longitude, DateTime found,
                                      std::vector<EventStep>& steps);

} // namespace NavFunc113
