// SPDX-License-Identifier: MIT
#include "navlib/arithmetic_error.h"

#include <cmath>

namespace NavFunc113
{
namespace
{

const char* inWords(ArithmeticError::Condition condition)
{
    switch (condition) {
    case ArithmeticError::Condition::DivisionByZero:
        return "division by zero";
    case ArithmeticError::Condition::InvalidArgument:
        return "invalid argument";
    case ArithmeticError::Condition::Overflow:
        return "overflow";
    case ArithmeticError::Condition::SubscriptOutOfRange:
        return "subscript out of range";
    }
    return "arithmetic error";
}

} // namespace

ArithmeticError::ArithmeticError(Condition condition)
    : std::runtime_error(inWords(condition)), m_condition(condition)
{
}

double Quotient(double dividend, double divisor)
{
    if (divisor == 0) throw ArithmeticError(ArithmeticError::Condition::DivisionByZero);
    if (std::isnan(dividend) || std::isnan(divisor))
        throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
    const double quotient = dividend / divisor;
    if (!std::isfinite(quotient)) throw ArithmeticError(ArithmeticError::Condition::Overflow);
    return quotient;
}

double SquareRoot(double value)
{
    if (!(value >= 0)) throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
    return std::sqrt(value);
}

double NaturalLogarithm(double value)
{
    if (!(value > 0)) throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
    return std::log(value);
}

} // namespace NavFunc113
