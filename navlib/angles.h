// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <initializer_list>
#include <optional>
#include <span>
#include <utility>

#include "navlib/arithmetic_error.h"

namespace NavFunc113
{

/// Decimal degrees of a packed value. The sign is carried through; minutes of 60 and more are not
/// refused (35.75 is 36.25 degrees).
Degrees DegMinToDeg(DegMin value);

/// Packed value of decimal degrees, not rounded: display rounds.
DegMin DegToDegMin(Degrees value);

/// Sum of packed values, added in their order; an empty list sums to 0.
DegMin SumDegMin(std::span<const DegMin> values);
DegMin SumDegMin(std::initializer_list<DegMin> values);

/// The constant pi, as four times the arctangent of one.
double Pi();

Radians DegToRad(Degrees value);
Degrees RadToDeg(Radians value);

/// Angle of the point (x, y), in (-pi, pi]; (0, 0) gives 0.
///
/// @param x cosine-like part. An x of 0 is replaced by 1e-11 in the caller's variable, so that
///          nobody divides by it afterwards; the result is then almost, not quite, a right angle.
/// @param y sine-like part
/// @throws ArithmeticError Overflow when y / x is not finite
Radians ArcTan2(double& x, double y);

/// The same where the caller has no further use for x.
Radians ArcTan2(double&& x, double y);

/// Angle of a cosine, 0 .. pi.
/// @param x cosine, -1 <= x <= 1 and not 0
/// @throws ArithmeticError DivisionByZero for exactly 0 (the quotient is formed before the sign is
///         looked at, on purpose), InvalidArgument for |x| > 1
Radians ArcCos(double x);

/// Angle of a sine, -pi/2 .. pi/2, as the arctangent of x / sqrt(1 - x^2).
/// @throws ArithmeticError DivisionByZero for |x| = 1, InvalidArgument for |x| > 1
Radians ArcSin(double x);

/// Common logarithm. @throws ArithmeticError InvalidArgument unless value > 0
double Log10(double value);

/// A pair (x, y) of an interpolation table; an absent coordinate ends the table.
struct TablePair {
    std::optional<double> x;
    std::optional<double> y;
};

/// Lagrange interpolation through the table's pairs; x outside the table extrapolates.
///
/// @param x     where the value is wanted
/// @param table at most 14 pairs, in any order; read up to the first pair that lacks a coordinate
/// @return the interpolated value; nothing when fewer than two pairs are there
/// @throws ArithmeticError DivisionByZero when two pairs have the same x, SubscriptOutOfRange for
///         more than 14 pairs
std::optional<double> InterpolateLagrange(double x, std::span<const TablePair> table);
std::optional<double> InterpolateLagrange(double x, std::initializer_list<TablePair> table);

/// Element i of a list that counts from 1.
/// @throws ArithmeticError SubscriptOutOfRange when i is not in 1 .. size, Overflow when i - 1 does
///         not fit in 16 bits
template <typename Element>
const Element& PickItem(int i, std::span<const Element> list)
{
    if (i <= -32768 || i > 32767) throw ArithmeticError(ArithmeticError::Condition::Overflow);
    if (i < 1 || static_cast<std::size_t>(i) > list.size())
        throw ArithmeticError(ArithmeticError::Condition::SubscriptOutOfRange);
    return list[static_cast<std::size_t>(i - 1)];
}

} // namespace NavFunc113
