// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/ship/unit_tables.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The five conversion windows: one box a unit, and whichever is typed in leads the others.
namespace korvel
{

/// What the boxes show once one of them was typed in.
///
/// @param quantity the window's quantity; the boxes stand in the order of its unit table
/// @param typed    index of the box that was typed in
/// @param text     what it holds now; without a leading number the other boxes become blank
/// @return one text a box; no value for the typed box, which stays as it is
/// @throws NavFunc113::ArithmeticError Overflow for a number too great for any unit,
///         SubscriptOutOfRange when there is no such box
std::vector<std::optional<std::string>>
CalculateConversion(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text);

/// The value of any box in full, for the memory: not cut to the digits that its box shows.
/// @return the typed text itself for the typed box; empty when there is none, or no number
///         that could be shown
std::string convertedInFull(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text,
                            std::size_t to);

/// What is to be said about a typed text: that it was read otherwise than it may have been meant
/// ("1,234" is 1), or that it is no number. Empty when all is well.
std::string remarkOn(std::string_view text);

/// A value with seven significant digits, whole digits always in full, without trailing zeros and
/// never with an exponent: a box has to read back what stands in it.
std::string significantText(double value);

/// Tool tip of a unit: what defines it and its size in the quantity's first unit.
std::string unitToolTip(NavFunc113::Quantity quantity, std::size_t unit);

} // namespace korvel
