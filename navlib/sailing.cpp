// SPDX-License-Identifier: MIT
#include "navlib/sailing.h"

#include "navlib/angles.h"

#include <array>
#include <cmath>

namespace NavFunc113
{
namespace
{

struct Node {
    double lat; // degrees
    double factor;
};

constexpr std::array<Node, 5> latitudeFactors{
    {{0, 0.99509}, {20, 0.99627}, {40, 0.99924}, {65, 1.00335}, {90, 1.00518}}};
constexpr std::array<Node, 4> parallelFactors{
    {{0, 1.00178}, {30, 1.00263}, {60, 1.00432}, {90, 1.00518}}};
// Dead reckoning has its own value at the pole, on purpose.
constexpr std::array<Node, 4> runFactors{
    {{0, 1.00178}, {30, 1.00263}, {60, 1.00432}, {90, 1.00513}}};

// Deliberately not 2, and the same for distance and dead reckoning.
constexpr double latitudeFactorDivisor = 2.05;

constexpr Degrees dueEast(90);
constexpr Degrees dueWest(270);
constexpr Degrees sameParallel(1e-9); // nearer than this two latitudes are one

/// A packed latitude taken for decimal degrees, unconverted: its factor varies too slowly for the
/// difference to show.
Degrees asItStands(DegMin lat)
{
    return Degrees(std::fabs(lat.packed()));
}

// The steps of InterpolateLagrange over a table whose nodes the compiler knows, so that it can
// unroll them and work on several weights at once.
template <std::size_t n>
double factorAt(Degrees lat, const std::array<Node, n>& table)
{
    std::array<double, n> weights;
    weights.fill(1);
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j < n; ++j)
            if (i != j)
                weights[j] =
                    weights[j] * (lat.value() - table[i].lat) / (table[j].lat - table[i].lat);
    double sum = 0;
    for (std::size_t j = 0; j < n; ++j)
        sum += table[j].factor * weights[j];
    if (!std::isfinite(sum)) throw ArithmeticError(ArithmeticError::Condition::Overflow);
    return sum;
}

Degrees shorterWay(Degrees lambda1, Degrees lambda2)
{
    const Degrees change = lambda2 - lambda1;
    if (change > halfTurn) return change - fullTurn;
    if (change < -halfTurn) return change + fullTurn;
    return change;
}

Radians unsignedShorterWay(Radians lambda1, Radians lambda2)
{
    // Exactly half a turn stays half a turn.
    const Radians change = fabs(lambda2 - lambda1);
    return change > Radians(Pi()) ? fabs(change - Radians(2 * Pi())) : change;
}

struct Place {
    Degrees phi;
    Degrees lambda;
};

Place placeOf(DegMin lat, DegMin longitude)
{
    return {DegMinToDeg(lat), DegMinToDeg(longitude)};
}

bool eastward(Degrees lambda1, Degrees lambda2)
{
    return fabs(lambda2 - lambda1) != halfTurn && shorterWay(lambda1, lambda2) > Degrees(0);
}

Degrees courseBetween(const Place& from, const Place& to)
{
    const Degrees change = shorterWay(from.lambda, to.lambda);
    const double parts = MeridionalParts(to.phi) - MeridionalParts(from.phi);
    if (parts == 0) {
        if (change == Degrees(0)) return Degrees(0);
        return eastward(from.lambda, to.lambda) ? dueEast : dueWest;
    }
    Degrees course = RadToDeg(ArcTan2(double(parts), 60 * change.value()));
    if (course < Degrees(0)) course += fullTurn;
    return course < fullTurn ? course : Degrees(0); // a hair west of north rounds to 360
}

Miles alongParallel(const Place& from, const Place& to)
{
    Degrees change = fabs(to.lambda - from.lambda);
    if (change > halfTurn) change = fullTurn - change;
    return fabs(MilesOfArc(change) * cos(from.phi));
}

// The course is asked for only where the distance needs it: along a parallel it may not exist.
template <typename Course>
Miles distanceBetween(const Place& from, const Place& to, DegMin lat1, Earth earth, Course course)
{
    Degrees change = to.phi - from.phi;
    if (earth == Earth::Spheroid)
        change *= LatitudeFactor(fabs(from.phi + to.phi) / latitudeFactorDivisor);
    if (fabs(change) < sameParallel) {
        const Miles distance = alongParallel(from, to);
        return earth == Earth::Spheroid ? distance * ParallelFactor(asItStands(lat1)) : distance;
    }
    const Degrees angle = course();
    // The cosine of a right angle is not quite 0 in binary, the fault is one all the same.
    if (angle == dueEast || angle == dueWest)
        throw ArithmeticError(ArithmeticError::Condition::DivisionByZero);
    return MilesOfArc(fabs(Quotient(change, cos(angle))));
}

} // namespace

Degrees ChangeOfLongitude(DegMin long1, DegMin long2)
{
    return shorterWay(DegMinToDeg(long1), DegMinToDeg(long2));
}

EastOrWest EastWest(DegMin long1, DegMin long2)
{
    return eastward(DegMinToDeg(long1), DegMinToDeg(long2)) ? EastOrWest::East : EastOrWest::West;
}

std::string_view NameOf(EastOrWest way)
{
    return way == EastOrWest::East ? "East" : "West";
}

