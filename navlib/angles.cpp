// SPDX-License-Identifier: MIT
#include "navlib/angles.h"

#include <cmath>

namespace NavFunc113
{

DegMin SumDegMin(std::span<const DegMin> values)
{
    Degrees total;
    for (DegMin value : values)
        total += DegMinToDeg(value);
    return DegToDegMin(total);
}

DegMin SumDegMin(std::initializer_list<DegMin> values)
{
    return SumDegMin(std::span(values.begin(), values.size()));
}

Degrees CourseOfParts(double east, double north)
{
    return AsCourse(RadToDeg(Radians(std::atan2(east, north))));
}

Radians ArcSin(double x)
{
    return Radians(std::atan(Quotient(x, SquareRoot(1 - std::pow(x, 2.0)))));
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
