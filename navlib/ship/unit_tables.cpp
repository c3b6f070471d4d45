// SPDX-License-Identifier: MIT
#include "navlib/ship/unit_tables.h"

#include "navlib/arithmetic_error.h"

#include <array>

namespace NavFunc113
{
namespace
{

// clang-format off
constexpr std::array lengths = std::to_array<Unit>({
    {"metre",                "m",        1,             "SI base unit"},
    {"kilometre",            "km",       1000,          "1000 m"},
    {"nautical mile",        "nm",       1852,          "1852 m, international, 1929"},
    {"cable",                "cable",    185.2,         "1/10 nautical mile"},
    {"statute mile",         "mi",       1609.344,      "5280 ft"},
    {"yard",                 "yd",       0.9144,        "0.9144 m, international, 1959"},
    {"fathom",               "fm",       1.8288,        "6 ft"},
    {"foot",                 "ft",       0.3048,        "0.3048 m, international, 1959"},
    {"inch",                 "in",       0.0254,        "1/12 ft"},
    {"shackle of chain",     "shackle",  27.432,        "15 fathoms"},
    {"UK sea mile, old",     "sea mile", 1853.184,      "6080 ft, Admiralty"},
    {"cable, old Admiralty", "UK cable", 185.3184,      "608 ft"},
    {"shaku",                "shaku",    10.0 / 33,     "10/33 m"},
    {"ken",                  "ken",      20.0 / 11,     "6 shaku, 20/11 m"},
    {"ri",                   "ri",       43200.0 / 11,  "2160 ken"},
    {"US survey foot",       "ftUS",     1200.0 / 3937, "1200/3937 m, abolished 2022"},
});

constexpr std::array areas = std::to_array<Unit>({
    {"square metre",         "m²",       1,              "SI"},
    {"are",                  "a",        100,            "100 m²"},
    {"hectare",              "ha",       10000,          "100 a"},
    {"square kilometre",     "km²",      1000000,        "100 ha"},
    {"square foot",          "ft²",      0.09290304,     "0.3048 m squared"},
    {"square inch",          "in²",      0.00064516,     "0.0254 m squared"},
    {"square yard",          "yd²",      0.83612736,     "9 ft²"},
    {"acre",                 "acre",     4046.8564224,   "4840 yd²"},
    {"square statute mile",  "mi²",      2589988.110336, "640 acres"},
    {"square nautical mile", "nm²",      3429904,        "1852 m squared"},
    {"tsubo",                "tsubo",    400.0 / 121,    "1 ken squared, 400/121 m²"},
    {"tan",                  "tan",      120000.0 / 121, "300 tsubo"},
    {"cho",                  "cho",      1200000.0 / 121, "3000 tsubo"},
});

constexpr std::array volumes = std::to_array<Unit>({
    {"cubic metre, kilolitre", "m³",     1000,            "1000 litres"},
    {"litre",                "L",        1,               "1 dm³"},
    {"US gallon",            "gal US",   3.785411784,     "231 in³"},
    {"imperial gallon",      "gal UK",   4.54609,         "4.54609 litres"},
    {"US petroleum barrel",  "bbl",      158.987294928,   "42 US gallons"},
    {"cubic foot",           "ft³",      28.316846592,    "0.3048 m cubed"},
    {"cubic inch",           "in³",      0.016387064,     "0.0254 m cubed"},
    {"cubic yard",           "yd³",      764.554857984,   "27 ft³"},
    {"register ton",         "reg. ton", 2831.6846592,    "100 ft³"},
    {"measurement ton",      "meas. ton", 1132.67386368,   "40 ft³, freight"},
    {"US quart",             "qt US",    0.946352946,     "1/4 US gallon"},
    {"US pint",              "pt US",    0.473176473,     "1/8 US gallon"},
    {"imperial pint",        "pt UK",    0.56826125,      "1/8 imperial gallon"},
    {"sho",                  "sho",      2401.0 / 1331,   "2401/1331 litre"},
});

constexpr std::array pressures = std::to_array<Unit>({
    {"hectopascal, millibar", "hPa",     100,              "100 Pa"},
    {"kilopascal",           "kPa",      1000,             "1000 Pa"},
    {"bar",                  "bar",      100000,           "100 000 Pa"},
    {"standard atmosphere",  "atm",      101325,           "101 325 Pa"},
    {"millimetre of mercury", "mmHg",    133.322387415,    "13.5951 g/cm³ x 9.80665 m/s² x 1 mm"},
    {"torr",                 "Torr",     101325.0 / 760,   "1/760 atm"},
    {"inch of mercury",      "inHg",     3386.388640341,   "25.4 mmHg, at 0 °C"},
    {"pound per square inch", "psi",     0.45359237 * 9.80665 / 0.00064516,
                                                           "weight of 1 lb on 1 in²"},
    {"kilogram per square centimetre", "kgf/cm²", 98066.5, "technical atmosphere"},
    {"metre of water",       "mH₂O",     9806.65,          "1000 kg/m³ x 9.80665 m/s² x 1 m, 4 °C"},
});

constexpr std::array weights = std::to_array<Unit>({
    {"kilogram",             "kg",       1,              "SI base unit"},
    {"metric ton",           "t",        1000,           "1000 kg"},
    {"long ton",             "LT",       1016.0469088,   "UK, 2240 lb"},
    {"short ton",            "ST",       907.18474,      "US, 2000 lb"},
    {"pound",                "lb",       0.45359237,     "avoirdupois, international, 1959"},
    {"ounce",                "oz",       0.028349523125, "avoirdupois, 1/16 lb"},
    {"UK hundredweight",     "cwt UK",   50.80234544,    "112 lb"},
    {"US hundredweight",     "cwt US",   45.359237,      "100 lb"},
    {"stone",                "st",       6.35029318,     "14 lb"},
    {"kan",                  "kan",      3.75,           "1000 momme"},
    {"kin",                  "kin",      0.6,            "160 momme"},
    {"momme",                "momme",    0.00375,        "3.75 g"},
});
// clang-format on

} // namespace

std::span<const Unit> UnitTable(Quantity quantity)
{
    switch (quantity) {
    case Quantity::Length:
        return lengths;
    case Quantity::Area:
        return areas;
    case Quantity::Volume:
        return volumes;
    case Quantity::Pressure:
        return pressures;
    case Quantity::Weight:
        return weights;
    }
    throw ArithmeticError(ArithmeticError::Condition::SubscriptOutOfRange);
}

double ConvertUnits(double value, const Unit& from, const Unit& to)
{
    return Quotient(value * from.factor, to.factor);
}

} // namespace NavFunc113
