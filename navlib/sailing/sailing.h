// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <span>
#include <string_view>

/// Sailing formulas: rhumb line by meridional parts, dead reckoning and great circle.
///
/// Latitudes and longitudes are packed values, north and east positive, unless a parameter says
/// otherwise. Earth::Spheroid applies the lengths of the minute of latitude and longitude on the
/// spheroid (in miles of 1852 m); on Earth::Sphere both are a mile.
///
/// Accuracy against the rhumb line of WGS 84 (bench/SailingAccuracy.cpp, 100000 legs each, at the
/// worst): Earth::Spheroid, distances 0.30 per cent to latitude 60, 0.41 to 75, 0.50 to 89, the
/// most on long legs across the equator; legs of some hundred miles 0.03, runs to 600 miles 0.04.
/// Earth::Sphere, miles of 1852 m: distances and runs 0.50 per cent to latitude 75. Courses 0.001
/// degrees. The great circle against the geodesic, 30000 to latitude 65: distance 0.49 per cent.
/// Source of the methods: Bowditch, American Practical Navigator, chapter "The Sailings".
namespace NavFunc113
{

enum class Earth { Sphere, Spheroid };

/// Change of longitude from one meridian to another by the shorter way, east positive.
/// @return -180 .. 180; meridians exactly 180 degrees apart keep the sign of long2 - long1
Degrees ChangeOfLongitude(DegMin long1, DegMin long2);

enum class EastOrWest { East, West };

/// The shorter way from one meridian to another. Equal meridians and meridians exactly 180 degrees
/// apart are West.
EastOrWest EastWest(DegMin long1, DegMin long2);

/// "East" or "West".
std::string_view NameOf(EastOrWest way);

/// Meridional parts of a latitude, in minutes of longitude, the second term taking the
/// ellipticity into account.
/// @param lat decimal degrees, -90 < lat <= 90
/// @throws ArithmeticError InvalidArgument at -90 and beyond either pole
double MeridionalParts(Degrees lat);

/// Length of one minute of latitude of the spheroid in miles, interpolated.
/// @param lat decimal degrees, 0 .. 90; beyond, the table is extrapolated
double LatitudeFactor(Degrees lat);

/// Length of one minute of longitude of the spheroid, divided by the cosine of the latitude, in
/// miles; interpolated.
/// @param lat decimal degrees, 0 .. 90
double ParallelFactor(Degrees lat);

/// A node of the tables between which the factors are interpolated by Lagrange's formula.
struct FactorNode {
    double lat; ///< degrees
    double factor;
};
std::span<const FactorNode> LatitudeFactorTable();
std::span<const FactorNode> ParallelFactorTable();
/// That of dead reckoning along a parallel.
std::span<const FactorNode> RunFactorTable();

/// Rhumb-line course from one position to another.
/// @return true, 0 <= course < 360; 0 for equal positions
/// @throws ArithmeticError as MeridionalParts
Degrees RhumbCourse(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2);

/// Rhumb-line distance between two positions. Latitudes less than 1e-9 degrees apart are one
/// parallel.
/// @throws ArithmeticError as MeridionalParts; DivisionByZero for a course of exactly 90 or 270
///         between different latitudes
Miles RhumbDistance(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2, Earth earth);

/// What a rhumb-line leg was calculated from, in the order of its working.
struct RhumbSteps {
    Degrees changeOfLongitude; ///< by the shorter way, east positive
    double parts1{};           ///< meridional parts of either latitude
    double parts2{};
    Degrees lookup;             ///< latitude with which latitudeFactor was looked up
    double latitudeFactor = 1;  ///< miles of a minute of latitude; 1 on the sphere
    Degrees changeOfLatitude;   ///< times that factor
    bool alongParallel = false; ///< the distance is that along the parallel
    double parallelFactor = 1;  ///< miles of a minute of longitude by its cosine; 1 on the sphere
};

/// A rhumb-line leg.
struct RhumbLeg {
    Degrees course; ///< true, 0 <= course < 360
    Miles distance;
    RhumbSteps steps;
};

/// RhumbCourse and RhumbDistance of one leg in one go, for whoever wants both.
/// @throws ArithmeticError as RhumbDistance
RhumbLeg RhumbCourseAndDistance(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2, Earth earth);

/// Latitude reached by dead reckoning: change of latitude = distance x cos course.
///
/// @param lat      latitude left
/// @param course   true, 0 .. 360
/// @param distance 0 or less: not under way, lat comes back untouched
/// @return latitude reached; beyond 90 when the run crosses a pole (the caller decides)
DegMin DRLatitude(DegMin lat, Degrees course, Miles distance, Earth earth);

/// DRLatitude with what it was calculated from.
struct LatitudeRun {
    Degrees run;       ///< distance x cos course, as arc
    Degrees lookup;    ///< latitude with which the factor was looked up
    double factor = 1; ///< miles of a minute of latitude; 1 on the sphere
    Degrees change;    ///< of latitude
    DegMin reached;
};
LatitudeRun RunInLatitude(DegMin lat, Degrees course, Miles distance, Earth earth);

/// Longitude reached by dead reckoning. On courses of exactly 90 and 270 by the length of the
/// parallel, otherwise by meridional parts up to the latitude that DRLatitude reaches.
///
/// @param course   true, 0 .. 360
/// @param distance 0 or less: not under way, long1 comes back untouched
/// @return -180 .. 180, however many times the run goes round the earth
/// @throws ArithmeticError as MeridionalParts when the run crosses a pole; DivisionByZero for
///         courses 90 and 270 on a pole, whose parallel has no length
DegMin DRLongitude(DegMin lat1, DegMin long1, Degrees course, Miles distance, Earth earth);

/// The same for whoever has the latitude reached already.
/// @param latReached what DRLatitude gives for lat1, course, distance and earth
DegMin DRLongitude(DegMin lat1, DegMin long1, Degrees course, Miles distance, Earth earth,
                   DegMin latReached);

/// DRLongitude with what it was calculated from.
struct LongitudeRun {
    bool alongParallel = false;
    double factor = 1; ///< along a parallel: miles of a minute of longitude by its cosine
    double parts1{};   ///< otherwise: meridional parts of either latitude
    double parts2{};
    Degrees change; ///< of longitude
    DegMin reached;
};
LongitudeRun RunInLongitude(DegMin lat1, DegMin long1, Degrees course, Miles distance, Earth earth,
                            DegMin latReached);

/// Great-circle distance on the sphere, one mile a minute of arc.
/// @return 0 .. 10800
/// @throws ArithmeticError DivisionByZero for positions exactly 90 degrees of arc apart,
///         InvalidArgument when rounding takes the cosine beyond +-1, as it may between equal or
///         opposite positions
Miles GCDistance(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2);

/// The great circle from one position to another, for several meridians.
///
/// Four-parts formula cos phi1 tan phi = sin phi1 cos run + sin run cot angle, with unsigned
/// changes of longitude: a meridian asked for must lie between those of the two positions, on the
/// side of the shorter change of longitude.
class GreatCircle
{
public:
    GreatCircle(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2);

    /// Initial course angle, 0 .. pi, from north towards the destination on either side.
    Radians initialAngle() const { return m_angle; }

    /// Latitude at which the circle crosses a meridian.
    DegMin latitudeAt(DegMin meridian) const;

private:
    Radians m_lambda1;
    double m_sinPhi1;
    double m_cosPhi1;
    Radians m_angle;
    double m_cotangent; ///< of the initial angle
};

/// Latitude at which the great circle from position 1 to position 2 crosses a meridian, as
/// GreatCircle::latitudeAt.
DegMin GCLatitudeAt(DegMin lat1, DegMin long1, DegMin lat2, DegMin long2, DegMin meridian);

} // namespace NavFunc113
