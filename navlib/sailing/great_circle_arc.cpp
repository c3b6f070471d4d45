// SPDX-License-Identifier: MIT
#include "navlib/sailing/great_circle_arc.h"

#include "navlib/angles.h"

#include <cmath>

namespace NavFunc113
{
namespace
{

using Vector = std::array<double, 3>;

// Below this sine (some micrometres on the earth) two points are one.
constexpr double onePoint = 1e-12;
constexpr Degrees longestPiece(5);

Vector vectorOf(const GeoPoint& point)
{
    const Degrees phi = DegMinToDeg(point.lat);
    const Degrees lambda = DegMinToDeg(point.longitude);
    return {cos(phi) * cos(lambda), cos(phi) * sin(lambda), sin(phi)};
}

Vector cross(const Vector& a, const Vector& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double dot(const Vector& a, const Vector& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Degrees latitudeOf(const Vector& point)
{
    return RadToDeg(Radians(std::atan2(point[2], std::hypot(point[0], point[1]))));
}

} // namespace

GreatCircleArc::GreatCircleArc(const GeoPoint& from, const GeoPoint& to) : m_from(vectorOf(from))
{
    const Vector end = vectorOf(to);
    const Vector pole = cross(m_from, end);
    const double sine = std::hypot(pole[0], pole[1], pole[2]);
    m_arc = RadToDeg(Radians(std::atan2(sine, dot(m_from, end))));
    m_isDefined = sine > onePoint;
    if (!m_isDefined) return;
    m_pole = {pole[0] / sine, pole[1] / sine, pole[2] / sine};
    m_ahead = cross(m_pole, m_from);
}

Vector GreatCircleArc::vectorAt(Degrees run) const
{
    if (!m_isDefined) return m_from;
    Vector point{};
    for (std::size_t i = 0; i < point.size(); ++i)
        point[i] = m_from[i] * cos(run) + m_ahead[i] * sin(run);
    return point;
}

GeoPoint GreatCircleArc::pointAt(Degrees run) const
{
    const Vector point = vectorAt(run);
    return {DegToDegMin(latitudeOf(point)),
            DegToDegMin(RadToDeg(Radians(std::atan2(point[1], point[0]))))};
}

Degrees GreatCircleArc::courseAt(Degrees run) const
{
    if (!m_isDefined) return Degrees(0);
    const Vector point = vectorAt(run);
    const Vector way = cross(m_pole, point);
    const double parallel = std::hypot(point[0], point[1]);
    // East and north parts of the way ahead, both times the radius of the parallel.
    return CourseOfParts(way[1] * point[0] - way[0] * point[1],
                         way[2] * parallel * parallel -
                             point[2] * (way[0] * point[0] + way[1] * point[1]));
}

std::optional<DegMin> GreatCircleArc::latitudeAt(DegMin meridian) const
{
    if (std::fabs(m_pole[2]) < onePoint) return std::nullopt;
    const Degrees lambda = DegMinToDeg(meridian);
    const double tangent = -(m_pole[0] * cos(lambda) + m_pole[1] * sin(lambda)) / m_pole[2];
    return DegToDegMin(RadToDeg(Radians(std::atan(tangent))));
}

std::optional<std::array<Degrees, 2>> GreatCircleArc::runsAt(DegMin parallel) const
{
    // The sine of the latitude at a run is m_from[2] cos run + m_ahead[2] sin run.
    const double towards = parallel < DegMin() ? -1 : 1;
    const double ofVertex = std::hypot(m_from[2], m_ahead[2]);
    const double wanted = towards * sin(DegMinToDeg(parallel));
    if (!m_isDefined || wanted > ofVertex || ofVertex == 0) return std::nullopt;
    const Degrees vertex = RadToDeg(Radians(std::atan2(towards * m_ahead[2], towards * m_from[2])));
    const Degrees aside = RadToDeg(Radians(std::acos(wanted / ofVertex)));
    return std::array{vertex - aside, vertex + aside};
}

Miles GreatCircleArc::distance(Earth earth) const
{
    if (earth == Earth::Sphere || !m_isDefined) return MilesOfArc(m_arc);
    const double pieces = std::ceil(m_arc / longestPiece);
    Miles sum;
    for (double i = 0; i < pieces; ++i) {
        const Degrees middle = m_arc * ((i + 0.5) / pieces);
        const Degrees phi = fabs(latitudeOf(vectorAt(middle)));
        const Degrees course = courseAt(middle);
        sum += MilesOfArc(m_arc / pieces) *
               std::hypot(LatitudeFactor(phi) * cos(course), ParallelFactor(phi) * sin(course));
    }
    return sum;
}

} // namespace NavFunc113
