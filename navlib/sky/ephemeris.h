// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

/// Apparent places of the Sun and the Moon.
///
/// Accuracy, 2000 to 2050, against ERFA and a long series of the Moon (bench/EphemerisAccuracy.cpp,
/// 61388 instants; half of them within / 95 per cent / worst, minutes of arc): Sun GHA
/// 0.06 / 0.11 / 0.16, declination 0.01 / 0.03 / 0.07; Moon GHA 0.23 / 0.63 / 0.99, declination
/// 0.06 / 0.21 / 0.39. From 1900 to 2099 (240729 instants) the worst are 0.17 and 0.07, 1.37 and
/// 0.52. Later years were not measured: the fixed difference of 60 seconds ages.
///
/// Instants are UTC, taken as UT1. Nothing is kept between calls. An instant before day 0 has no
/// Julian day: every routine then works on Julian day 0. An instant that is not a number or lies
/// beyond the year 9999 throws ArithmeticError Overflow.
namespace NavFunc113
{

/// Julian day and fraction; 0 for a negative instant. The Gregorian calendar holds for every date.
double JulianDay(DateTime instant);

/// Ecliptic longitude of the Sun referred to the mean equinox, 0 <= longitude < 360.
Degrees SunLongitude(double julianDay);

/// Distance of the Sun, astronomical units.
double SunDistance(double julianDay);

/// Aberration in longitude. @param distance astronomical units
/// @throws ArithmeticError DivisionByZero for 0
Degrees SunAberration(double distance);

Degrees NutationLongitude(double julianDay);
Degrees NutationObliquity(double julianDay);

/// Ecliptic longitude of the Moon referred to the mean equinox, 0 <= longitude < 360.
Degrees MoonLongitude(double julianDay);

/// Ecliptic latitude of the Moon; north positive, not reduced.
Degrees MoonLatitude(double julianDay);

/// Apparent declination, north positive; apparent right ascension in degrees, (-180, 180].
DegMin SunDeclination(DateTime instant);
DegMin SunRightAscension(DateTime instant);
DegMin MoonDeclination(DateTime instant);
DegMin MoonRightAscension(DateTime instant);

/// Apparent sidereal time at Greenwich in hours, not reduced to 24.
Hours GreenwichSiderealTime(DateTime instant);

/// Greenwich hour angle, (-360, 360]: an angle that comes out between -360 and 0 stays negative.
DegMin SunGHA(DateTime instant);
DegMin MoonGHA(DateTime instant);

/// Greenwich hour angle less the time of day as an angle (15 degrees an hour), [0, 360]. It drifts
/// slowly, so that an event's time follows from it in a few steps; the Moon's jumps by 360 near
/// full Moon.
Degrees SunHourAngleOffset(DateTime instant);
Degrees MoonHourAngleOffset(DateTime instant);

/// Declination and hour-angle offset of a body at one instant, bit for bit those of the single
/// routines; the series are summed once for both.
struct BodyPlace {
    DegMin declination;
    Degrees hourAngleOffset;
};
BodyPlace SunPlace(DateTime instant);
BodyPlace MoonPlace(DateTime instant);

/// The Sun's declination and GHA at one instant with all that they follow from, bit for bit those
/// of the single routines.
struct SunFigures {
    double julianDay{};
    double centuries{}; ///< Julian centuries from 2000 January 1.5, dynamical time
    Degrees longitude;  ///< ecliptic, referred to the mean equinox
    Degrees aberration;
    Degrees nutation;          ///< in longitude
    Degrees apparentLongitude; ///< the sum of the three
    Degrees obliquity;         ///< of the date, nutation included
    DegMin declination;
    DegMin rightAscension;
    Hours siderealTime; ///< at Greenwich, not reduced to 24
    DegMin GHA;
};
SunFigures FiguresOfSun(DateTime instant);

/// Age of the Moon with the ecliptic longitudes that it follows from.
struct MoonPhase {
    Degrees moonLongitude;
    Degrees sunLongitude;
    double age{}; ///< as MoonAge
};
MoonPhase PhaseOfMoon(DateTime instant);

/// Age of the Moon in days, 0 at new Moon to just under 30. The month counts 30 days, so the age
/// tells the phase: 7.5 first quarter, 15 full, 22.5 last quarter.
double MoonAge(DateTime instant);

/// The last new Moon at or before an instant from 1901 on: equal ecliptic longitudes of Moon and
/// Sun. What MoonAge counts in a month of 30 days, instant - LastNewMoon(instant) counts in days, 0
/// to 29.8.
///
/// Accuracy against eight published times of new Moon, 2000 to 2026: at most 2.1 minutes.
DateTime LastNewMoon(DateTime instant);

} // namespace NavFunc113
