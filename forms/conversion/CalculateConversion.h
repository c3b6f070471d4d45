// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Remarks.h"
#include "navlib/ship/unit_tables.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The conversion windows: one box a unit, and whichever is typed in leads the others.
namespace korvel
{

/// What the boxes show once one of them was typed in.
///
/// @param quantity the window's quantity; the boxes stand in the order of its unit table
/// @param typed    index of the box that was typed in
/// @param text     what it holds now; without a number the other boxes become blank
/// @param conditions what else is known; boxes that need more stay blank
/// @return one text a box; no value for the typed box, which stays as it is
/// @throws NavFunc113::ArithmeticError Overflow for a number too great for any unit,
///         SubscriptOutOfRange when there is no such box
std::vector<std::optional<std::string>>
CalculateConversion(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text,
                    const NavFunc113::UnitConditions& conditions = {});

/// The value of any box in full, for the memory: not cut to the digits that its box shows.
/// @return the typed text itself for the typed box, as a number where it is none; empty when there
///         is none, or no number that could be shown
std::string convertedInFull(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text,
                            std::size_t to, const NavFunc113::UnitConditions& conditions = {});

/// What is to be said about a typed text: how it was read where it named its units, that it was
/// read otherwise than it may have been meant ("1,234" is 1), that it is no number or none that
/// there can be, or what the blank boxes need. Empty when all is well.
struct ConversionNotice {
    std::string text;
    NoticeLevel level = NoticeLevel::Fault;
};
ConversionNotice noticeOn(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text,
                          const NavFunc113::UnitConditions& conditions = {});

/// Whether a text that begins with a number is read whole all the same, units and all.
bool isReadWhole(NavFunc113::Quantity quantity, std::size_t unit, std::string_view text);

/// A value with seven significant digits, whole digits always in full, without trailing zeros and
/// never with an exponent: a box has to read back what stands in it.
std::string significantText(double value);

/// Tool tip of a unit: what defines it and its size in the quantity's first unit.
std::string unitToolTip(NavFunc113::Quantity quantity, std::size_t unit);

} // namespace korvel
