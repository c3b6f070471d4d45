// SPDX-License-Identifier: MIT
#include "almanac/sky.h"
#include "almanac/frame.h"
#include "almanac/series.h"
#include "almanac/star_catalogue.h"
#include "navlib/angles.h"

#include <cmath>

namespace almanac
{
namespace
{

using NavFunc113::Pi;
using NavFunc113::Radians;
using NavFunc113::RadToDeg;

constexpr double lightAuPerDay = 173.1446326846693;
constexpr double lightKmPerDay = 299792.458 * 86400;
constexpr double solarParallax = 8.794143; // seconds of arc at one astronomical unit
constexpr double earthRadiusKm = 6378.137;
constexpr double moonRadiusOfEarths = 0.2725076;

Degrees seconds(double value)
{
    return Degrees(value / 3600);
}

Degrees withinTurn(double radians)
{
    const Degrees angle = RadToDeg(Radians(eraAnp(radians)));
    return angle < NavFunc113::fullTurn ? angle : Degrees(0); // the last bits may round up to it
}

/// @param rightAscension, declination radians, equator and equinox of date
Place placeOf(const Frame& frame, double rightAscension, double declination)
{
    return {withinTurn(frame.ghaAries - rightAscension),
            RadToDeg(Radians(declination)),
            withinTurn(-rightAscension),
            {},
            {}};
}

Place placeOf(const Frame& frame, const Vector& direction)
{
    Vector ofDate = frame.toDate * direction;
    double rightAscension = 0, declination = 0;
    eraC2s(ofDate.data(), &rightAscension, &declination);
    return placeOf(frame, rightAscension, declination);
}

/// Direction in which a body is seen from the moving earth.
/// @param geometric from where the earth is now to where the body was when the light left it
Vector aberrated(const Frame& frame, const Vector& geometric)
{
    // ERFA's declarations know no const; here and below it gets copies.
    Vector natural = unit(geometric);
    Vector velocity = (1 / lightAuPerDay) * frame.earthVelocity;
    Vector seen{};
    eraAb(natural.data(), velocity.data(), length(frame.earth),
          std::sqrt(1 - dot(velocity, velocity)), seen.data());
    return seen;
}

/// Semi-diameter at one astronomical unit, seconds of arc.
/// Source: Explanatory Supplement to the Astronomical Almanac; equatorial for Jupiter and Saturn.
double unitSemiDiameter(Body body)
{
    switch (body) {
    case Body::Sun:
        return 959.63;
    case Body::Mars:
        return 4.68;
    case Body::Jupiter:
        return 98.44;
    case Body::Saturn:
        return 82.73;
    default:
        return 8.34; // Venus
    }
}

Place withSize(Place place, Body body, double distance)
{
    place.horizontalParallax = seconds(solarParallax / distance);
    place.semiDiameter = seconds(unitSemiDiameter(body) / distance);
    return place;
}

Place sunPlace(const Frame& frame)
{
    // The Sun moves by 7 km about the centre of mass while its light is under way.
    const double time = length(frame.earth) / lightAuPerDay;
    const Vector geometric = (-1.0) * frame.earth - time * frame.sunVelocity;
    return withSize(placeOf(frame, aberrated(frame, geometric)), Body::Sun, length(geometric));
}

/// A direction moved to the middle of the lit part of an even disc, towards the Sun.
/// Source: the centroid of the lit part lies 4/(3 pi) SD (1 - cos i) from that of the disc.
Vector centreOfLight(const Frame& frame, const Vector& direction, const Vector& fromSun,
                     const Vector& fromEarth)
{
    const double cosPhase = dot(unit(fromSun), unit(fromEarth));
    const double size = unitSemiDiameter(Body::Venus) / 3600 / 180 * Pi() / length(fromEarth);
    const double shift = 4 / (3 * Pi()) * size * (1 - cosPhase);
    const Vector sun = (-1.0) * unit(frame.earth);
    const Vector towards = sun - dot(sun, direction) * direction;
    if (length(towards) < 1e-9) return direction; // before the very middle of the Sun
    return std::cos(shift) * direction + std::sin(shift) * unit(towards);
}

Place planetPlace(const Frame& frame, Body body)
{
    const Body planet = body == Body::VenusDisc ? Body::Venus : body;
    constexpr int rounds = 3; // of the light time: what is left is below 0.001"
    Vector fromSun{}, fromEarth{};
    double time = 0;
    for (int round = 0; round < rounds; ++round) {
        fromSun = heliocentricPlanet(planet, frame.daysTT - time);
        fromEarth = fromSun - frame.earth;
        time = length(fromEarth) / lightAuPerDay;
    }
    Vector direction = aberrated(frame, fromEarth);
    if (body == Body::Venus) direction = centreOfLight(frame, direction, fromSun, fromEarth);
    return withSize(placeOf(frame, direction), planet, length(fromEarth));
}

Place moonPlace(const Frame& frame)
{
    const double distance = length(geocentricMoon(frame.daysTT));
    // Going back by the light time takes the Moon's own motion; the earth's in that time and the
    // aberration cancel to 0.001".
    Place place = placeOf(frame, geocentricMoon(frame.daysTT - distance / lightKmPerDay));
    const double sinParallax = earthRadiusKm / distance;
    place.horizontalParallax = RadToDeg(Radians(std::asin(sinParallax)));
    place.semiDiameter = RadToDeg(Radians(std::asin(moonRadiusOfEarths * sinParallax)));
    return place;
}

Place starPlace(const Frame& frame, const Star& star)
{
    const double radians = Pi() / 180;
    const double masPerYear = radians / 3600000;
    const double declination = star.declination * radians;
    eraASTROM parameters = frame.starParameters;
    double ri = 0, di = 0;
    eraAtciq(star.rightAscension * radians, declination,
             star.properMotionRa * masPerYear / std::cos(declination),
             star.properMotionDec * masPerYear, star.parallax / 1000, star.radialVelocity,
             &parameters, &ri, &di);
    return placeOf(frame, ri - frame.equationOfOrigins, di);
}

} // namespace

Sky::Sky(std::shared_ptr<const Frame> frame) : m_frame(std::move(frame)) {}

Sky::Sky(DateTime ut)
{
    requireAlmanacYears(ut);
    m_frame = std::make_shared<const Frame>(ut);
}

Sky Sky::nearRange(DateTime ut)
{
    return Sky(std::make_shared<const Frame>(ut));
}

DateTime Sky::instant() const
{
    return m_frame->ut;
}

DeltaT Sky::deltaT() const
{
    return m_frame->deltaT;
}

Degrees Sky::ghaAries() const
{
    return withinTurn(m_frame->ghaAries);
}

Place Sky::place(Body body) const
{
    const auto index = static_cast<std::size_t>(body);
    constexpr auto firstStar = static_cast<std::size_t>(Body::Saturn) + 1;
    if (entryOf(body).kind == BodyKind::Star)
        return starPlace(*m_frame, starCatalogue()[index - firstStar]);
    if (body == Body::Sun) return sunPlace(*m_frame);
    if (body == Body::Moon) return moonPlace(*m_frame);
    return planetPlace(*m_frame, body);
}

} // namespace almanac
