// SPDX-License-Identifier: MIT
#include "navlib/sailing/sailing.h"

#include "navlib/angles.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace NavFunc113
{
namespace
{

constexpr std::array<FactorNode, 5> latitudeFactors{
    {{0, 0.99509}, {20, 0.99627}, {40, 0.99924}, {65, 1.00335}, {90, 1.00518}}};
constexpr std::array<FactorNode, 4> parallelFactors{
    {{0, 1.00178}, {30, 1.00263}, {60, 1.00432}, {90, 1.00518}}};
// Dead reckoning has its own value at the pole, on purpose.
constexpr std::array<FactorNode, 4> runFactors{
    {{0, 1.00178}, {30, 1.00263}, {60, 1.00432}, {90, 1.00513}}};

// Deliberately not 2, and the same for distance and dead reckoning.
constexpr double latitudeFactorDivisor = 2.05;

constexpr Degrees dueEast(90);
constexpr Degrees dueWest(270);
constexpr Radians sineIsEnough(1.3);  // 74 degrees
constexpr Degrees sameParallel(1e-9); // nearer than this two latitudes are one

/// A packed latitude taken for decimal degrees, unconverted: its factor varies too slowly for the
/// difference to show.
Degrees asItStands(DegMin lat)
{
    return Degrees(std::fabs(lat.packed()));
}

/// Each factor over the distances of its node from the others: what of Lagrange's formula does not
/// depend on the latitude.
template <std::size_t n>
constexpr std::array<double, n> sharesOf(const std::array<FactorNode, n>& table)
{
    std::array<double, n> shares{};
    for (std::size_t j = 0; j < n; ++j) {
        shares[j] = table[j].factor;
        for (std::size_t i = 0; i < n; ++i)
            if (i != j) shares[j] /= table[j].lat - table[i].lat;
    }
    return shares;
}

/// InterpolateLagrange over a table that the compiler knows, node by node and without a division.
template <const auto& table>
double factorAt(Degrees lat)
{
    static constexpr auto shares = sharesOf(table);
    double sum = 0, product = 1;
    for (std::size_t j = 0; j < shares.size(); ++j) {
        const double away = lat.value() - table[j].lat;
        sum = sum * away + shares[j] * product;
        product *= away;
    }
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
    const Radians change = fabs(lambda2 - lambda1);
    return std::min(change, fabs(change - Radians(2 * Pi())));
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

Degrees courseBetween(const Place& from, const Place& to, RhumbSteps& steps)
{
    const Degrees change = shorterWay(from.lambda, to.lambda);
    steps.changeOfLongitude = change;
    steps.parts1 = MeridionalParts(from.phi);
    steps.parts2 = MeridionalParts(to.phi);
    const double parts = steps.parts2 - steps.parts1;
    if (parts == 0) {
        if (change == Degrees(0)) return Degrees(0);
        return eastward(from.lambda, to.lambda) ? dueEast : dueWest;
    }
    return AsCourse(RadToDeg(ArcTan2(double(parts), 60 * change.value())));
}

Miles alongParallel(const Place& from, const Place& to)
{
    const Degrees change = fabs(to.lambda - from.lambda);
    return fabs(MilesOfArc(std::min(change, fullTurn - change)) * cos(from.phi));
}

// The course is asked for only where the distance needs it: along a parallel it may not exist.
template <typename Course>
Miles distanceBetween(const Place& from, const Place& to, DegMin lat1, Earth earth, Course course,
                      RhumbSteps& steps)
{
    Degrees change = to.phi - from.phi;
    if (earth == Earth::Spheroid) {
        steps.lookup = fabs(from.phi + to.phi) / latitudeFactorDivisor;
        steps.latitudeFactor = LatitudeFactor(steps.lookup);
        change *= steps.latitudeFactor;
    }
    steps.changeOfLatitude = change;
    if (fabs(change) < sameParallel) {
        steps.alongParallel = true;
        const Miles distance = alongParallel(from, to);
        if (earth == Earth::Sphere) return distance;
        steps.parallelFactor = ParallelFactor(asItStands(lat1));
        return distance * steps.parallelFactor;
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
    const double sine = sin(phi);
    // log tan(45° + phi/2) is half of log((1 + sin phi) / (1 - sin phi)), without a tangent; but
    // towards a pole the difference in it loses figures.
    const double logarithm = fabs(phi) < sineIsEnough ? Log10((1 + sine) / (1 - sine)) / 2
                                                      : Log10(tan(Radians(Pi() / 4) + phi / 2));
    return 7915.7 * logarithm - 23.1 * sine;
}

double LatitudeFactor(Degrees lat)
{
    return factorAt<latitudeFactors>(lat);
}

double ParallelFactor(Degrees lat)
{
    return factorAt<parallelFactors>(lat);
}

std::span<const FactorNode> LatitudeFactorTable()
{
    return latitudeFactors;
}

std::span<const FactorNode> ParallelFactorTable()
{
    return parallelFactors;
}

std::span<const FactorNode> RunFactorTable()
{
    return runFactors;
}

Degrees RhumbCourse(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2)
{
    RhumbSteps steps;
    return courseBetween(placeOf(lat1, long1), placeOf(lat2, long2), steps);
}

RhumbLeg RhumbCourseAndDistance(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2, Earth earth)
{
    const Place from = placeOf(lat1, long1);
    const Place to = placeOf(lat2, long2);
    RhumbLeg leg;
    leg.course = courseBetween(from, to, leg.steps);
    leg.distance = distanceBetween(
        from, to, lat1, earth, [&leg] { return leg.course; }, leg.steps);
    return leg;
}

Miles RhumbDistance(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2, Earth earth)
{
    const Place from = placeOf(lat1, long1);
    const Place to = placeOf(lat2, long2);
    RhumbSteps steps;
    return distanceBetween(
        from, to, lat1, earth, [&] { return courseBetween(from, to, steps); }, steps);
}

LatitudeRun RunInLatitude(DegMin lat, Degrees course, Miles distance, Earth earth)
{
    LatitudeRun steps;
    steps.reached = lat;
    if (distance <= Miles(0)) return steps;
    steps.run = ArcOfMiles(distance) * cos(course);
    steps.change = steps.run;
    if (earth == Earth::Spheroid) {
        // lat enters as it is packed: the factor varies too slowly for the difference to show.
        steps.lookup =
            Degrees(std::fabs(2 * lat.packed() + steps.run.value()) / latitudeFactorDivisor);
        steps.factor = LatitudeFactor(steps.lookup);
        steps.change = Quotient(steps.run, steps.factor);
    }
    steps.reached = DegToDegMin(DegMinToDeg(lat) + steps.change);
    return steps;
}

DegMin DRLatitude(DegMin lat, Degrees course, Miles distance, Earth earth)
{
    return RunInLatitude(lat, course, distance, earth).reached;
}

DegMin DRLongitude(DegMin lat1, DegMin long1, Degrees course, Miles distance, Earth earth)
{
    return DRLongitude(lat1, long1, course, distance, earth,
                       DRLatitude(lat1, course, distance, earth));
}

DegMin DRLongitude(DegMin lat1, DegMin long1, Degrees course, Miles distance, Earth earth,
                   DegMin latReached)
{
    return RunInLongitude(lat1, long1, course, distance, earth, latReached).reached;
}

LongitudeRun RunInLongitude(DegMin lat1, DegMin long1, Degrees course, Miles distance, Earth earth,
                            DegMin latReached)
{
    LongitudeRun steps;
    steps.reached = long1;
    if (distance <= Miles(0)) return steps;
    const Degrees phi1 = DegMinToDeg(lat1);
    if (course == dueEast || course == dueWest) {
        // The cosine of a right angle is not quite 0 in binary, the fault is one all the same.
        if (fabs(phi1) == quarterTurn)
            throw ArithmeticError(ArithmeticError::Condition::DivisionByZero);
        const Miles run = course == dueEast ? distance : -distance;
        steps.alongParallel = true;
        steps.change = ArcOfMiles(Quotient(run, cos(phi1)));
        if (earth == Earth::Spheroid) {
            steps.factor = factorAt<runFactors>(asItStands(lat1));
            steps.change = Quotient(steps.change, steps.factor);
        }
    } else {
        // First what does not wait for the latitude reached.
        const double slope = tan(course);
        steps.parts1 = MeridionalParts(phi1);
        steps.parts2 = MeridionalParts(DegMinToDeg(latReached));
        const double parts = steps.parts2 - steps.parts1;
        steps.change = Degrees(slope * parts / 60);
    }
    // Close to a pole a run can go round the earth many times.
    Degrees lambda(std::fmod((DegMinToDeg(long1) + steps.change).value(), 360));
    if (lambda > halfTurn) lambda -= fullTurn;
    if (lambda < -halfTurn) lambda += fullTurn;
    steps.reached = DegToDegMin(lambda);
    return steps;
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
