// SPDX-License-Identifier: MIT
#include "navlib/sailing/deviation.h"

#include "navlib/angles.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace NavFunc113
{
namespace
{

Degrees withinTurn(Degrees heading)
{
    return AsCourse(Degrees(std::fmod(heading.value(), 360)));
}

/// Inverse of a symmetric matrix of squares by Gauss and Jordan, its pivots being the diagonal.
/// @return nothing when a pivot vanishes beside the largest element
template <typename Matrix>
std::optional<Matrix> inverted(Matrix matrix)
{
    constexpr double vanishing = 1e-9;
    const std::size_t size = matrix.size();
    const double largest = matrix[0][0];
    Matrix inverse{};
    for (std::size_t i = 0; i < size; ++i)
        inverse[i][i] = 1;
    for (std::size_t i = 0; i < size; ++i) {
        const double pivot = matrix[i][i];
        if (!(pivot > vanishing * largest)) return std::nullopt;
        for (std::size_t k = 0; k < size; ++k) {
            matrix[i][k] /= pivot;
            inverse[i][k] /= pivot;
        }
        for (std::size_t row = 0; row < size; ++row) {
            if (row == i) continue;
            const double factor = matrix[row][i];
            for (std::size_t k = 0; k < size; ++k) {
                matrix[row][k] -= factor * matrix[i][k];
                inverse[row][k] -= factor * inverse[i][k];
            }
        }
    }
    return inverse;
}

Degrees toleranceOf(Degrees scatter, double factor)
{
    return 3 * std::max(scatter, DeviationFit::scatterFloor) * std::hypot(1, factor);
}

std::vector<DeviationPoint> without(std::span<const DeviationPoint> points, std::size_t index)
{
    std::vector<DeviationPoint> others(points.begin(), points.end());
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(index));
    return others;
}

struct Doubtful {
    std::size_t index;
    double excess; ///< distance from the curve of all others, in tolerances of that curve
};

/// The points that lie beyond the tolerance of the curve of all others, the worst first.
///
/// What a fit is without one of its points follows from the fit with it: with h the square of the
/// factor on the point's heading, the point lies residual / (1 - h) from the curve of the others,
/// whose sum of squares is smaller by residual^2 / (1 - h) and whose factor there is
/// sqrt(h / (1 - h)).
std::vector<Doubtful> doubtfulPoints(std::span<const DeviationPoint> points,
                                     const DeviationFit& fit)
{
    constexpr std::size_t others = 1 + DeviationFit::coefficientCount;
    double squares = 0;
    for (const Degrees residual : fit.residuals())
        squares += std::pow(residual.value(), 2);
    std::vector<Doubtful> doubtful;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double h = std::pow(fit.factor(points[i].heading), 2);
        constexpr double alone = 1 - 1e-9; // no other point fixes the curve there
        if (h >= alone) continue;
        const double off = fit.residuals()[i].value() / (1 - h);
        const double rest = std::max(0.0, squares - off * off * (1 - h));
        const Degrees scatter(std::sqrt(rest / static_cast<double>(points.size() - others)));
        const double excess = std::fabs(off) / toleranceOf(scatter, std::sqrt(h / (1 - h))).value();
        if (excess > 1) doubtful.push_back({i, excess});
    }
    std::ranges::stable_sort(doubtful, std::ranges::greater(), &Doubtful::excess);
    return doubtful;
}

/// The point that lies farthest beyond the tolerance of the curve of all others, where these fix a
/// curve.
std::optional<std::size_t> worstPoint(std::span<const DeviationPoint> points)
{
    const auto fit = DeviationFit::of(points);
    if (!fit || points.size() <= DeviationFit::fewestPoints) return std::nullopt;
    for (const Doubtful& each : doubtfulPoints(points, *fit))
        if (DeviationFit::of(without(points, each.index))) return each.index;
    return std::nullopt;
}

} // namespace

Degrees DeviationCoefficients::at(Degrees compassHeading) const
{
    const Degrees twice = 2 * compassHeading;
    return A + B * sin(compassHeading) + C * cos(compassHeading) + D * sin(twice) + E * cos(twice);
}

