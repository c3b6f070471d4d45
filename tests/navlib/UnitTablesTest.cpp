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

using enum Quantity;

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
        {Length, 1, "mi", 5280, "ft"},
        {Length, 1, "mi", 1760, "yd"},
        {Length, 1, "ft", 12, "in"},
        {Length, 1, "shackle", 15, "fm"},
        {Length, 1, "sea mile", 6080, "ft"},
        {Length, 1, "UK cable", 608, "ft"},
        {Length, 1, "nm", 10, "cable"},
        {Length, 3937, "ftUS", 1.2, "km"},
        {Length, 33, "shaku", 10, "m"},
        {Length, 1, "ri", 12960, "shaku"},
        {Length, 1, "ken", 6, "shaku"},
        {Area, 1, "acre", 43560, "ft²"},
        {Area, 1, "acre", 4840, "yd²"},
        {Area, 1, "mi²", 640, "acre"},
        {Area, 1, "ft²", 144, "in²"},
        {Area, 1, "km²", 100, "ha"},
        {Area, 1, "ha", 100, "a"},
        {Area, 1, "cho", 10, "tan"},
        {Area, 1, "tan", 300, "tsubo"},
        {Area, 121, "tsubo", 400, "m²"},
        {Area, 1, "nm²", 3.429904, "km²"},
        {Volume, 1, "bbl", 42, "gal US"},
        {Volume, 1, "gal US", 231, "in³"},
        {Volume, 1, "gal US", 4, "qt US"},
        {Volume, 1, "qt US", 2, "pt US"},
        {Volume, 1, "gal UK", 8, "pt UK"},
        {Volume, 1, "yd³", 46656, "in³"},
        {Volume, 1, "ft³", 1728, "in³"},
        {Volume, 1, "reg. ton", 2.5, "meas. ton"},
        {Volume, 1, "reg. ton", 100, "ft³"},
        {Volume, 1331, "sho", 2.401, "m³"},
        {Pressure, 1, "atm", 760, "Torr"},
        {Pressure, 1, "inHg", 25.4, "mmHg"},
        {Pressure, 1, "bar", 1000, "hPa"},
        {Pressure, 1, "bar", 100, "kPa"},
        {Pressure, 1, "kgf/cm²", 10, "mH₂O"},
        {Weight, 1, "LT", 2240, "lb"},
        {Weight, 1, "ST", 20, "cwt US"},
        {Weight, 1, "LT", 20, "cwt UK"},
        {Weight, 1, "cwt UK", 8, "st"},
        {Weight, 1, "lb", 16, "oz"},
        {Weight, 1, "kan", 1000, "momme"},
        {Weight, 1, "kin", 160, "momme"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.from) + " in " + std::string(row.to));
        EXPECT_NEAR(converted(row.quantity, row.value, row.from, row.to) / row.other, 1, 1e-14);
    }
}

TEST(UnitTables, publishedFigures)
{
    const auto pressure = [](std::string_view unit) {
        return converted(Pressure, 1013.25, "hPa", unit);
    };
    EXPECT_NEAR(pressure("mmHg"), 759.99989, 0.000005);
    EXPECT_NEAR(pressure("kgf/cm²"), 1.0332275, 0.00000005);
    EXPECT_NEAR(converted(Pressure, 1, "psi", "kPa"), 6.89475729316836, 5e-14);
    EXPECT_NEAR(converted(Volume, 1, "m³", "bbl"), 6.289810770432, 5e-13);
    EXPECT_NEAR(converted(Weight, 1, "t", "lb"), 2204.62262184878, 5e-11);
    EXPECT_NEAR(converted(Length, 1, "m", "ft"), 3.28083989501312, 5e-14);
}

TEST(UnitTables, everyUnitGoesThereAndBackAndCanBeToldApart)
{
    for (Quantity quantity : {Length, Area, Volume, Pressure, Weight}) {
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
    EXPECT_THROW(converted(Length, HUGE_VAL, "km", "m"), ArithmeticError);
}

} // namespace
} // namespace NavFunc113
