// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <array>
#include <optional>
#include <span>
#include <vector>

/// Deviation of a magnetic compass as a curve over its heading.
namespace NavFunc113
{

/// Coefficients A to E: deviation = A + B sin C + C cos C + D sin 2C + E cos 2C, where C is the
/// heading by the compass itself.
/// Source: Archibald Smith's formula, approximate coefficients; Handbook of Magnetic Compass
/// Adjustment.
struct DeviationCoefficients {
    Degrees A, B, C, D, E; ///< east positive

    Degrees at(Degrees compassHeading) const; ///< east positive
    /// No deviation of the curve is larger than this.
    Degrees bound() const { return fabs(A) + fabs(B) + fabs(C) + fabs(D) + fabs(E); }
};

/// Heading by the compass of a magnetic heading: the curve hangs on the compass heading, so it is
/// solved for it.
///
/// @return 0 <= heading < 360; magnetic = heading + deviation to 1e-9 degrees
/// @throws ArithmeticError InvalidArgument when the curve is so steep, or a coefficient no number,
///         that more than one heading could be meant: |B| + |C| + 2 |D| + 2 |E| of 1 radian and
///         more
Degrees CompassHeading(Degrees magneticHeading, const DeviationCoefficients& curve);

/// A deviation found on a heading.
struct DeviationPoint {
    Degrees heading;   ///< by the compass
    Degrees deviation; ///< east positive
};

/// A curve through points, by least squares.
class DeviationFit
{
public:
    static constexpr std::size_t coefficientCount = 5;
    static constexpr std::size_t fewestPoints = 7;
    /// Nowhere may the curve be less certain than a single point times this.
    static constexpr double largestFactor = 1.5;

    /// Fits the five coefficients. @return nothing when the points do not fix the curve: fewer than
    /// fewestPoints, or factor() beyond largestFactor on some heading
    static std::optional<DeviationFit> of(std::span<const DeviationPoint> points);

    const DeviationCoefficients& coefficients() const { return m_coefficients; }
    /// Point less curve, in the order of the points.
    const std::vector<Degrees>& residuals() const { return m_residuals; }
    /// Standard deviation of one point: root of the sum of squares over count - 5.
    Degrees scatter() const { return m_scatter; }
    /// Standard deviation of the curve on a heading, in units of that of a point.
    double factor(Degrees heading) const;

    /// How far a point that is not among those of the fit may lie from the curve: 3 standard
    /// deviations of the difference. A scatter below scatterFloor, which few points may have by
    /// chance, counts as that: a bearing is not read better.
    Degrees tolerance(Degrees heading) const;
    static constexpr Degrees scatterFloor{0.5};

private:
    using Row = std::array<double, coefficientCount>;
    using Normal = std::array<Row, coefficientCount>;
    static Row termsAt(Degrees heading);
    static std::optional<DeviationFit> solved(std::span<const DeviationPoint> points);

    DeviationCoefficients m_coefficients;
    std::vector<Degrees> m_residuals;
    Degrees m_scatter;
    Normal m_inverse{};
};

/// Where a further point would help most: the middle of the widest gap between headings.
/// @return nothing when there are no points
std::optional<Degrees> OpenHeading(std::span<const DeviationPoint> points);

/// Finds points that contradict the others: the curve of all others has each beyond its tolerance.
/// The worst goes first, then the rest is fitted anew; never more than a quarter of all.
/// @return indices of such points, ascending; empty when there are none or the rest would fix no
///         curve
std::vector<std::size_t> Blunders(std::span<const DeviationPoint> points);

} // namespace NavFunc113