double MeridionalParts(Degrees lat)
{
    const Radians phi = DegToRad(lat);
    return 7915.7 * Log10(tan(Radians(Pi() / 4) + phi / 2)) - 23.1 * sin(phi);
}

double LatitudeFactor(Degrees lat)
{
    return factorAt(lat, latitudeFactors);
}

double ParallelFactor(Degrees lat)
{
    return factorAt(lat, parallelFactors);
}

Degrees RhumbCourse(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2)
{
    return courseBetween(placeOf(lat1, long1), placeOf(lat2, long2));
}

RhumbLeg RhumbCourseAndDistance(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2, Earth earth)
{
    const Place from = placeOf(lat1, long1);
    const Place to = placeOf(lat2, long2);
    const Degrees course = courseBetween(from, to);
    return {course, distanceBetween(from, to, lat1, earth, [course] { return course; })};
}

Miles RhumbDistance(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2, Earth earth)
{
    const Place from = placeOf(lat1, long1);
    const Place to = placeOf(lat2, long2);
    return distanceBetween(from, to, lat1, earth, [&] { return courseBetween(from, to); });
}

DegMin DRLatitude(DegMin lat, Degrees course, Miles distance, Earth earth)
{
    if (distance <= Miles(0)) return lat;
    Degrees change = ArcOfMiles(distance) * cos(course);
    if (earth == Earth::Spheroid) {
        // lat enters as it is packed: the factor varies too slowly for the difference to show.
        const Degrees lookup =
            Degrees(std::fabs(2 * lat.packed() + change.value()) / latitudeFactorDivisor);
        change = Quotient(change, LatitudeFactor(lookup));
    }
    return DegToDegMin(DegMinToDeg(lat) + change);
}

DegMin DRLongitude(DegMin lat1, DegMin long1, Degrees course, Miles distance, Earth earth)
{
    return DRLongitude(lat1, long1, course, distance, earth,
                       DRLatitude(lat1, course, distance, earth));
}

DegMin DRLongitude(DegMin lat1, DegMin long1, Degrees course, Miles distance, Earth earth,
                   DegMin latReached)
{
    if (distance <= Miles(0)) return long1;
    const Degrees phi1 = DegMinToDeg(lat1);
    Degrees change;
    if (course == dueEast || course == dueWest) {
        // The cosine of a right angle is not quite 0 in binary, the fault is one all the same.
        if (fabs(phi1) == quarterTurn)
            throw ArithmeticError(ArithmeticError::Condition::DivisionByZero);
        const Miles run = course == dueEast ? distance : -distance;
        change = ArcOfMiles(Quotient(run, cos(phi1)));
        if (earth == Earth::Spheroid)
            change = Quotient(change, factorAt(asItStands(lat1), runFactors));
    } else {
        // First what does not wait for the latitude reached.
        const double slope = tan(course);
        const double partsLeft = MeridionalParts(phi1);
        const double parts = MeridionalParts(DegMinToDeg(latReached)) - partsLeft;
        change = Degrees(slope * parts / 60);
    }
    Degrees lambda = DegMinToDeg(long1) + change;
    // Close to a pole a run can go round the earth many times.
    if (fabs(lambda) > halfTurn + fullTurn) lambda = Degrees(std::fmod(lambda.value(), 360));
    if (lambda > halfTurn) lambda -= fullTurn;
    if (lambda < -halfTurn) lambda += fullTurn;
    return DegToDegMin(lambda);
}

Miles GCDistance(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2)
{
    const Radians phi1 = DegToRad(DegMinToDeg(lat1));
    const Radians lambda1 = DegToRad(DegMinToDeg(long1));
    const Radians phi2 = DegToRad(DegMinToDeg(lat2));
    const Radians lambda2 = DegToRad(DegMinToDeg(long2));
    const Radians change = unsignedShorterWay(lambda1, lambda2);
    return MilesOfArc(
        RadToDeg(ArcCos(sin(phi1) * sin(phi2) + cos(phi1) * cos(phi2) * cos(change))));
}

GreatCircle::GreatCircle(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2)
{
    const Radians phi1 = DegToRad(DegMinToDeg(lat1));
    const Radians phi2 = DegToRad(DegMinToDeg(lat2));
    m_lambda1 = DegToRad(DegMinToDeg(long1));
    m_sinPhi1 = sin(phi1);
    m_cosPhi1 = cos(phi1);

    const Radians change = unsignedShorterWay(m_lambda1, DegToRad(DegMinToDeg(long2)));
    m_angle = ArcTan2(m_cosPhi1 * tan(phi2) - m_sinPhi1 * cos(change), sin(change));
    // Its tangent divides; an initial angle of 0 stays the course due north.
    m_cotangent = Quotient(1, tan(m_angle == Radians(0) ? Radians(1e-7) : m_angle));
}

DegMin GreatCircle::latitudeAt(DegMin meridian) const
{
    const Radians run = unsignedShorterWay(DegToRad(DegMinToDeg(meridian)), m_lambda1);
    const Radians phi = ArcTan2(double(m_cosPhi1), m_cotangent * sin(run) + m_sinPhi1 * cos(run));
    return DegToDegMin(RadToDeg(phi));
}

DegMin GCLatitudeAt(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2, DegMin meridian)
{
    return GreatCircle(lat1, long1, lat2, long2).latitudeAt(meridian);
}

} // namespace NavFunc113
