// SPDX-License-Identifier: MIT
#include "forms/conversion/ConversionWorking.h"

#include "app/reading/Reading.h"
#include "app/records/KORVEL2000Actions.h"

namespace korvel
{
namespace
{

/// The unit in which the factors of a quantity are given.
const char* baseUnit(NavFunc113::Quantity quantity)
{
    switch (quantity) {
    case NavFunc113::Quantity::Length:
        return "m";
    case NavFunc113::Quantity::Area:
        return "m²";
    case NavFunc113::Quantity::Volume:
        return "l";
    case NavFunc113::Quantity::Pressure:
        return "Pa";
    case NavFunc113::Quantity::Weight:
        break;
    }
    return "kg";
}

} // namespace

Working conversionWorking(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text,
                          const std::vector<std::string>& boxes)
{
    Working working{"Conversion",
                    {"Value times the size of its unit, divided by the size of the other; sizes "
                     "are exact by definition, or the double nearest to the defining ratio"},
                    {}};
    const auto value = readLeadingNumber(text);
    if (!value) {
        working.whyNone = "No number was entered.";
        return working;
    }
    const auto units = NavFunc113::UnitTable(quantity);
    const NavFunc113::Unit& from = units[typed];
    const std::string base = baseUnit(quantity);
    const auto size = [&](const NavFunc113::Unit& unit) { return memoText(unit.factor); };
    working.step("Size of the unit entered", "1 " + std::string(from.symbol) + " in " + base,
                 std::string(from.definition), size(from), base);
    for (std::size_t i = 0; i < units.size(); ++i)
        if (i != typed && !boxes[i].empty())
            working.step("In " + std::string(units[i].caption),
                         "1 " + std::string(units[i].symbol) + " = " + size(units[i]) + ' ' + base +
                             " (" + std::string(units[i].definition) + ")",
                         memoText(*value) + " × " + size(from) + " / " + size(units[i]), boxes[i],
                         std::string(units[i].symbol));
    return working;
}

PaperFigure convertedFrom(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text)
{
    const NavFunc113::Unit& unit = NavFunc113::UnitTable(quantity)[typed];
    const auto value = readLeadingNumber(text);
    PaperFigure figure{std::string(unit.caption), value ? memoText(*value) : "not understood",
                       value ? std::string(unit.symbol) : ""};
    if (text.empty()) figure.value = "nothing entered";
    if (figure.value != text) figure.shown = text;
    return figure;
}

std::vector<PaperFigure> convertedInto(NavFunc113::Quantity quantity, std::size_t typed,
                                       const std::vector<std::string>& boxes)
{
    std::vector<PaperFigure> figures;
    const auto units = NavFunc113::UnitTable(quantity);
    for (std::size_t i = 0; i < units.size(); ++i)
        if (i != typed && !boxes[i].empty())
            figures.push_back(
                {std::string(units[i].caption), boxes[i], std::string(units[i].symbol)});
    return figures;
}

} // namespace korvel
