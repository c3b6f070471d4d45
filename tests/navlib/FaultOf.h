// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/arithmetic_error.h"

#include <gtest/gtest.h>

#include <optional>

namespace NavFunc113
{

/// The arithmetic fault that an action ends in; nothing when it ends well.
template <typename Action>
std::optional<ArithmeticError::Condition> faultOf(Action action)
{
    try {
        action();
    } catch (const ArithmeticError& error) {
        return error.condition();
    }
    return std::nullopt;
}

} // namespace NavFunc113
