// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <span>
#include <vector>

/// Lines of position and the fix from several of them. Everything here is in decimal degrees;
/// north and east are positive. One minute of latitude counts as a mile.
///
/// Sources: the sight reduction procedures of the Nautical Almanac (least squares); Bowditch,
/// American Practical Navigator (intercept, running fix).
namespace NavFunc113
{

struct Position {
    Degrees latitude;
    Degrees longitude;
};

/// Course and speed made good.
struct Motion {
    Degrees course;
    Knots speed;
};

/// Position after a run, by middle latitude; hours may be negative. Longitude comes out within
/// -180 .. 180.
/// @throws ArithmeticError DivisionByZero or Overflow for a run that ends at a pole
Position Advanced(const Position& from, const Motion& motion, Hours hours);

/// Altitude and true azimuth (0 <= azimuth < 360) of a body. Unlike ComputedAzimuth this holds on
/// the meridian, the prime vertical and in the zenith, where the azimuth comes out as 0.
struct HorizonPlace {
    Degrees altitude;
    Degrees azimuth;
};
HorizonPlace PlaceAboveHorizon(Degrees GHA, Degrees declination, const Position& position);

/// Intercept: positive towards the body, negative away.
Miles Intercept(Degrees observedAltitude, Degrees computedAltitude);

/// A sight as it enters a fix.
struct Sight {
    Degrees GHA;
    Degrees declination;
    Degrees observedAltitude; ///< corrected
    Hours sinceFix;           ///< time of the sight less that of the fix; before it negative
    double sigmas = 1;        ///< of the model's sigma: less for what several shots agree on
};

/// How good the sights and the run between them are held to be.
struct ErrorModel {
    Miles sigma = Miles(1); ///< of one line; more than 0
    double runAlong{};      ///< of the distance run, as a part of it (0.05: five per cent)
    Degrees runCourse;      ///< of the course made good
};

/// Line of position, referred to a dead-reckoned position that was run to the time of the sight.
struct LineOfPosition {
    Miles intercept;
    Degrees azimuth;
    Degrees computedAltitude;
};
LineOfPosition LineAt(const Sight& sight, const Position& atFix, const Motion& motion);

/// Variance of one line in square miles: that of the sight, and the part of the run's error that
/// lies across the line.
double LineVariance(const ErrorModel& errors, const Motion& motion, const Sight& sight,
                    Degrees azimuth);

/// Sums of the weighted lines: cos^2 Z, cos Z sin Z, sin^2 Z, each divided by sigma^2.
struct NormalMatrix {
    double A{};
    double B{};
    double C{};
    double determinant() const { return A * C - B * B; }
};

enum class FixOutcome {
    Found,
    TooFewLines,  ///< fewer than two
    Parallel,     ///< all azimuths alike or opposite
    NoConvergence ///< the circles do not meet near the dead-reckoned position
};

/// One pass of the least squares.
struct FixPass {
    Position from;       ///< position at the time of the fix that the lines are reduced from
    NormalMatrix matrix; ///< miles^-2
    double D{};          ///< sum of intercept cos Z / sigma^2
    double E{};          ///< sum of intercept sin Z / sigma^2
    Miles north;         ///< move to the next position
    Miles east;
};

struct Fix {
    FixOutcome outcome = FixOutcome::TooFewLines;
    Position position;            ///< valid when Found, as is all below
    NormalMatrix matrix;          ///< of the last pass, miles^-2
    std::vector<Miles> residuals; ///< in the order of the sights; positive towards the body
    double weightedSquares{};     ///< sum of (residual / sigma)^2
    int passes{};
    std::vector<FixPass> steps;        ///< the passes
    std::vector<LineOfPosition> lines; ///< of the last pass, in the order of the sights
    std::vector<double> weights;       ///< of these, 1 / sigma^2
};

/// Most probable position at the time of the fix, by least squares.
///
/// Each sight is reduced from the dead-reckoned position run back (or on) to its own time, so all
/// lines refer to the time of the fix; repeated from each result until it moves less than 0.01
/// miles.
/// @param atFix  dead-reckoned position at the time of the fix
Fix LeastSquaresFix(std::span<const Sight> sights, const Position& atFix, const Motion& motion,
                    const ErrorModel& errors);

/// Error ellipse in miles.
struct ErrorEllipse {
    double mean{};     ///< of the eigenvalues of the matrix: (A + C) / 2
    double spread{};   ///< half their difference
    double factor = 1; ///< k of the axes
    double scale = 1;  ///< of the sigmas
    Miles semiMajor;
    Miles semiMinor;
    Degrees majorAxis; ///< bearing, 0 <= bearing < 180
    Miles sigmaNorth;  ///< not scaled by the factor
    Miles sigmaEast;   ///< not scaled by the factor; a distance, not a longitude
};

/// @param matrix  not singular
/// @param factor  k that the axes, not the sigmas, are scaled by
/// @param scale   what every sigma in the matrix is multiplied by first
ErrorEllipse EllipseOf(const NormalMatrix& matrix, double factor, double scale = 1);

/// k of a 95 per cent ellipse when sigma was assumed beforehand: 2.4477.
double AssumedSigmaFactor();

/// k of a 95 per cent ellipse when sigma was measured from the residuals themselves: sqrt(2 F) with
/// F the 95 per cent point of the F distribution with 2 and n - 2 degrees of freedom.
/// @param lines n, at least 3
/// @throws ArithmeticError InvalidArgument for fewer
double MeasuredSigmaFactor(int lines);

/// sqrt(weightedSquares / (n - 2)): what the residuals say of the sigmas that were assumed.
/// @throws ArithmeticError InvalidArgument for fewer than three lines
double MeasuredScale(const Fix& fix);

/// Angle at which the best pair of lines cuts, 0 .. 90; 0 for fewer than two.
Degrees CutAngle(std::span<const Degrees> azimuths);

/// Points of the circle of position on both sides of where it passes nearest to a position, in
/// order, clockwise about the body's geographical position; the whole circle when it is shorter
/// than the length wanted.
/// @param halfLength along the circle; @param points at least 2
std::vector<Position> CirclePoints(const Sight& sight, const Position& near, Miles halfLength,
                                   int points);

} // namespace NavFunc113
