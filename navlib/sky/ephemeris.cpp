// SPDX-License-Identifier: MIT
#include "navlib/sky/ephemeris.h"

#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "navlib/sky/ephemeris_series.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>

namespace NavFunc113
{
namespace
{

/// Julian centuries from 2000 January 1.5. One minute, the same in every year, stands for the
/// difference between dynamical time and UT. It was 56 s in 1988 and 69 s in 2020; the Moon moves
/// 0.1 minutes of arc in 10 s, the Sun nothing that shows.
double centuries(double julianDay)
{
    return (julianDay + 60.0 / 86400 - 2451545) / 36525;
}

double fraction(DateTime instant)
{
    return instant - std::floor(instant);
}

/// All series are cosines; the phases are chosen for that.
double sumSeries(double start, std::span<const SeriesTerm> terms, double T)
{
    double sum = start;
    for (const SeriesTerm& term : terms) {
        const double amplitude = term.power == 0 ? term.amplitude : term.amplitude * T;
        sum += amplitude * cos(Degrees(term.rate * T + term.phase));
    }
    return sum;
}

Degrees reduced(double degrees)
{
    return Degrees(degrees - 360 * std::floor(degrees / 360));
}

Degrees meanObliquity(double T)
{
    return Degrees(23.43929 - 0.013004 * T);
}

/// What every apparent place at one instant needs.
struct Frame {
    explicit Frame(DateTime at)
        : instant(at), julianDay(JulianDay(at)), T(centuries(julianDay)),
          nutation(NutationLongitude(julianDay)),
          obliquity(meanObliquity(T) + NutationObliquity(julianDay))
    {
    }

