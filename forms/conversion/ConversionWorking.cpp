// SPDX-License-Identifier: MIT
#include "forms/conversion/ConversionWorking.h"

#include "app/records/KORVEL2000Actions.h"
#include "forms/conversion/MeasureReading.h"

namespace korvel
{
namespace
{

using NavFunc113::Unit;
using NavFunc113::UnitScale;

std::optional<double> typedValue(const Converted& converted)
{
    const Unit& from = NavFunc113::UnitTable(converted.quantity)[converted.typed];
    return readMeasure(converted.quantity, from, converted.text).value;
}

/// A table of sizes alone: one formula does for all its units.
bool isOfRatios(NavFunc113::Quantity quantity)
{
    for (const Unit& unit : NavFunc113::UnitTable(quantity))
        if (unit.scale != UnitScale::Ratio || unit.needs != NavFunc113::UnitNeed::Nothing)
            return false;
    return true;
}

void addSizes(Working& working, const Converted& converted, double value)
{
    const auto units = NavFunc113::UnitTable(converted.quantity);
    const Unit& from = units[converted.typed];
    const std::string base(NavFunc113::BaseUnit(converted.quantity));
    const auto size = [&](const Unit& unit) { return memoText(unit.factor); };
    working.step("Size of the unit entered", "1 " + std::string(from.symbol) + " in " + base,
                 std::string(from.definition), size(from), base);
    for (std::size_t i = 0; i < units.size(); ++i)
        if (i != converted.typed && !converted.boxes[i].empty())
            working.step("In " + std::string(units[i].caption),
                         "1 " + std::string(units[i].symbol) + " = " + size(units[i]) + ' ' + base +
                             " (" + std::string(units[i].definition) + ")",
                         memoText(value) + " × " + size(from) + " / " + size(units[i]),
                         converted.boxes[i], std::string(units[i].symbol));
}

/// How a value of a unit comes from the base unit and goes there.
std::string relationOf(const Unit& unit, const std::string& base)
{
    const std::string symbol(unit.symbol), factor = memoText(unit.factor);
    switch (unit.scale) {
    case UnitScale::Offset:
        return base + " = (" + symbol + " + " + memoText(unit.offset) + ") × " + factor;
    case UnitScale::Reciprocal:
        return base + " = " + factor + " / " + symbol;
    case UnitScale::APIDegrees:
        return base + " = 141.5 × 999.012 / (131.5 + " + symbol + ")";
    case UnitScale::PackedArc:
        return base + " = degrees + minutes / 60";
    case UnitScale::Clock:
    case UnitScale::Ratio:
        break;
    }
    std::string relation = base + " = " + symbol + " × " + factor;
    if (unit.needs == NavFunc113::UnitNeed::Density) relation += " × density";
    if (unit.needs == NavFunc113::UnitNeed::Power) relation += " × power";
    if (unit.needs == NavFunc113::UnitNeed::Duration) relation += " × hours";
    return relation;
}

/// What a factor is multiplied with beside the value: " × 991"; empty where that is nothing.
std::string besideFactor(const Unit& unit, const NavFunc113::UnitConditions& conditions)
{
    const auto known = conditions.of(unit.needs);
    if (unit.needs == NavFunc113::UnitNeed::Nothing || !known) return {};
    return " × " + memoText(*known);
}

/// The relation of a unit with its figures, from the value of the base unit.
std::string figuresOf(const Unit& unit, const std::string& base,
                      const NavFunc113::UnitConditions& conditions)
{
    const std::string factor = memoText(unit.factor);
    switch (unit.scale) {
    case UnitScale::Offset:
        return base + " / " + factor + " - " + memoText(unit.offset);
    case UnitScale::Reciprocal:
        return factor + " / " + base;
    case UnitScale::APIDegrees:
        return "141.5 × 999.012 / " + base + " - 131.5";
    case UnitScale::PackedArc:
        return base + "° in degrees and minutes";
    case UnitScale::Clock:
        return base + "° / " + factor + " in hours, minutes and seconds";
    case UnitScale::Ratio:
        break;
    }
    const std::string beside = besideFactor(unit, conditions);
    return base + " / " + (beside.empty() ? factor : "(" + factor + beside + ")");
}

void addRelations(Working& working, const Converted& converted, double value)
{
    const auto units = NavFunc113::UnitTable(converted.quantity);
    const Unit& from = units[converted.typed];
    const std::string base(NavFunc113::BaseUnit(converted.quantity));
    const auto known = converted.conditions.of(from.needs);
    // Without it the units that need the same are left, and what they need is none of theirs.
    const std::string inBase = memoText(NavFunc113::InBaseUnit(value, from) * known.value_or(1));
    working.step("In " + base, relationOf(from, base),
                 memoText(value) + " " + std::string(from.symbol) +
                     besideFactor(from, converted.conditions),
                 inBase, base);
    for (std::size_t i = 0; i < units.size(); ++i)
        if (i != converted.typed && !converted.boxes[i].empty())
            working.step("In " + std::string(units[i].caption),
                         relationOf(units[i], base) + " (" + std::string(units[i].definition) + ")",
                         figuresOf(units[i], inBase, converted.conditions), converted.boxes[i],
                         std::string(units[i].symbol));
}

} // namespace

Working conversionWorking(const Converted& converted)
{
    const bool isOfSizes = isOfRatios(converted.quantity);
    Working working{"Conversion", {}, {}};
    working.method = {isOfSizes
                          ? "Value times the size of its unit, divided by the size of the other; "
                            "sizes are exact by definition, or the double nearest to the defining "
                            "ratio"
                          : "By way of " + std::string(NavFunc113::BaseUnit(converted.quantity)) +
                                ": each unit's relation to it, there and back; factors are exact "
                                "by definition, or the double nearest to the defining ratio"};
    const auto value = typedValue(converted);
    if (!value)
        working.whyNone = "No number was entered.";
    else if (convertedInto(converted).empty())
        working.whyNone = "The remarks say why there is no result.";
    else if (isOfSizes)
        addSizes(working, converted, *value);
    else
        addRelations(working, converted, *value);
    return working;
}

PaperFigure convertedFrom(const Converted& converted)
{
    const Unit& unit = NavFunc113::UnitTable(converted.quantity)[converted.typed];
    const auto value = typedValue(converted);
    PaperFigure figure{std::string(unit.caption), value ? memoText(*value) : "not understood",
                       value ? std::string(unit.symbol) : ""};
    if (converted.text.empty()) figure.value = "nothing entered";
    if (figure.value != converted.text) figure.shown = converted.text;
    return figure;
}

std::vector<PaperFigure> convertedInto(const Converted& converted)
{
    std::vector<PaperFigure> figures;
    const auto units = NavFunc113::UnitTable(converted.quantity);
    for (std::size_t i = 0; i < units.size(); ++i)
        if (i != converted.typed && !converted.boxes[i].empty())
            figures.push_back(
                {std::string(units[i].caption), converted.boxes[i], std::string(units[i].symbol)});
    return figures;
}

} // namespace korvel
