// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <stdexcept>

namespace NavFunc113
{

/// An arithmetic fault of the library. Doubles never fail by themselves, so the library tests and
/// throws; the window whose calculation raised it blanks the results concerned and says so.
class ArithmeticError : public std::runtime_error
{
public:
    enum class Condition { DivisionByZero, InvalidArgument, Overflow, SubscriptOutOfRange };

    explicit ArithmeticError(Condition condition);

    Condition condition() const { return m_condition; }

private:
    Condition m_condition;
};

/// What is wrong with a quotient that is not finite.
[[noreturn]] void throwQuotientFault(double dividend, double divisor);

/// @throws ArithmeticError InvalidArgument
[[noreturn]] void throwInvalidArgument();

// The small routines stand in headers: the sailing and tide sums call them in their inner loops.

/// Quotient of two numbers.
/// @throws ArithmeticError DivisionByZero when the divisor is 0, Overflow when the result is not
///         finite, InvalidArgument when an operand is not a number
inline double Quotient(double dividend, double divisor)
{
    const double quotient = dividend / divisor;
    if (!std::isfinite(quotient)) throwQuotientFault(dividend, divisor);
    return quotient;
}

/// Square root. @throws ArithmeticError InvalidArgument for a negative value or no number
inline double SquareRoot(double value)
{
    if (!(value >= 0)) throwInvalidArgument();
    return std::sqrt(value);
}

/// Natural logarithm. @throws ArithmeticError InvalidArgument for 0, a negative value or no number
inline double NaturalLogarithm(double value)
{
    if (!(value > 0)) throwInvalidArgument();
    return std::log(value);
}

} // namespace NavFunc113
