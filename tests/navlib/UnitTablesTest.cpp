// SPDX-License-Identifier: MIT
#include "navlib/unit_tables.h"

#include "navlib/arithmetic_error.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <stdexcept>
#include <string>

namespace NavFunc113
{
namespace
{

constexpr Quantity quantities[] = {Quantity::Length, Quantity::Area, Quantity::Volume,
                                   Quantity::Pressure, Quantity::Weight};

/// A value of one unit in another, both by symbol.
double converted(Quantity quantity, double value, std::string_view from, std::string_view to)
{
    const auto find = [&](std::string_view symbol) -> const Unit& {
        for (const Unit& unit : UnitTable(quantity))
            if (unit.symbol == symbol) return unit;
        throw std::invalid_argument(std::string(symbol));
    };
    return ConvertUnits(value, find(from), find(to));
}

TEST(UnitTables, equalitiesThatDefineTheUnits)
{
    const struct {
        Quantity quantity;
        double value;
        std::string_view from;
        double other;
        std::string_view to;
    } rows[] = {
        {Quantity::Length, 1, "mi", 5280, "ft"},
        {Quantity::Length, 1, "mi", 1760, "yd"},
        {Quantity::Length, 1, "ft", 12, "in"},
        {Quantity::Length, 1, "shackle", 15, "fm"},
        {Quantity::Length, 1, "sea mile", 6080, "ft"},
        {Quantity::Length, 1, "UK cable", 608, "ft"},
        {Quantity::Length, 1, "nm", 10, "cable"},
        {Quantity::Length, 3937, "ftUS", 1.2, "km"},
        {Quantity::Length, 33, "shaku", 10, "m"},
        {Quantity::Length, 1, "ri", 12960, "shaku"},
        {Quantity::Length, 1, "ken", 6, "shaku"},
        {Quantity::Area, 1, "acre", 43560, "ft²"},
        {Quantity::Area, 1, "acre", 4840, "yd²"},
        {Quantity::Area, 1, "mi²", 640, "acre"},
        {Quantity::Area, 1, "ft²", 144, "in²"},
        {Quantity::Area, 1, "km²", 100, "ha"},
        {Quantity::Area, 1, "ha", 100, "a"},
        {Quantity::Area, 1, "cho", 10, "tan"},
        {Quantity::Area, 1, "tan", 300, "tsubo"},
        {Quantity::Area, 121, "tsubo", 400, "m²"},
        {Quantity::Area, 1, "nm²", 3.429904, "km²"},
        {Quantity::Volume, 1, "bbl", 42, "gal US"},
        {Quantity::Volume, 1, "gal US", 231, "in³"},
        {Quantity::Volume, 1, "gal US", 4, "qt US"},
        {Quantity::Volume, 1, "qt US", 2, "pt US"},
        {Quantity::Volume, 1, "gal UK", 8, "pt UK"},
        {Quantity::Volume, 1, "yd³", 46656, "in³"},
        {Quantity::Volume, 1, "ft³", 1728, "in³"},
        {Quantity::Volume, 1, "reg. ton", 2.5, "meas. ton"},
        {Quantity::Volume, 1, "reg. ton", 100, "ft³"},
        {Quantity::Volume, 1331, "sho", 2.401, "m³"},
        {Quantity::Pressure, 1, "atm", 760, "Torr"},
        {Quantity::Pressure, 1, "inHg", 25.4, "mmHg"},
        {Quantity::Pressure, 1, "bar", 1000, "hPa"},
        {Quantity::Pressure, 1, "bar", 100, "kPa"},
        {Quantity::Pressure, 1, "kgf/cm²", 10, "mH₂O"},
        {Quantity::Weight, 1, "LT", 2240, "lb"},
        {Quantity::Weight, 1, "ST", 20, "cwt US"},
        {Quantity::Weight, 1, "LT", 20, "cwt UK"},
        {Quantity::Weight, 1, "cwt UK", 8, "st"},
        {Quantity::Weight, 1, "lb", 16, "oz"},
        {Quantity::Weight, 1, "kan", 1000, "momme"},
        {Quantity::Weight, 1, "kin", 160, "momme"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.from) + " in " + std::string(row.to));
        EXPECT_NEAR(converted(row.quantity, row.value, row.from, row.to) / row.other, 1, 1e-14);
    }
}

TEST(UnitTables, publishedFigures)
{
    const auto pressure = [](std::string_view unit) {
        return converted(Quantity::Pressure, 1013.25, "hPa", unit);
    };
    EXPECT_NEAR(pressure("mmHg"), 759.99989, 0.000005);
    EXPECT_NEAR(pressure("Torr"), 760, 1e-10);
    EXPECT_NEAR(pressure("inHg"), 29.921256, 0.0000005);
    EXPECT_NEAR(pressure("psi"), 14.695949, 0.0000005);
    EXPECT_NEAR(pressure("kgf/cm²"), 1.0332275, 0.00000005);
    EXPECT_NEAR(converted(Quantity::Pressure, 1, "psi", "kPa"), 6.89475729316836, 5e-14);
    EXPECT_NEAR(converted(Quantity::Volume, 1, "m³", "bbl"), 6.289810770432, 5e-13);
    EXPECT_NEAR(converted(Quantity::Weight, 1, "t", "lb"), 2204.62262184878, 5e-11);
    EXPECT_NEAR(converted(Quantity::Weight, 1, "t", "LT"), 0.984206527611061, 5e-15);
    EXPECT_NEAR(converted(Quantity::Length, 1, "m", "ft"), 3.28083989501312, 5e-14);
    EXPECT_NEAR(converted(Quantity::Length, 1, "ri", "km"), 3.92727272727273, 5e-14);
    EXPECT_NEAR(converted(Quantity::Area, 1, "cho", "ha"), 0.991735537190083, 5e-15);
}

TEST(UnitTables, everyUnitGoesThereAndBackAndCanBeToldApart)
{
    for (Quantity quantity : quantities) {
        std::set<std::string_view> captions;
        std::set<std::string_view> symbols;
        for (const Unit& from : UnitTable(quantity)) {
            EXPECT_TRUE(captions.insert(from.caption).second) << from.caption;
            EXPECT_TRUE(symbols.insert(from.symbol).second) << from.symbol;
            EXPECT_FALSE(from.definition.empty()) << from.caption;
            for (const Unit& to : UnitTable(quantity))
                EXPECT_NEAR(ConvertUnits(ConvertUnits(-12.5, from, to), to, from), -12.5, 1e-13)
                    << from.caption << ", " << to.caption;
        }
    }
    EXPECT_THROW(converted(Quantity::Length, HUGE_VAL, "km", "m"), ArithmeticError);
}

} // namespace
} // namespace NavFunc113
