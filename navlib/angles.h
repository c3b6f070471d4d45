// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/arithmetic_error.h"
#include "navlib/units.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <utility>

namespace NavFunc113
{

/// Whole part of a value that is 0 or greater. A cast is several times faster than floor, which
/// every packed value would have to call.
inline double WholePart(double value)
{
    constexpr double withoutFraction = 4503599627370496; // 2^52: nothing is left to cut beyond
    return value < withoutFraction ? static_cast<double>(static_cast<std::int64_t>(value)) : value;
}

/// Decimal degrees of a packed value. The sign is carried through; minutes of 60 and more are not
/// refused (35.75 is 36.25 degrees).
inline Degrees DegMinToDeg(DegMin value)
{
    const double magnitude = std::fabs(value.packed());
    const double degrees = WholePart(magnitude);
    const double result = degrees + (magnitude - degrees) / 0.6;
    return Degrees(value.packed() > 0 ? result : -result);
}

/// Packed value of decimal degrees, not rounded: display rounds.
inline DegMin DegToDegMin(Degrees value)
{
    const double magnitude = std::fabs(value.value());
    const double degrees = WholePart(magnitude);
    const double result = degrees + (magnitude - degrees) * 0.6;
    return DegMin(value.value() > 0 ? result : -result);
}

/// Sum of packed values, added in their order; an empty list sums to 0.
DegMin SumDegMin(std::span<const DegMin> values);
DegMin SumDegMin(std::initializer_list<DegMin> values);

/// The constant pi, as four times the arctangent of one.
inline double Pi()
{
    return 4 * std::atan(1.0);
}

inline Radians DegToRad(Degrees value)
{
    return Radians((value.value() / 180) * Pi());
}

inline Degrees RadToDeg(Radians value)
{
    return Degrees((value.value() / Pi()) * 180);
}

inline double sin(Radians angle)
{
    return std::sin(angle.value());
}

inline double cos(Radians angle)
{
    return std::cos(angle.value());
}

inline double tan(Radians angle)
{
    return std::tan(angle.value());
}

inline double sin(Degrees angle)
{
    return sin(DegToRad(angle));
}

inline double cos(Degrees angle)
{
    return cos(DegToRad(angle));
}

inline double tan(Degrees angle)
{
    return tan(DegToRad(angle));
}

/// What is left of an angle after the nearest whole number of turns, -180 .. 180.
inline Degrees WithinHalfTurn(Degrees angle)
{
    return Degrees(std::remainder(angle.value(), 360));
}

/// Quotient of a measure and a number. @throws ArithmeticError as Quotient of two numbers
template <typename Unit>
Measure<Unit> Quotient(Measure<Unit> dividend, double divisor)
{
    return Measure<Unit>(Quotient(dividend.value(), divisor));
}

/// Angle of the point (x, y), in (-pi, pi]; (0, 0) gives 0.
///
/// @param x cosine-like part. An x of 0 is replaced by 1e-11 in the caller's variable, so that
///          nobody divides by it afterwards; the result is then almost, not quite, a right angle.
/// @param y sine-like part
/// @throws ArithmeticError Overflow when y / x is not finite
inline Radians ArcTan2(double& x, double y)
{
    if (x == 0) x = 1e-11;
    const double angle = std::atan(Quotient(y, x));
    if (!std::signbit(x)) return Radians(angle);
    return Radians(y >= 0 ? angle + Pi() : angle - Pi());
}

/// The same where the caller has no further use for x.
inline Radians ArcTan2(double&& x, double y)
{
    return ArcTan2(x, y);
}

/// An angle of less than a turn either way as a course. @return 0 <= course < 360
inline Degrees AsCourse(Degrees angle)
{
    const Degrees turned = angle + fullTurn;
    // A hair west of north rounds to 360.
    return turned < fullTurn ? turned : std::max(Degrees(0), angle);
}

/// Course of a way with these parts towards east and north, of any one length.
/// @return true, 0 <= course < 360; 0 where both are 0
Degrees CourseOfParts(double east, double north);

/// Angle of a cosine, 0 .. pi.
/// @param x cosine, -1 <= x <= 1 and not 0
/// @throws ArithmeticError DivisionByZero for exactly 0 (the quotient is formed before the sign is
///         looked at, on purpose), InvalidArgument for |x| > 1
inline Radians ArcCos(double x)
{
    const double angle = std::atan(Quotient(SquareRoot(1 - std::pow(x, 2.0)), x));
    return Radians(x > 0 ? angle : angle + Pi());
}

/// Angle of a sine, -pi/2 .. pi/2, as the arctangent of x / sqrt(1 - x^2).
/// @throws ArithmeticError DivisionByZero for |x| = 1, InvalidArgument for |x| > 1
Radians ArcSin(double x);

/// Common logarithm. @throws ArithmeticError InvalidArgument unless value > 0
inline double Log10(double value)
{
    return NaturalLogarithm(value) / std::log(10.0);
}

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
