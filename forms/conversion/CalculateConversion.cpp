// SPDX-License-Identifier: MIT
#include "forms/conversion/CalculateConversion.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/Reading.h"
#include "app/records/KORVEL2000Actions.h"
#include "forms/conversion/MeasureReading.h"
#include "navlib/arithmetic_error.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

const NavFunc113::Unit& unitAt(NavFunc113::Quantity quantity, std::size_t index)
{
    const auto units = NavFunc113::UnitTable(quantity);
    if (index >= units.size())
        throw NavFunc113::ArithmeticError(
            NavFunc113::ArithmeticError::Condition::SubscriptOutOfRange);
    return units[index];
}

/// Plain text with as many decimals as give the wanted number of significant digits.
std::string plainText(double value, int significantDigits)
{
    if (value == 0) return "0";
    const int exponent = static_cast<int>(std::floor(std::log10(std::fabs(value))));
    // Below 1e-30 of any unit there is nothing to measure on board.
    const int decimals = std::clamp(significantDigits - 1 - exponent, 0, 36);
    return Format(value, "0." + std::string(static_cast<std::size_t>(decimals), '#'));
}

std::string shownIn(const NavFunc113::Unit& unit, double value)
{
    if (unit.scale == NavFunc113::UnitScale::PackedArc) return packedText(value);
    if (unit.scale == NavFunc113::UnitScale::Clock) return clockText(value);
    return significantText(value);
}

/// Why no value of this quantity can be what was typed.
std::string impossible(NavFunc113::Quantity quantity, const NavFunc113::Unit& unit, double value)
{
    using NavFunc113::Quantity;
    if (quantity != Quantity::Temperature && quantity != Quantity::Density) return {};
    try {
        const double base = NavFunc113::InBaseUnit(value, unit);
        if (quantity == Quantity::Temperature && base < 0) return "it is below absolute zero";
        if (quantity == Quantity::Density && !(base > 0)) return "a density is more than 0";
    } catch (const NavFunc113::ArithmeticError&) {
        return quantity == Quantity::Density ? "there is no such density" : "it is no temperature";
    }
    return {};
}

/// What is typed, as long as there can be such a value.
std::optional<double> valueOf(NavFunc113::Quantity quantity, const NavFunc113::Unit& from,
                              std::string_view text)
{
    const std::optional<double> value = readMeasure(quantity, from, text).value;
    return value && impossible(quantity, from, *value).empty() ? value : std::nullopt;
}

const char* nameOf(NavFunc113::UnitNeed need)
{
    switch (need) {
    case NavFunc113::UnitNeed::Density:
        return "density";
    case NavFunc113::UnitNeed::Power:
        return "power";
    case NavFunc113::UnitNeed::Duration:
    case NavFunc113::UnitNeed::Nothing:
        break;
    }
    return "hours";
}

/// "t/h needs the density": the first of the boxes that stay blank, of each kind.
std::string whatIsNeeded(NavFunc113::Quantity quantity, const NavFunc113::Unit& from,
                         const NavFunc113::UnitConditions& conditions)
{
    std::vector<std::string> needs;
    for (const NavFunc113::Unit& to : NavFunc113::UnitTable(quantity)) {
        if (NavFunc113::CanConvert(from, to, conditions)) continue;
        const auto lacking = conditions.of(from.needs) ? to.needs : from.needs;
        std::string need = std::string("type the ") + nameOf(lacking) + " for " +
                           std::string(from.symbol) + " in " + std::string(to.symbol);
        const std::string beginning = need.substr(0, need.find(" for "));
        if (std::ranges::none_of(needs, [&beginning](const std::string& said) {
                return said.starts_with(beginning);
            }))
            needs.push_back(std::move(need));
    }
    return joined(needs);
}

} // namespace

std::string significantText(double value)
{
    return plainText(value, 7);
}

std::vector<std::optional<std::string>>
CalculateConversion(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text,
                    const NavFunc113::UnitConditions& conditions)
{
    const NavFunc113::Unit& from = unitAt(quantity, typed);
    const std::optional<double> value = valueOf(quantity, from, text);
    std::vector<std::optional<std::string>> boxes;
    for (const NavFunc113::Unit& to : NavFunc113::UnitTable(quantity)) {
        const bool isKnown = value && NavFunc113::CanConvert(from, to, conditions);
        boxes.emplace_back(isKnown
                               ? shownIn(to, NavFunc113::ConvertUnits(*value, from, to, conditions))
                               : std::string());
    }
    boxes[typed].reset();
    return boxes;
}

std::string convertedInFull(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text,
                            std::size_t to, const NavFunc113::UnitConditions& conditions)
{
    const NavFunc113::Unit& from = unitAt(quantity, typed);
    if (to == typed && !readMeasure(quantity, from, text).isWhole) return std::string(text);
    const std::optional<double> value = valueOf(quantity, from, text);
    if (!value) return {};
    try {
        return memoText(NavFunc113::ConvertUnits(*value, from, unitAt(quantity, to), conditions));
    } catch (const NavFunc113::ArithmeticError&) {
        return {};
    }
}

bool isReadWhole(NavFunc113::Quantity quantity, std::size_t unit, std::string_view text)
{
    const MeasureReading reading = readMeasure(quantity, unitAt(quantity, unit), text);
    return reading.value && reading.isWhole;
}

ConversionNotice noticeOn(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text,
                          const NavFunc113::UnitConditions& conditions)
{
    const NavFunc113::Unit& from = unitAt(quantity, typed);
    const MeasureReading reading = readMeasure(quantity, from, text);
    if (!reading.fault.empty()) return {reading.fault};
    if (reading.value) {
        const std::string why = impossible(quantity, from, *reading.value);
        if (!why.empty()) return {why};
    }
    if (reading.isCompound)
        return {"read as " + significantText(*reading.value) + " " + std::string(from.symbol),
                NoticeLevel::Remark};
    Remarks remarks;
    if (!reading.isWhole) readIfTyped(text, {.name = {}}, remarks);
    if (!remarks.text().empty() || !reading.value) return {remarks.text()};
    return {whatIsNeeded(quantity, from, conditions), NoticeLevel::Remark};
}

std::string unitToolTip(NavFunc113::Quantity quantity, std::size_t unit)
{
    const NavFunc113::Unit& shown = unitAt(quantity, unit);
    const NavFunc113::Unit& first = unitAt(quantity, 0);
    const std::string definition(shown.definition);
    if (shown.scale != NavFunc113::UnitScale::Ratio || shown.needs != first.needs ||
        first.scale != NavFunc113::UnitScale::Ratio)
        return std::string(shown.caption) + ": " + definition;
    const std::string size =
        plainText(NavFunc113::ConvertUnits(1, shown, first), 15) + " " + std::string(first.symbol);
    return "1 " + std::string(shown.caption) + " = " + size + " (" + definition + ")";
}

} // namespace korvel
