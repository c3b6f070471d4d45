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

void throwQuotientFault(double dividend, double divisor)
{
    if (divisor == 0) throw ArithmeticError(ArithmeticError::Condition::DivisionByZero);
    if (std::isnan(dividend) || std::isnan(divisor)) throwInvalidArgument();
    throw ArithmeticError(ArithmeticError::Condition::Overflow);
}

void throwInvalidArgument()
{
    throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
}

} // namespace NavFunc113
