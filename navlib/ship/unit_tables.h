// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

/// Units of measure, one table a quantity.
namespace NavFunc113
{

enum class Quantity { Length, Area, Volume, Pressure, Weight };

/// A unit of measure.
struct Unit {
    std::string_view caption;    ///< "nautical mile"
    std::string_view symbol;     ///< "nm"
    double factor;               ///< size in the base unit: m, m2, litre, Pa, kg
    std::string_view definition; ///< what fixes the size, in words
};

/// The units of a quantity in the order in which its window shows them. Factors are exact by
/// definition, or the double nearest to the defining ratio.
std::span<const Unit> UnitTable(Quantity quantity);

/// A value in another unit of the same quantity: value x from.factor / to.factor.
/// @throws ArithmeticError Overflow when the result is no finite number
double ConvertUnits(double value, const Unit& from, const Unit& to);

} // namespace NavFunc113
