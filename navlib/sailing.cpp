// SPDX-License-Identifier: MIT
#include "navlib/sailing.h"

#include "navlib/angles.h"

#include <array>
#include <cmath>

namespace NavFunc113
{
namespace
{

using Condition = ArithmeticError::Condition;

constexpr std::array<TablePair, 5> latitudeFactors{
    {{0, 0.99509}, {20, 0.99627}, {40, 0.99924}, {65, 1.00335}, {90, 1.00518}}};
constexpr std::array<TablePair, 4> parallelFactors{
    {{0, 1.00178}, {30, 1.00263}, {60, 1.00432}, {90, 1.00518}}};
// Dead reckoning has its own value at the pole, on purpose.
constexpr std::array<TablePair, 4> runFactors{
    {{0, 1.00178}, {30, 1.00263}, {60, 1.00432}, {90, 1.00513}}};

// Deliberately not 2, and the same for distance and dead reckoning.
constexpr double latitudeFactorDivisor = 2.05;

double factorAt(Degrees lat, std::span<const TablePair> table)
{
    return InterpolateLagrange(lat, table).value_or(0);
}

Degrees shorterWay(Degrees lambda1, Degrees lambda2)
{
    const Degrees change = lambda2 - lambda1;
    if (change > 180) return change - 360;
    if (change < -180) return change + 360;
    return change;
}

Radians unsignedShorterWay(Radians lambda1, Radians lambda2)
{
    // Exactly half a turn stays half a turn.
    const Radians change = std::fabs(lambda2 - lambda1);
    return change > Pi() ? std::fabs(change - 2 * Pi()) : change;
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
    return std::fabs(lambda2 - lambda1) != 180 && shorterWay(lambda1, lambda2) > 0;
}

Degrees courseBetween(const Place& from, const Place& to)
{
    const Degrees change = shorterWay(from.lambda, to.lambda);
    double parts = MeridionalParts(to.phi) - MeridionalParts(from.phi);
    if (parts == 0) {
        if (change == 0) return 0;
        return eastward(from.lambda, to.lambda) ? 90 : 270;
    }
    Degrees course = RadToDeg(ArcTan2(parts, 60 * change));
    if (course < 0) course += 360;
    return course < 360 ? course : 0; // a hair west of north rounds to 360
}

Miles alongParallel(const Place& from, const Place& to)
{
    Degrees change = std::fabs(to.lambda - from.lambda);
    if (change > 180) change = 360 - change;
    return std::fabs(change * 60 * std::cos(DegToRad(from.phi)));
}

} // namespace

Degrees ChangeOfLongitude(DegMin long1, DegMin long2)
{
    return shorterWay(DegMinToDeg(long1), DegMinToDeg(long2));
}

std::string EastWest(DegMin long1, DegMin long2)
{
    return eastward(DegMinToDeg(long1), DegMinToDeg(long2)) ? "East" : "West";
}

double MeridionalParts(Degrees lat)
{
    const Radians phi = DegToRad(lat);
    return 7915.7 * Log10(std::tan(Pi() / 4 + phi / 2)) - 23.1 * std::sin(phi);
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

Miles RhumbDistance(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2, int spheroid)
{
    const Place from = placeOf(lat1, long1);
    const Place to = placeOf(lat2, long2);
    Degrees change = to.phi - from.phi;
    if (spheroid == 1)
        change *= LatitudeFactor(std::fabs(from.phi + to.phi) / latitudeFactorDivisor);
    if (std::fabs(change) < 1e-9) {
        const Miles distance = alongParallel(from, to);
        return spheroid == 1 ? distance * ParallelFactor(std::fabs(lat1)) : distance;
    }
    const Degrees course = courseBetween(from, to);
    // The cosine of a right angle is not quite 0 in binary, the fault is one all the same.
    if (course == 90 || course == 270) throw ArithmeticError(Condition::DivisionByZero);
    return std::fabs(Quotient(change, std::cos(DegToRad(course)))) * 60;
}

DegMin DRLatitude(DegMin lat, Degrees course, Miles distance, int spheroid)
{
    if (distance <= 0) return lat;
    Degrees change = distance / 60 * std::cos(DegToRad(course));
    if (spheroid == 1) {
        // lat enters as it is packed: the factor varies too slowly for the difference to show.
        const Degrees lookup = std::fabs(2 * lat + change) / latitudeFactorDivisor;
        change = Quotient(change, LatitudeFactor(lookup));
    }
    return DegToDegMin(DegMinToDeg(lat) + change);
}

DegMin DRLongitude(DegMin lat1, DegMin long1, Degrees course, Miles distance, int spheroid)
{
    if (distance <= 0) return long1;
    const Degrees phi1 = DegMinToDeg(lat1);
    Degrees change = 0;
    if (course == 90 || course == 270) {
        // The cosine of a right angle is not quite 0 in binary, the fault is one all the same.
        if (std::fabs(phi1) == 90) throw ArithmeticError(Condition::DivisionByZero);
        const Miles run = course == 90 ? distance : -distance;
        change = Quotient(run, std::cos(DegToRad(phi1))) / 60;
        if (spheroid == 1) change = Quotient(change, factorAt(std::fabs(lat1), runFactors));
    } else {
        const Degrees phi2 = DegMinToDeg(DRLatitude(lat1, course, distance, spheroid));
        const double parts = MeridionalParts(phi2) - MeridionalParts(phi1);
        change = std::tan(DegToRad(course)) * parts / 60;
    }
    Degrees lambda = DegMinToDeg(long1) + change;
    // Close to a pole a run can go round the earth many times.
    if (std::fabs(lambda) > 540) lambda = std::fmod(lambda, 360);
    if (lambda > 180) return DegToDegMin(lambda - 360);
    if (lambda < -180) return DegToDegMin(lambda + 360);
    return DegToDegMin(lambda);
}

Miles GCDistance(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2)
{
    const Radians phi1 = DegToRad(DegMinToDeg(lat1));
    const Radians lambda1 = DegToRad(DegMinToDeg(long1));
    const Radians phi2 = DegToRad(DegMinToDeg(lat2));
    const Radians lambda2 = DegToRad(DegMinToDeg(long2));
    const Radians change = unsignedShorterWay(lambda1, lambda2);
    return 60 * RadToDeg(ArcCos(std::sin(phi1) * std::sin(phi2) +
                                std::cos(phi1) * std::cos(phi2) * std::cos(change)));
}

DegMin GCLatitudeAt(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2, DegMin meridian)
{
    const Radians phi1 = DegToRad(DegMinToDeg(lat1));
    const Radians lambda1 = DegToRad(DegMinToDeg(long1));
    const Radians phi2 = DegToRad(DegMinToDeg(lat2));
    const Radians lambda2 = DegToRad(DegMinToDeg(long2));
    const Radians lambda = DegToRad(DegMinToDeg(meridian));

    const Radians change = unsignedShorterWay(lambda1, lambda2);
    Radians angle = ArcTan2(std::cos(phi1) * std::tan(phi2) - std::sin(phi1) * std::cos(change),
                            std::sin(change));
    if (angle == 0) angle = 1e-7; // its tangent divides below
    const Radians run = unsignedShorterWay(lambda, lambda1);
    const Radians phi = ArcTan2(std::cos(phi1), Quotient(1, std::tan(angle)) * std::sin(run) +
                                                    std::sin(phi1) * std::cos(run));
    return DegToDegMin(RadToDeg(phi));
}

} // namespace NavFunc113
