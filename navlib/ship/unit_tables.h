// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string_view>

/// Units of measure, one table a quantity.
namespace NavFunc113
{

enum class Quantity {
    Length,
    Area,
    Volume,
    Pressure,
    Weight,
    Temperature,
    Speed,
    Density,
    Flow,
    Energy,
    Angle
};
inline constexpr int quantities = 11;

/// How a value of a unit becomes one of the base unit.
enum class UnitScale {
    Ratio,      ///< value x factor
    Offset,     ///< (value + offset) x factor
    Reciprocal, ///< factor / value
    APIDegrees, ///< by Density60FromAPI, edition of 1980
    PackedArc,  ///< packed degrees.minutes
    Clock,      ///< value x factor, written as hours:minutes:seconds
};

/// What a unit needs to be known beside its value.
enum class UnitNeed {
    Nothing,
    Density, ///< kg/m3: of a volume among masses
    Power,   ///< kW: of a consumption for work done
    Duration ///< hours: of a power among energies
};

/// A unit of measure.
struct Unit {
    std::string_view caption;    ///< "nautical mile"
    std::string_view symbol;     ///< "nm"
    double factor;               ///< size in the base unit, see BaseUnit()
    std::string_view definition; ///< what fixes the size, in words
    UnitScale scale = UnitScale::Ratio;
    double offset{};
    UnitNeed needs = UnitNeed::Nothing;
};

/// The units of a quantity in the order in which its window shows them. Factors are exact by
/// definition, or the double nearest to the defining ratio.
std::span<const Unit> UnitTable(Quantity quantity);

/// Symbol of the unit that the factors of a quantity are given in: m, m2, l, Pa, kg, K, m/s, kg/m3,
/// kg/h, kJ, degrees.
std::string_view BaseUnit(Quantity quantity);

/// Another name of a unit, or a unit that is read and has no box: "cm", "feet", "qr".
struct UnitName {
    Quantity quantity;
    std::string_view name;
    double factor; ///< as of Unit
};
std::span<const UnitName> OtherUnitNames();

/// What is known beside a value, more than 0 each.
struct UnitConditions {
    std::optional<double> density = {}; ///< kg/m3
    std::optional<double> power = {};   ///< kW
    std::optional<double> hours = {};

    std::optional<double> of(UnitNeed need) const;
};

/// Whether what both units need is known. Two that need the same need nothing of each other.
bool CanConvert(const Unit& from, const Unit& to, const UnitConditions& conditions);

/// A value in another unit of the same quantity: value x from.factor / to.factor where both are
/// ratios, else by way of the base unit.
/// @throws ArithmeticError Overflow when the result is no finite number; InvalidArgument or
///         DivisionByZero when the base unit has no such value, or a condition is missing
double ConvertUnits(double value, const Unit& from, const Unit& to,
                    const UnitConditions& conditions = {});

/// The value of the base unit, where nothing else is needed.
double InBaseUnit(double value, const Unit& from);

} // namespace NavFunc113
