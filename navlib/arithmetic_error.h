// SPDX-License-Identifier: MIT
#pragma once

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

/// Quotient of two numbers.
/// @throws ArithmeticError DivisionByZero when the divisor is 0, Overflow when the result is not
///         finite, InvalidArgument when an operand is not a number
double Quotient(double dividend, double divisor);

/// Square root. @throws ArithmeticError InvalidArgument for a negative value or no number
double SquareRoot(double value);

/// Natural logarithm. @throws ArithmeticError InvalidArgument for 0, a negative value or no number
double NaturalLogarithm(double value);

} // namespace NavFunc113
