// SPDX-License-Identifier: MIT
#include "almanac/sextant.h"
#include "almanac/vectors.h"
#include "navlib/angles.h"
#include "navlib/sky/sight_reduction.h"

#include <algorithm>
#include <cmath>

namespace almanac
{
namespace
{

using NavFunc113::DegToRad;
using NavFunc113::quarterTurn;
using NavFunc113::Radians;
using NavFunc113::RadToDeg;

constexpr Degrees lowest(-2); // below it the formula of the refraction turns wild

Degrees ofMinutes(double minutes)
{
    return Degrees(minutes / 60);
}

double inMinutes(Degrees angle)
{
    return angle.value() * 60;
}

/// Distance of a body of some parallax in radii of the earth; it has none without.
double distanceOf(const Place& place)
{
    return 1 / sin(place.horizontalParallax);
}

/// How far a body is from the eye, as a part of how far it is from the earth's centre.
double nearnessOf(const Place& place, Degrees seen)
{
    if (!(place.horizontalParallax > Degrees(0))) return 1;
    const double distance = distanceOf(place), up = sin(seen);
    return (std::sqrt(up * up + distance * distance - 1) - up) / distance;
}

Degrees parallaxOnSphere(const Place& place, Degrees seen)
{
    return RadToDeg(Radians(std::asin(sin(place.horizontalParallax) * cos(seen))));
}

/// Altitude at the earth's centre of what is seen in a direction over the ellipsoid.
Degrees altitudeOverEllipsoid(const Place& place, Degrees seen, const SightPlace& taken)
{
    // Axes north, east, up of the eye; lengths in radii of the equator.
    const Vector eye = standOverHorizon(taken.observer);
    const Vector towards{cos(seen) * cos(taken.azimuth), cos(seen) * sin(taken.azimuth), sin(seen)};
    const double along = dot(eye, towards), distance = distanceOf(place);
    const double range = std::sqrt(along * along + distance * distance - dot(eye, eye)) - along;
    const Vector body = eye + range * towards;
    return RadToDeg(Radians(std::atan2(body[2], std::hypot(body[0], body[1]))));
}

void addDipAndRefraction(const SextantAir& air, Degrees observed, SextantTerms& terms)
{
    constexpr double kelvin = 273.15, meanTemperature = 10, meanPressure = 1010;
    terms.dip = -1.76 * std::sqrt(air.heightOfEye.value());
    terms.airSea = 0.2 * (air.air - air.sea);
    terms.apparent = observed + ofMinutes(terms.dip + terms.airSea);
    const double mean = NavFunc113::MeanRefraction(std::clamp(terms.apparent, lowest, quarterTurn));
    const double warm = (kelvin + meanTemperature) / (kelvin + air.air);
    terms.refraction = -mean;
    terms.temperature = mean * (1 - warm);
    terms.pressure = mean * warm * (1 - air.pressure / meanPressure);
}

} // namespace

SextantTerms correctSextant(const Place& place, Body body, Degrees observed, Limb limb,
                            const SextantAir& air, const std::optional<SightPlace>& taken)
{
    SextantTerms terms;
    addDipAndRefraction(air, observed, terms);
    terms.seen = terms.apparent + ofMinutes(terms.refraction + terms.temperature + terms.pressure);
    if (hasLimbs(body)) {
        const double side = limb == Limb::Upper ? -1 : 1;
        const Degrees ofLimb = terms.seen;
        // The augmentation depends on the altitude of the centre, which it moves by 0.3' at most.
        for (int pass = 0; pass < 3; ++pass) {
            const Degrees size = RadToDeg(Radians(
                std::asin(std::min(1.0, sin(place.semiDiameter) / nearnessOf(place, terms.seen)))));
            terms.semiDiameter = side * inMinutes(place.semiDiameter);
            terms.augmentation = side * inMinutes(size - place.semiDiameter);
            terms.seen = ofLimb + ofMinutes(terms.semiDiameter + terms.augmentation);
        }
    }
    terms.corrected = terms.seen;
    if (!(place.horizontalParallax > Degrees(0))) return terms;
    terms.parallax = inMinutes(parallaxOnSphere(place, terms.seen));
    if (taken) {
        const Degrees whole = altitudeOverEllipsoid(place, terms.seen, *taken) - terms.seen;
        terms.oblateness = inMinutes(whole) - terms.parallax;
    }
    terms.corrected += ofMinutes(terms.parallax + terms.oblateness);
    return terms;
}

std::optional<Degrees> sextantAltitude(const Place& place, Body body, Limb limb,
                                       const SextantAir& air, const Observer& observer)
{
    const Direction wanted = computedDirection(place, observer);
    const SightPlace taken{observer, wanted.azimuth};
    Degrees observed = wanted.altitude;
    // Each pass takes off what is too much; the refraction changes by a few hundredths of that.
    for (int pass = 0; pass < 12; ++pass)
        observed +=
            wanted.altitude - correctSextant(place, body, observed, limb, air, taken).corrected;
    if (observed < lowest) return std::nullopt;
    return observed;
}

} // namespace almanac
