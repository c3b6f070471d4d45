// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <type_traits>

namespace NavFunc113
{

inline double numberOf(double value)
{
    return value;
}

inline double numberOf(DegMin value)
{
    return value.packed();
}

template <typename Unit>
double numberOf(Measure<Unit> value)
{
    return value.value();
}

/// A routine with plain numbers for arguments and result, for tables of cases.
template <typename Result, typename... Arguments>
auto by(Result (*routine)(Arguments...))
{
    return [routine](std::type_identity_t<std::conditional_t<true, double, Arguments>>... numbers) {
        return numberOf(routine(static_cast<Arguments>(numbers)...));
    };
}

} // namespace NavFunc113