Degrees CompassHeading(Degrees magneticHeading, const DeviationCoefficients& curve)
{
    const Degrees slope = fabs(curve.B) + fabs(curve.C) + 2 * (fabs(curve.D) + fabs(curve.E));
    if (!(DegToRad(slope) < Radians(1)) || !std::isfinite(curve.A.value())) throwInvalidArgument();
    Degrees low = magneticHeading - curve.bound();
    Degrees high = magneticHeading + curve.bound();
    Degrees middle = magneticHeading;
    // Until no number lies between them, however large the heading is.
    do {
        (middle + curve.at(middle) < magneticHeading ? low : high) = middle;
        middle = (low + high) / 2;
    } while (low < middle && middle < high);
    return withinTurn(middle);
}

DeviationFit::Row DeviationFit::termsAt(Degrees heading)
{
    return {1, sin(heading), cos(heading), sin(2 * heading), cos(2 * heading)};
}

std::optional<DeviationFit> DeviationFit::solved(std::span<const DeviationPoint> points)
{
    Normal normal{};
    Row right{};
    for (const DeviationPoint& point : points) {
        const Row terms = termsAt(point.heading);
        for (std::size_t i = 0; i < coefficientCount; ++i) {
            right[i] += terms[i] * point.deviation.value();
            for (std::size_t k = 0; k < coefficientCount; ++k)
                normal[i][k] += terms[i] * terms[k];
        }
    }
    const auto inverse = inverted(normal);
    if (!inverse) return std::nullopt;
    Row found{};
    for (std::size_t i = 0; i < coefficientCount; ++i)
        found[i] = std::inner_product(right.begin(), right.end(), (*inverse)[i].begin(), 0.0);
    DeviationFit fit;
    fit.m_inverse = *inverse;
    fit.m_coefficients = {Degrees(found[0]), Degrees(found[1]), Degrees(found[2]),
                          Degrees(found[3]), Degrees(found[4])};
    return fit;
}

std::optional<DeviationFit> DeviationFit::of(std::span<const DeviationPoint> points)
{
    if (points.size() < fewestPoints) return std::nullopt;
    auto fit = solved(points);
    if (!fit) return std::nullopt;
    for (int heading = 0; heading < 360; heading += 5)
        if (fit->factor(Degrees(heading)) > largestFactor) return std::nullopt;
    double squares = 0;
    for (const DeviationPoint& point : points) {
        fit->m_residuals.push_back(point.deviation - fit->m_coefficients.at(point.heading));
        squares += std::pow(fit->m_residuals.back().value(), 2);
    }
    fit->m_scatter =
        Degrees(std::sqrt(squares / static_cast<double>(points.size() - coefficientCount)));
    return fit;
}

double DeviationFit::factor(Degrees heading) const
{
    const Row terms = termsAt(heading);
    double square = 0;
    for (std::size_t i = 0; i < coefficientCount; ++i)
        for (std::size_t k = 0; k < coefficientCount; ++k)
            square += terms[i] * m_inverse[i][k] * terms[k];
    return std::sqrt(std::max(0.0, square));
}

Degrees DeviationFit::tolerance(Degrees heading) const
{
    return toleranceOf(m_scatter, factor(heading));
}

std::optional<Degrees> OpenHeading(std::span<const DeviationPoint> points)
{
    if (points.empty()) return std::nullopt;
    std::vector<Degrees> headings;
    for (const DeviationPoint& point : points)
        headings.push_back(withinTurn(point.heading));
    std::ranges::sort(headings);
    headings.push_back(headings.front() + fullTurn);
    std::size_t widest = 1;
    for (std::size_t i = 2; i < headings.size(); ++i)
        if (headings[i] - headings[i - 1] > headings[widest] - headings[widest - 1]) widest = i;
    return withinTurn((headings[widest - 1] + headings[widest]) / 2);
}

std::vector<std::size_t> Blunders(std::span<const DeviationPoint> points)
{
    std::vector<DeviationPoint> rest(points.begin(), points.end());
    std::vector<std::size_t> places(points.size());
    std::iota(places.begin(), places.end(), std::size_t(0));
    std::vector<std::size_t> found;
    while (4 * (found.size() + 1) <= points.size()) {
        const auto worst = worstPoint(rest);
        if (!worst) break;
        found.push_back(places[*worst]);
        places.erase(places.begin() + static_cast<std::ptrdiff_t>(*worst));
        rest = without(rest, *worst);
    }
    std::ranges::sort(found);
    return found;
}

} // namespace NavFunc113
