// SPDX-License-Identifier: MIT
#include "forms/conversion/CalculateConversion.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/Reading.h"
#include "app/records/KORVEL2000Actions.h"
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

} // namespace

std::string significantText(double value)
{
    return plainText(value, 7);
}

std::vector<std::optional<std::string>>
CalculateConversion(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text)
{
    const NavFunc113::Unit& from = unitAt(quantity, typed);
    const std::optional<double> value = readLeadingNumber(text);
    std::vector<std::optional<std::string>> boxes;
    for (const NavFunc113::Unit& to : NavFunc113::UnitTable(quantity))
        boxes.emplace_back(value ? significantText(NavFunc113::ConvertUnits(*value, from, to))
                                 : std::string());
    boxes[typed].reset();
    return boxes;
}

std::string convertedInFull(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text,
                            std::size_t to)
{
    if (to == typed) return std::string(text);
    const std::optional<double> value = readLeadingNumber(text);
    if (!value) return {};
    try {
        return memoText(
            NavFunc113::ConvertUnits(*value, unitAt(quantity, typed), unitAt(quantity, to)));
    } catch (const NavFunc113::ArithmeticError&) {
        return {};
    }
}

std::string remarkOn(std::string_view text)
{
    Remarks remarks;
    readIfTyped(text, {.name = {}}, remarks);
    return remarks.text();
}

std::string unitToolTip(NavFunc113::Quantity quantity, std::size_t unit)
{
    const NavFunc113::Unit& shown = unitAt(quantity, unit);
    const NavFunc113::Unit& first = unitAt(quantity, 0);
    const std::string size =
        plainText(NavFunc113::ConvertUnits(1, shown, first), 15) + " " + std::string(first.symbol);
    const std::string definition(shown.definition);
    return "1 " + std::string(shown.caption) + " = " + size + " (" + definition + ")";
}

} // namespace korvel
