// SPDX-License-Identifier: MIT
#include "forms/conversion/CalculateConversion.h"

#include "app/reading/Reading.h"
#include "navlib/arithmetic_error.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

using NavFunc113::Quantity;

std::size_t boxOf(Quantity quantity, std::string_view symbol)
{
    const auto units = NavFunc113::UnitTable(quantity);
    for (std::size_t i = 0; i < units.size(); ++i)
        if (units[i].symbol == symbol) return i;
    ADD_FAILURE() << "no unit " << symbol;
    return 0;
}

TEST(CalculateConversion, whicheverBoxIsTypedInLeadsTheOthers)
{
    const struct {
        Quantity quantity;
        const char* from;
        const char* typed;
        const char* to;
        const char* shown;
    } rows[] = {
        {Quantity::Length, "nm", "1", "m", "1852"},
        {Quantity::Length, "ft", "-6", "fm", "-1"},
        {Quantity::Area, "nm²", "1000", "m²", "3429904000"},
        {Quantity::Area, "in²", "1", "km²", "0.00000000064516"},
        {Quantity::Volume, "bbl", "500000", "m³", "79493.65"},
        {Quantity::Pressure, "inHg", "29.92", "hPa", "1013.207"},
        {Quantity::Weight, "LT", "0", "kg", "0"},
        {Quantity::Weight, "LT", "0.000001", "t", "0.000001016047"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.typed) + " " + row.from);
        const std::size_t from = boxOf(row.quantity, row.from);
        const auto boxes = CalculateConversion(row.quantity, from, row.typed);
        EXPECT_EQ(boxes.size(), NavFunc113::UnitTable(row.quantity).size());
        EXPECT_EQ(boxes[boxOf(row.quantity, row.to)], row.shown);
        EXPECT_FALSE(boxes[from].has_value()) << "the officer's own text is left alone";
    }
}

TEST(CalculateConversion, withoutANumberTheOthersAreBlank)
{
    for (const char* text : {"", " ", "-", "abc"}) {
        const auto boxes = CalculateConversion(Quantity::Weight, 3, text);
        for (std::size_t i = 0; i < boxes.size(); ++i)
            EXPECT_EQ(boxes[i], i == 3 ? std::nullopt : std::optional<std::string>(""));
    }
    EXPECT_THROW(CalculateConversion(Quantity::Area, 3, std::string(320, '9')),
                 NavFunc113::ArithmeticError);
    EXPECT_THROW(CalculateConversion(Quantity::Area, 13, "1"), NavFunc113::ArithmeticError);
}

TEST(CalculateConversion, figuresReadBackAsTheyStand)
{
    EXPECT_EQ(significantText(999999.96), "1000000");
    EXPECT_EQ(significantText(99999999.6), "100000000");
    EXPECT_EQ(significantText(1234567890), "1234567890") << "no invented zeros";
    EXPECT_EQ(significantText(0.000001234567849), "0.000001234568");
    EXPECT_EQ(significantText(-0.1), "-0.1");
    EXPECT_EQ(significantText(1234567.4), "1234567");
    EXPECT_EQ(significantText(1.234567e-31), "0." + std::string(30, '0') + "123457")
        << "nothing is smaller on board";
    EXPECT_EQ(significantText(2.0 / 3), "0.6666667");
    for (double value : {1.5e21, 1e15, 4.25e-12})
        EXPECT_DOUBLE_EQ(readNumber(significantText(value)), value);
}

} // namespace
} // namespace korvel
