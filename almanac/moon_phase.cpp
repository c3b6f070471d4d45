// SPDX-License-Identifier: MIT
#include "almanac/moon_phase.h"
#include "almanac/place_vector.h"
#include "almanac/vectors.h"
#include "navlib/angles.h"

#include <cmath>

namespace almanac
{
namespace
{

constexpr Degrees meanObliquity(23.4393); // of 2000; a century changes it by 0.013

double eclipticLongitude(const Vector& v)
{
    return std::atan2(v[1] * cos(meanObliquity) + v[2] * sin(meanObliquity), v[0]);
}

/// -180 to 180.
Degrees elongationAt(const Sky& sky)
{
    const double moon = eclipticLongitude(placeVector(sky.place(Body::Moon)));
    const double sun = eclipticLongitude(placeVector(sky.place(Body::Sun)));
    return NavFunc113::WithinHalfTurn(NavFunc113::RadToDeg(NavFunc113::Radians(moon - sun)));
}

DateTime newMoonBefore(DateTime ut, Degrees elongation)
{
    constexpr Degrees meanGainOfDay(12.1907);
    constexpr int rounds = 8; // the true gain is within a fifth of the mean
    DateTime guess = ut - elongation / meanGainOfDay;
    for (int round = 0; round < rounds; ++round)
        guess -= elongationAt(Sky::nearRange(guess)) / meanGainOfDay;
    return guess;
}

} // namespace

MoonPhase moonPhaseAt(DateTime ut)
{
    const Sky sky(ut);
    const Degrees elongation = NavFunc113::AsCourse(elongationAt(sky));
    const Vector moon = placeVector(sky.place(Body::Moon));
    const Vector sun = placeVector(sky.place(Body::Sun));
    const double cosPhaseAngle = dot(unit(moon), unit(moon - sun));
    return {elongation, ut - newMoonBefore(ut, elongation), (1 + cosPhaseAngle) / 2};
}

} // namespace almanac
