// SPDX-License-Identifier: MIT
#include "navlib/sky/sight_fix.h"

#include "navlib/angles.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace NavFunc113
{
namespace
{

double square(double value)
{
    return value * value;
}

/// Change of longitude of a run along a parallel.
Degrees changeOfLongitude(Miles east, Degrees latitude)
{
    return Degrees(Quotient(east.value(), 60 * cos(latitude)));
}

/// Northern and eastern miles to a position's change of place.
Position moved(const Position& from, Miles north, Miles east)
{
    const Degrees latitude = from.latitude + ArcOfMiles(north);
    const Degrees middle = (from.latitude + latitude) / 2;
    return {latitude, WithinHalfTurn(from.longitude + changeOfLongitude(east, middle))};
}

/// One pass of the least squares from a position.
struct Pass {
    FixPass sums;
    std::vector<LineOfPosition> lines;
    std::vector<double> weights;
};

Pass passFrom(std::span<const Sight> sights, const Position& atFix, const Motion& motion,
              const ErrorModel& errors)
{
    Pass pass;
    pass.sums.from = atFix;
    NormalMatrix& matrix = pass.sums.matrix;
    for (const Sight& sight : sights) {
        const LineOfPosition line = LineAt(sight, atFix, motion);
        const double w = Quotient(1, LineVariance(errors, motion, sight, line.azimuth));
        const double cosZ = cos(line.azimuth);
        const double sinZ = sin(line.azimuth);
        matrix.A += w * cosZ * cosZ;
        matrix.B += w * cosZ * sinZ;
        matrix.C += w * sinZ * sinZ;
        pass.sums.D += w * line.intercept.value() * cosZ;
        pass.sums.E += w * line.intercept.value() * sinZ;
        pass.lines.push_back(line);
        pass.weights.push_back(w);
    }
    return pass;
}

/// G against the square of the sum of the weights: independent of how many lines and how weighty.
bool isParallel(const NormalMatrix& matrix)
{
    return !(matrix.determinant() >= 1e-6 * square(matrix.A + matrix.C));
}

/// What the last pass leaves of each line.
void setResiduals(Pass pass, Fix& fix)
{
    const FixPass& sums = pass.sums;
    fix.outcome = FixOutcome::Found;
    fix.matrix = sums.matrix;
    for (std::size_t i = 0; i < pass.lines.size(); ++i) {
        const auto& line = pass.lines[i];
        fix.residuals.push_back(line.intercept -
                                (sums.north * cos(line.azimuth) + sums.east * sin(line.azimuth)));
        fix.weightedSquares += pass.weights[i] * square(fix.residuals.back().value());
    }
    fix.lines = std::move(pass.lines);
    fix.weights = std::move(pass.weights);
}

} // namespace

Position Advanced(const Position& from, const Motion& motion, Hours hours)
{
    const Miles run = motion.speed * hours;
    return moved(from, run * cos(motion.course), run * sin(motion.course));
}

HorizonPlace PlaceAboveHorizon(Degrees GHA, Degrees declination, const Position& position)
{
    const Degrees t = GHA + position.longitude;
    const double north = cos(position.latitude) * sin(declination) -
                         sin(position.latitude) * cos(declination) * cos(t);
    const double east = -cos(declination) * sin(t);
    const double up = sin(position.latitude) * sin(declination) +
                      cos(position.latitude) * cos(declination) * cos(t);
    return {RadToDeg(Radians(std::atan2(up, std::hypot(north, east)))), CourseOfParts(east, north)};
}

Miles Intercept(Degrees observedAltitude, Degrees computedAltitude)
{
    return MilesOfArc(observedAltitude - computedAltitude);
}

LineOfPosition LineAt(const Sight& sight, const Position& atFix, const Motion& motion)
{
    const Position atSight = Advanced(atFix, motion, sight.sinceFix);
    const HorizonPlace body = PlaceAboveHorizon(sight.GHA, sight.declination, atSight);
    return {Intercept(sight.observedAltitude, body.altitude), body.azimuth, body.altitude};
}

double LineVariance(const ErrorModel& errors, const Motion& motion, const Sight& sight,
                    Degrees azimuth)
{
    const Miles run = motion.speed * fabs(sight.sinceFix);
    const Degrees toCourse = azimuth - motion.course;
    const Miles along = errors.runAlong * run * cos(toCourse);
    const Miles across = run * sin(errors.runCourse) * sin(toCourse);
    const double ofSight = square(sight.sigmas * errors.sigma.value());
    return ofSight + square(along.value()) + square(across.value());
}

Fix LeastSquaresFix(std::span<const Sight> sights, const Position& atFix, const Motion& motion,
                    const ErrorModel& errors)
{
    constexpr int mostPasses = 30;
    Fix fix;
    fix.position = atFix;
    if (sights.size() < 2) return fix;
    while (fix.passes < mostPasses) {
        ++fix.passes;
        Pass pass = passFrom(sights, fix.position, motion, errors);
        const NormalMatrix& m = pass.sums.matrix;
        if (isParallel(m)) {
            fix.outcome = FixOutcome::Parallel;
            return fix;
        }
        const Miles north(Quotient(m.C * pass.sums.D - m.B * pass.sums.E, m.determinant()));
        const Miles east(Quotient(m.A * pass.sums.E - m.B * pass.sums.D, m.determinant()));
        pass.sums.north = north;
        pass.sums.east = east;
        fix.steps.push_back(pass.sums);
        const Position next{fix.position.latitude + ArcOfMiles(north),
                            fix.position.longitude +
                                changeOfLongitude(east, fix.position.latitude)};
        if (fabs(next.latitude) >= quarterTurn) break;
        fix.position = {next.latitude, WithinHalfTurn(next.longitude)};
        if (std::hypot(north.value(), east.value()) >= 0.01) continue;
        setResiduals(std::move(pass), fix);
        return fix;
    }
    fix.outcome = FixOutcome::NoConvergence;
    return fix;
}

ErrorEllipse EllipseOf(const NormalMatrix& matrix, double factor, double scale)
{
    // Straight from the eigenvalues m - q and m + q: closed forms by tan 2 theta confuse the axes
    // when A is greater than C.
    const double m = (matrix.A + matrix.C) / 2;
    const double q = std::hypot((matrix.A - matrix.C) / 2, matrix.B);
    const double determinant = matrix.determinant();
    ErrorEllipse ellipse;
    ellipse.mean = m;
    ellipse.spread = q;
    ellipse.factor = factor;
    ellipse.scale = scale;
    ellipse.semiMinor = Miles(Quotient(factor * scale, std::sqrt(m + q)));
    // (m - q)(m + q) is the determinant: no cancellation in m - q for a long ellipse.
    ellipse.semiMajor = Miles(factor * scale * SquareRoot(Quotient(m + q, determinant)));
    const Degrees minorAxis = RadToDeg(Radians(std::atan2(2 * matrix.B, matrix.A - matrix.C))) / 2;
    ellipse.majorAxis =
        minorAxis + quarterTurn >= halfTurn ? minorAxis - quarterTurn : minorAxis + quarterTurn;
    ellipse.sigmaNorth = Miles(scale * SquareRoot(Quotient(matrix.C, determinant)));
    ellipse.sigmaEast = Miles(scale * SquareRoot(Quotient(matrix.A, determinant)));
    return ellipse;
}

double AssumedSigmaFactor()
{
    return std::sqrt(-2 * std::log(0.05));
}

double MeasuredSigmaFactor(int lines)
{
    if (lines < 3) throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
    const double freedom = lines - 2;
    const double F = freedom / 2 * (std::pow(0.05, -2 / freedom) - 1);
    return std::sqrt(2 * F);
}

double MeasuredScale(const Fix& fix)
{
    if (fix.residuals.size() < 3)
        throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
    return std::sqrt(fix.weightedSquares / static_cast<double>(fix.residuals.size() - 2));
}

Degrees CutAngle(std::span<const Degrees> azimuths)
{
    Degrees best;
    for (std::size_t i = 0; i < azimuths.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            best = std::max(
                best, Degrees(std::fabs(std::remainder((azimuths[i] - azimuths[j]).value(), 180))));
    return best;
}

std::vector<Position> CirclePoints(const Sight& sight, const Position& near, Miles halfLength,
                                   int points)
{
    const Position body{sight.declination, -sight.GHA};
    const Degrees zenithDistance = fabs(quarterTurn - sight.observedAltitude);
    const Degrees towards = PlaceAboveHorizon(-near.longitude, near.latitude, body).azimuth;
    const Miles radius = MilesOfArc(RadToDeg(Radians(std::fabs(sin(zenithDistance)))));
    const Degrees half =
        radius * Pi() <= halfLength ? halfTurn : RadToDeg(Radians(halfLength / radius));
    std::vector<Position> result;
    for (int i = 0; i < points; ++i) {
        const Degrees bearing = towards + half * (2.0 * i / (points - 1) - 1);
        const double sinLatitude = sin(body.latitude) * cos(zenithDistance) +
                                   cos(body.latitude) * sin(zenithDistance) * cos(bearing);
        const double x = cos(zenithDistance) - sin(body.latitude) * sinLatitude;
        const double y = sin(bearing) * sin(zenithDistance) * cos(body.latitude);
        const Degrees change = RadToDeg(Radians(std::atan2(y, x)));
        result.push_back({RadToDeg(Radians(std::asin(std::clamp(sinLatitude, -1.0, 1.0)))),
                          WithinHalfTurn(body.longitude + change)});
    }
    return result;
}

} // namespace NavFunc113
