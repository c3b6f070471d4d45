// SPDX-License-Identifier: MIT
#include "navlib/angles.h"

#include <cmath>

namespace NavFunc113
{

Degrees DegMinToDeg(DegMin value)
{
    const double magnitude = std::fabs(value);
    const double degrees = std::floor(magnitude);
    const double result = degrees + (magnitude - degrees) / 0.6;
    return value > 0 ? result : -result;
}

DegMin DegToDegMin(Degrees value)
{
    const double magnitude = std::fabs(value);
    const double degrees = std::floor(magnitude);
    const double result = degrees + (magnitude - degrees) * 0.6;
    return value > 0 ? result : -result;
}

DegMin SumDegMin(std::span<const DegMin> values)
{
    Degrees total = 0;
    for (DegMin value : values)
        total += DegMinToDeg(value);
    return DegToDegMin(total);
}

DegMin SumDegMin(std::initializer_list<DegMin> values)
{
    return SumDegMin(std::span(values.begin(), values.size()));
}

double Pi()
{
    return 4 * std::atan(1.0);
}

Radians DegToRad(Degrees value)
{
    return (value / 180) * Pi();
}

Degrees RadToDeg(Radians value)
{
    return (value / Pi()) * 180;
}

Radians ArcTan2(double& x, double y)
{
    if (x == 0) x = 1e-11;
    const Radians angle = std::atan(Quotient(y, x));
    if (x > 0) return y == 0 ? 0 : angle;
    if (y == 0) return Pi();
    return y > 0 ? angle + Pi() : angle - Pi();
}

Radians ArcTan2(double&& x, double y)
{
    return ArcTan2(x, y);
}

Radians ArcCos(double x)
{
    const Radians angle = std::atan(Quotient(SquareRoot(1 - std::pow(x, 2.0)), x));
    return x > 0 ? angle : angle + Pi();
}

Radians ArcSin(double x)
{
    return std::atan(Quotient(x, SquareRoot(1 - std::pow(x, 2.0))));
}

double Log10(double value)
{
    return NaturalLogarithm(value) / std::log(10.0);
}

std::optional<double> InterpolateLagrange(double x, std::span<const TablePair> table)
{
    constexpr std::size_t mostPairs = 14;
    if (table.size() > mostPairs)
        throw ArithmeticError(ArithmeticError::Condition::SubscriptOutOfRange);
    std::size_t n = 0;
    while (n < table.size() && table[n].x && table[n].y)
        ++n;
    if (n < 2) return std::nullopt;

    double sum = 0;
    for (std::size_t j = 0; j < n; ++j) {
        double weight = 1;
        for (std::size_t i = 0; i < n; ++i) {
            if (i == j) continue;
            weight = Quotient(weight * (x - *table[i].x), *table[j].x - *table[i].x);
        }
        sum += *table[j].y * weight;
    }
    return sum;
}

std::optional<double> InterpolateLagrange(double x, std::initializer_list<TablePair> table)
{
    return InterpolateLagrange(x, std::span(table.begin(), table.size()));
}

} // namespace NavFunc113
