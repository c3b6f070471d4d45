// SPDX-License-Identifier: MIT
#include "almanac/horizon.h"
#include "almanac/vectors.h"
#include "navlib/angles.h"

#include <erfa.h>
#include <erfam.h>

#include <algorithm>
#include <cmath>

namespace almanac
{
namespace
{

using NavFunc113::DegToRad;
using NavFunc113::Radians;
using NavFunc113::RadToDeg;

constexpr double equatorialRadius = 6378137; // metres, WGS 84

/// Unit vector of a body: x towards the equator on the observer's meridian, y east, z the pole.
Vector meridianVector(const Place& body, const Observer& observer)
{
    const double hourAngle = DegToRad(body.gha + observer.longitude).value();
    return fromPolar(-hourAngle, DegToRad(body.declination).value(), 1);
}

Direction directionOf(const Vector& meridian, Degrees latitude)
{
    const double phi = DegToRad(latitude).value();
    const double up = std::cos(phi) * meridian[0] + std::sin(phi) * meridian[2];
    const double north = std::cos(phi) * meridian[2] - std::sin(phi) * meridian[0];
    const double east = meridian[1];
    const double level = std::hypot(north, east);
    const Degrees azimuth = RadToDeg(Radians(eraAnp(level > 0 ? std::atan2(east, north) : 0)));
    return {RadToDeg(Radians(std::atan2(up, level))),
            azimuth < NavFunc113::fullTurn ? azimuth : Degrees(0)};
}

/// The observer in equatorial radii of the earth, axes as above.
Vector stand(const Observer& observer)
{
    double place[3] = {};
    eraGd2gc(ERFA_WGS84, 0, DegToRad(observer.latitude).value(), observer.heightOfEye.value(),
             place);
    return (1 / equatorialRadius) * Vector{place[0], place[1], place[2]};
}

} // namespace

Direction computedDirection(const Place& body, const Observer& observer)
{
    return directionOf(meridianVector(body, observer), observer.latitude);
}

std::array<double, 3> standOverHorizon(const Observer& observer)
{
    const Vector standing = stand(observer);
    const double north =
        cos(observer.latitude) * standing[2] - sin(observer.latitude) * standing[0];
    const double up = cos(observer.latitude) * standing[0] + sin(observer.latitude) * standing[2];
    return {north, 0, up};
}

SeenBody seenFrom(const Place& body, const Observer& observer)
{
    // The radii of the earth in a second, of 86164.1 that it takes to turn, over those of light.
    constexpr double turningOverLight = 2 * 3.14159265358979 / 86164.1 * 6378.137 / 299792.458;
    const Vector standing = stand(observer);
    const double sinParallax = sin(body.horizontalParallax);
    Vector seen = meridianVector(body, observer) - sinParallax * standing;
    const double nearness = 1 / length(seen);
    seen = nearness * seen;
    seen[1] += turningOverLight * standing[0];
    return {directionOf(seen, observer.latitude),
            RadToDeg(Radians(std::asin(std::min(1.0, sin(body.semiDiameter) * nearness))))};
}

} // namespace almanac