    DateTime instant;
    double julianDay;
    double T;
    Degrees nutation;
    Degrees obliquity;
};

/// Ecliptic place referred to the true equinox.
struct EclipticPlace {
    Degrees longitude;
    Degrees latitude;
};

/// @param longitude with the aberration. The small corrections may carry it just out of 0 .. 360;
/// sine and cosine do not mind.
EclipticPlace apparentSun(const Frame& frame, Degrees longitude)
{
    return {longitude + frame.nutation, Degrees(0)};
}

EclipticPlace apparentSun(const Frame& frame)
{
    return apparentSun(frame,
                       SunLongitude(frame.julianDay) + SunAberration(SunDistance(frame.julianDay)));
}

EclipticPlace apparentMoon(const Frame& frame)
{
    // No aberration: the Moon shares the Earth's motion about the Sun.
    return {MoonLongitude(frame.julianDay) + frame.nutation, MoonLatitude(frame.julianDay)};
}

DegMin sunDeclination(const Frame& frame, const EclipticPlace& sun)
{
    return DegToDegMin(RadToDeg(ArcSin(sin(frame.obliquity) * sin(sun.longitude))));
}

DegMin sunRightAscension(const Frame& frame, const EclipticPlace& sun)
{
    return DegToDegMin(
        RadToDeg(ArcTan2(cos(sun.longitude), cos(frame.obliquity) * sin(sun.longitude))));
}

DegMin moonDeclination(const Frame& frame, const EclipticPlace& moon)
{
    return DegToDegMin(
        RadToDeg(ArcSin(sin(moon.latitude) * cos(frame.obliquity) +
                        cos(moon.latitude) * sin(frame.obliquity) * sin(moon.longitude))));
}

DegMin moonRightAscension(const Frame& frame, const EclipticPlace& moon)
{
    const double x = cos(moon.latitude) * cos(moon.longitude);
    const double y = cos(moon.latitude) * sin(moon.longitude) * cos(frame.obliquity) -
                     sin(moon.latitude) * sin(frame.obliquity);
    return DegToDegMin(RadToDeg(ArcTan2(double(x), y)));
}

Hours siderealTime(const Frame& frame)
{
    double a = 2400.0513369 * frame.T / 24;
    a = (a - std::floor(a)) * 24;
    const double equationOfEquinoxes = frame.nutation.value() * cos(frame.obliquity) / 15;
    // The square of T / 24, not of T: on purpose. The term is below 0.01 seconds for a century.
    return Hours(2.59e-5 * std::pow(frame.T / 24, 2.0) + (a + 6.697375) +
                 fraction(frame.instant) * 24 + equationOfEquinoxes);
}

DegMin hourAngle(Hours siderealTime, DegMin rightAscension)
{
    Degrees x = ArcOfHours(siderealTime) - DegMinToDeg(rightAscension);
    // An angle between -360 and 0 gets 0 added here and stays negative, on purpose: callers add a
    // longitude and take sine and cosine, or reduce it for display.
    if (x > fullTurn)
        x -= fullTurn * std::floor(x / fullTurn);
    else if (x < Degrees(0))
        x += fullTurn * (std::floor(x / fullTurn) + 1);
    return DegToDegMin(x);
}

Degrees hourAngleOffset(DateTime instant, DegMin GHA)
{
    const Degrees timeOfDay = ArcOfHours(Hours(fraction(instant) * 24));
    Degrees offset = DegMinToDeg(GHA) - timeOfDay;
    if (offset < Degrees(0)) offset += fullTurn;
    return offset;
}

} // namespace

double JulianDay(DateTime instant)
{
    constexpr double dayAfterLast = 2958466; // 10000-01-01
    if (!(instant < dayAfterLast)) throw ArithmeticError(ArithmeticError::Condition::Overflow);
    if (instant < 0) return 0;
    // The day is cut off, not rounded: it belongs to the fraction that is added below.
    CivilDate date = DateOfSerial(static_cast<std::int64_t>(std::floor(instant)));
    if (date.month <= 2) {
        date.year -= 1;
        date.month += 12;
    }
    const double century = std::floor(date.year / 100.0);
    const double gregorian = 2 - century + std::floor(century / 4);
    return std::floor(365.25 * date.year) + std::floor(30.6001 * (date.month + 1)) + date.day +
           gregorian + 1720994.5 + fraction(instant);
}

Degrees SunLongitude(double julianDay)
{
    const double T = centuries(julianDay);
    return reduced(sumSeries(280.4659 + 36000.7695 * T, sunLongitudeTerms, T));
}

double SunDistance(double julianDay)
{
    return sumSeries(1.00014, sunDistanceTerms, centuries(julianDay));
}

Degrees SunAberration(double distance)
{
    return Degrees(Quotient(-0.005693, distance));
}

Degrees NutationLongitude(double julianDay)
{
    const double T = centuries(julianDay);
    const Degrees node(125.04 - 1934.136 * T);
    const Degrees twiceSun(200.93 + 72001.539 * T);
    // Textbooks have -0.00478 and a minus sign before the second term. These values are kept on
    // purpose, like every figure that follows from them; they shift a body by 0.05 minutes of arc
    // at most.
    return Degrees(-0.00487 * sin(node) + 0.00037 * sin(twiceSun));
}

Degrees NutationObliquity(double julianDay)
{
    const double T = centuries(julianDay);
    const Degrees node(125.04 - 1934.136 * T);
    const Degrees twiceSun(200.93 + 72001.539 * T);
    return Degrees(0.00256 * cos(node) + 0.00016 * cos(twiceSun));
}

Degrees MoonLongitude(double julianDay)
{
    const double T = centuries(julianDay);
    return reduced(sumSeries(218.3162 + 481267.8809 * T, moonLongitudeTerms, T));
}

Degrees MoonLatitude(double julianDay)
{
    const double T = centuries(julianDay);
    return Degrees(sumSeries(5.1281 * cos(Degrees(483202.019 * T + 3.273)), moonLatitudeTerms, T));
}

DegMin SunDeclination(DateTime instant)
{
    const Frame frame(instant);
    return sunDeclination(frame, apparentSun(frame));
}

DegMin SunRightAscension(DateTime instant)
{
    const Frame frame(instant);
    return sunRightAscension(frame, apparentSun(frame));
}

DegMin MoonDeclination(DateTime instant)
{
    const Frame frame(instant);
    return moonDeclination(frame, apparentMoon(frame));
}

DegMin MoonRightAscension(DateTime instant)
{
    const Frame frame(instant);
    return moonRightAscension(frame, apparentMoon(frame));
}

Hours GreenwichSiderealTime(DateTime instant)
{
    return siderealTime(Frame(instant));
}

DegMin SunGHA(DateTime instant)
{
    const Frame frame(instant);
    return hourAngle(siderealTime(frame), sunRightAscension(frame, apparentSun(frame)));
}

DegMin MoonGHA(DateTime instant)
{
    const Frame frame(instant);
    return hourAngle(siderealTime(frame), moonRightAscension(frame, apparentMoon(frame)));
}

Degrees SunHourAngleOffset(DateTime instant)
{
    return hourAngleOffset(instant, SunGHA(instant));
}

Degrees MoonHourAngleOffset(DateTime instant)
{
    return hourAngleOffset(instant, MoonGHA(instant));
}

BodyPlace SunPlace(DateTime instant)
{
    const Frame frame(instant);
    const EclipticPlace sun = apparentSun(frame);
    const DegMin GHA = hourAngle(siderealTime(frame), sunRightAscension(frame, sun));
    return {sunDeclination(frame, sun), hourAngleOffset(instant, GHA)};
}

BodyPlace MoonPlace(DateTime instant)
{
    const Frame frame(instant);
    const EclipticPlace moon = apparentMoon(frame);
    const DegMin GHA = hourAngle(siderealTime(frame), moonRightAscension(frame, moon));
    return {moonDeclination(frame, moon), hourAngleOffset(instant, GHA)};
}

SunFigures FiguresOfSun(DateTime instant)
{
    const Frame frame(instant);
    SunFigures sun;
    sun.julianDay = frame.julianDay;
    sun.centuries = frame.T;
    sun.longitude = SunLongitude(frame.julianDay);
    sun.aberration = SunAberration(SunDistance(frame.julianDay));
    sun.nutation = frame.nutation;
    sun.obliquity = frame.obliquity;
    const EclipticPlace apparent = apparentSun(frame, sun.longitude + sun.aberration);
    sun.apparentLongitude = apparent.longitude;
    sun.declination = sunDeclination(frame, apparent);
    sun.rightAscension = sunRightAscension(frame, apparent);
    sun.siderealTime = siderealTime(frame);
    sun.GHA = hourAngle(sun.siderealTime, sun.rightAscension);
    return sun;
}

MoonPhase PhaseOfMoon(DateTime instant)
{
    const double julianDay = JulianDay(instant);
    MoonPhase phase{MoonLongitude(julianDay), SunLongitude(julianDay), 0};
    const Degrees elongation = phase.moonLongitude - phase.sunLongitude;
    const double turns = (elongation + fullTurn) / fullTurn;
    phase.age = 30 * (turns - std::floor(turns));
    return phase;
}

double MoonAge(DateTime instant)
{
    return PhaseOfMoon(instant).age;
}

DateTime LastNewMoon(DateTime instant)
{
    constexpr double month = 29.530589; // mean synodic month, days
    DateTime newMoon = instant - MoonAge(instant) / 30 * month;
    // A true month lies up to 7 hours from the mean one, an age within it up to 14: each step
    // leaves at most a tenth of it, the last two seconds.
    for (int step = 0; step < 6; ++step)
        newMoon -= std::remainder(MoonAge(newMoon), 30) / 30 * month;
    return std::min(newMoon, instant);
}

} // namespace NavFunc113
