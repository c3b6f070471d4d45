// SPDX-License-Identifier: MIT
#include "navlib/ship/unit_tables.h"

#include "navlib/angles.h"
#include "navlib/arithmetic_error.h"
#include "navlib/exact_factors.h"
#include "navlib/ship/cargo.h"

#include <array>
#include <cmath>

namespace NavFunc113
{
namespace
{

// clang-format off
constexpr std::array lengths = std::to_array<Unit>({
    {"metre",                "m",        1,             "SI base unit"},
    {"kilometre",            "km",       1000,          "1000 m"},
    {"nautical mile",        "nm",       exact::metresPerMile, "1852 m, international, 1929"},
    {"cable",                "cable",    185.2,         "1/10 nautical mile"},
    {"statute mile",         "mi",       1609.344,      "5280 ft"},
    {"yard",                 "yd",       exact::metresPerYard, "0.9144 m, international, 1959"},
    {"fathom",               "fm",       1.8288,        "6 ft"},
    {"foot",                 "ft",       exact::metresPerFoot, "0.3048 m, international, 1959"},
    {"inch",                 "in",       exact::metresPerInch, "1/12 ft"},
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
    {"US gallon",            "gal US",   exact::litresPerUSGallon, "231 in³"},
    {"imperial gallon",      "gal UK",   exact::litresPerUKGallon, "4.54609 litres"},
    {"US petroleum barrel",  "bbl",      exact::litresPerBarrel, "42 US gallons"},
    {"cubic foot",           "ft³",      exact::litresPerCubicFoot, "0.3048 m cubed"},
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
    {"standard atmosphere",  "atm",      exact::pascalsPerAtmosphere, "101 325 Pa"},
    {"millimetre of mercury", "mmHg",    133.322387415,    "13.5951 g/cm³ x 9.80665 m/s² x 1 mm"},
    {"torr",                 "Torr",     exact::pascalsPerAtmosphere / 760,   "1/760 atm"},
    {"inch of mercury",      "inHg",     3386.388640341,   "25.4 mmHg, at 0 °C"},
    {"pound per square inch", "psi",     exact::kilogramsPerPound * exact::standardGravity / 0.00064516,
                                                           "weight of 1 lb on 1 in²"},
    {"kilogram per square centimetre", "kgf/cm²", 98066.5, "technical atmosphere"},
    {"metre of water",       "mH₂O",     9806.65,          "1000 kg/m³ x 9.80665 m/s² x 1 m, 4 °C"},
});

constexpr std::array weights = std::to_array<Unit>({
    {"kilogram",             "kg",       1,              "SI base unit"},
    {"metric ton",           "t",        1000,           "1000 kg"},
    {"long ton",             "LT",       exact::kilogramsPerLongTon, "UK, 2240 lb"},
    {"short ton",            "ST",       907.18474,      "US, 2000 lb"},
    {"pound",                "lb",       exact::kilogramsPerPound, "avoirdupois, international, 1959"},
    {"ounce",                "oz",       0.028349523125, "avoirdupois, 1/16 lb"},
    {"UK hundredweight",     "cwt UK",   exact::kilogramsPerUKHundredweight, "112 lb"},
    {"US hundredweight",     "cwt US",   45.359237,      "100 lb"},
    {"stone",                "st",       6.35029318,     "14 lb"},
    {"kan",                  "kan",      3.75,           "1000 momme"},
    {"kin",                  "kin",      0.6,            "160 momme"},
    {"momme",                "momme",    0.00375,        "3.75 g"},
});

constexpr std::array temperatures = std::to_array<Unit>({
    {"degree Celsius",    "°C", 1,       "K - 273.15", UnitScale::Offset, exact::kelvinOfIcePoint},
    {"degree Fahrenheit", "°F", 5.0 / 9, "9/5 °C + 32", UnitScale::Offset, exact::rankineOfZeroFahrenheit},
    {"kelvin",            "K",  1,       "SI base unit"},
    {"degree Rankine",    "°R", 5.0 / 9, "9/5 K"},
});

constexpr double metresPerSecondOfKnot = exact::metresPerMile / 3600;
constexpr std::array speeds = std::to_array<Unit>({
    {"knot",               "kn",     metresPerSecondOfKnot, "1852 m an hour"},
    {"metre per second",   "m/s",    1,                     "SI"},
    {"kilometre per hour", "km/h",   1 / 3.6,               "1000 m an hour"},
    {"statute mile per hour", "mph", 0.44704,               "5280 ft an hour"},
    {"foot per second",    "ft/s",   exact::metresPerFoot,  "0.3048 m a second"},
    {"metre per minute",   "m/min",  1.0 / 60,              "1/60 m/s"},
    {"foot per minute",    "ft/min", exact::metresPerFoot / 60, "0.3048 m a minute"},
    {"cable per minute",   "cable/min", 185.2 / 60,         "6 knots"},
    {"nautical mile per day", "nm/day", metresPerSecondOfKnot / 24, "1/24 knot"},
});

constexpr std::array densities = std::to_array<Unit>({
    {"kilogram per cubic metre", "kg/m³", 1,    "SI; g/L"},
    {"ton per cubic metre",   "t/m³",     1000, "kg/L, g/cm³"},
    {"API gravity at 60 °F",  "°API",     1,    "141.5 / (relative density 60/60 °F) - 131.5", UnitScale::APIDegrees},
    {"relative density 60/60 °F", "RD 60", 999.012, "water at 60 °F: 999.012 kg/m³, tables of 1980"},
    {"pound per cubic foot",  "lb/ft³",   1000 * exact::kilogramsPerPound / exact::litresPerCubicFoot, "0.45359237 kg in 28.316846592 L"},
    {"pound per US gallon",   "lb/gal US", 1000 * exact::kilogramsPerPound / exact::litresPerUSGallon, "0.45359237 kg in 3.785411784 L"},
    {"pound per UK gallon",   "lb/gal UK", 1000 * exact::kilogramsPerPound / exact::litresPerUKGallon, "0.45359237 kg in 4.54609 L"},
    {"cubic metre per ton",   "m³/t",     1000, "stowage factor, 1000 kg", UnitScale::Reciprocal},
    {"cubic foot per long ton", "ft³/LT", 1000 * exact::kilogramsPerLongTon / exact::litresPerCubicFoot, "stowage factor, 2240 lb", UnitScale::Reciprocal},
});

constexpr double kilogramsPerKilowattHourOfPoundPerHorsepowerHour =
    1000 * exact::kilogramsPerPound / exact::wattsPerHorsepower;
constexpr std::array flows = std::to_array<Unit>({
    {"ton per hour",         "t/h",    1000,        "1000 kg an hour"},
    {"ton per day",          "t/day",  1000.0 / 24, "1000 kg in 24 hours"},
    {"kilogram per hour",    "kg/h",   1,           "1 kg an hour"},
    {"long ton per day",     "LT/day", exact::kilogramsPerLongTon / 24, "2240 lb in 24 hours"},
    {"pound per hour",       "lb/h",   exact::kilogramsPerPound, "0.45359237 kg an hour"},
    {"cubic metre per hour", "m³/h",   1,           "by the density", UnitScale::Ratio, 0, UnitNeed::Density},
    {"cubic metre per day",  "m³/day", 1.0 / 24,    "by the density", UnitScale::Ratio, 0, UnitNeed::Density},
    {"litre per hour",       "L/h",    0.001,       "by the density", UnitScale::Ratio, 0, UnitNeed::Density},
    {"litre per minute",     "L/min",  0.06,        "by the density", UnitScale::Ratio, 0, UnitNeed::Density},
    {"barrel per hour",      "bbl/h",  0.001 * exact::litresPerBarrel, "158.987294928 L, by the density", UnitScale::Ratio, 0, UnitNeed::Density},
    {"barrel per day",       "bbl/day", 0.001 * exact::litresPerBarrel / 24, "158.987294928 L, by the density", UnitScale::Ratio, 0, UnitNeed::Density},
    {"gram per kilowatt hour", "g/kWh", 0.001,      "by the power", UnitScale::Ratio, 0, UnitNeed::Power},
    {"gram per metric horsepower hour", "g/PSh", 1 / exact::wattsPerMetricHorsepower, "735.49875 W, by the power", UnitScale::Ratio, 0, UnitNeed::Power},
    {"pound per horsepower hour", "lb/hph", kilogramsPerKilowattHourOfPoundPerHorsepowerHour, "745.699872 W, by the power", UnitScale::Ratio, 0, UnitNeed::Power},
});

constexpr std::array energies = std::to_array<Unit>({
    {"kilojoule",            "kJ",   1,        "1000 J, SI"},
    {"megajoule",            "MJ",   1000,     "1000 kJ"},
    {"gigajoule",            "GJ",   1000000,  "1000 MJ"},
    {"kilowatt hour",        "kWh",  3600,     "3600 kJ"},
    {"megawatt hour",        "MWh",  3600000,  "1000 kWh"},
    {"kilocalorie",          "kcal", exact::joulesPerCalorie, "4.1868 kJ, steam table, 1956"},
    {"British thermal unit", "BTU",  exact::joulesPerBTU / 1000, "1055.05585262 J, steam table"},
    {"metric horsepower hour", "PSh", 3.6 * exact::wattsPerMetricHorsepower, "75 m kgf/s for an hour"},
    {"kilowatt",             "kW",   3600,     "1000 W, by the hours", UnitScale::Ratio, 0, UnitNeed::Duration},
    {"megawatt",             "MW",   3600000,  "1000 kW, by the hours", UnitScale::Ratio, 0, UnitNeed::Duration},
    {"metric horsepower",    "PS",   3.6 * exact::wattsPerMetricHorsepower, "75 m kgf/s = 735.49875 W, by the hours", UnitScale::Ratio, 0, UnitNeed::Duration},
    {"horsepower",           "hp",   3.6 * exact::wattsPerHorsepower, "550 ft lbf/s = 745.699872 W, by the hours", UnitScale::Ratio, 0, UnitNeed::Duration},
    {"kilocalorie per hour", "kcal/h", exact::joulesPerCalorie, "1.163 W, by the hours", UnitScale::Ratio, 0, UnitNeed::Duration},
    {"BTU per hour",         "BTU/h", exact::joulesPerBTU / 1000, "0.293071 W, by the hours", UnitScale::Ratio, 0, UnitNeed::Duration},
});

constexpr std::array angles = std::to_array<Unit>({
    {"degree",            "°",     1,           "1/360 of a turn"},
    {"degrees.minutes",   "°.′",   1,           "35.305 is 35° 30.5′", UnitScale::PackedArc},
    {"minute of arc",     "′",     1.0 / 60,    "1/60 degree"},
    {"second of arc",     "″",     1.0 / 3600,  "1/60 minute"},
    {"hour of time",      "h",     15,          "15 degrees"},
    {"clock time", "h:m:s", 15,      "hours:minutes:seconds, 9:30:00 is 9.5 hours", UnitScale::Clock},
    {"minute of time",    "min",   0.25,        "15 minutes of arc"},
    {"second of time",    "s",     15.0 / 3600, "15 seconds of arc"},
    {"radian",            "rad",   57.295779513082321, "180 degrees / π"},
    {"point",             "point", 11.25,       "1/32 of a turn"},
    {"mil",               "mil",   0.05625,     "1/6400 of a turn"},
    {"gon",               "gon",   0.9,         "1/400 of a turn"},
    {"turn",              "turn",  360,         "360 degrees"},
});

constexpr std::array otherNames = std::to_array<UnitName>({
    {Quantity::Length, "mm",       0.001},
    {Quantity::Length, "cm",       0.01},
    {Quantity::Length, "feet",     exact::metresPerFoot},
    {Quantity::Length, "'",        exact::metresPerFoot},
    {Quantity::Length, "inches",   exact::metresPerInch},
    {Quantity::Length, "\"",       exact::metresPerInch},
    {Quantity::Length, "''",       exact::metresPerInch},
    {Quantity::Weight, "g",        0.001},
    {Quantity::Weight, "lbs",      exact::kilogramsPerPound},
    {Quantity::Weight, "cwt",      exact::kilogramsPerUKHundredweight},
    {Quantity::Weight, "hundredweight", exact::kilogramsPerUKHundredweight},
    {Quantity::Weight, "qr",       exact::kilogramsPerQuarter},
    {Quantity::Weight, "quarter",  exact::kilogramsPerQuarter},
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
    case Quantity::Temperature:
        return temperatures;
    case Quantity::Speed:
        return speeds;
    case Quantity::Density:
        return densities;
    case Quantity::Flow:
        return flows;
    case Quantity::Energy:
        return energies;
    case Quantity::Angle:
        return angles;
    }
    throw ArithmeticError(ArithmeticError::Condition::SubscriptOutOfRange);
}

std::string_view BaseUnit(Quantity quantity)
{
    constexpr std::array<std::string_view, quantities> symbols = {
        "m", "m²", "l", "Pa", "kg", "K", "m/s", "kg/m³", "kg/h", "kJ", "°"};
    return symbols.at(static_cast<std::size_t>(quantity));
}

std::span<const UnitName> OtherUnitNames()
{
    return otherNames;
}

std::optional<double> UnitConditions::of(UnitNeed need) const
{
    switch (need) {
    case UnitNeed::Density:
        return density;
    case UnitNeed::Power:
        return power;
    case UnitNeed::Duration:
        return hours;
    case UnitNeed::Nothing:
        break;
    }
    return 1;
}

bool CanConvert(const Unit& from, const Unit& to, const UnitConditions& conditions)
{
    return from.needs == to.needs || (conditions.of(from.needs) && conditions.of(to.needs));
}

double InBaseUnit(double value, const Unit& from)
{
    switch (from.scale) {
    case UnitScale::Offset:
        return (value + from.offset) * from.factor;
    case UnitScale::Reciprocal:
        return Quotient(from.factor, value);
    case UnitScale::APIDegrees:
        return Density60FromAPI(value);
    case UnitScale::PackedArc:
        return DegMinToDeg(DegMin(value)).value();
    case UnitScale::Ratio:
    case UnitScale::Clock:
        break;
    }
    return value * from.factor;
}

double ConvertUnits(double value, const Unit& from, const Unit& to,
                    const UnitConditions& conditions)
{
    if (!CanConvert(from, to, conditions)) throwInvalidArgument();
    const bool areAlike = from.needs == to.needs;
    double base = InBaseUnit(value, from);
    if (!areAlike) base *= Quotient(*conditions.of(from.needs), *conditions.of(to.needs));
    switch (to.scale) {
    case UnitScale::Offset: {
        // What the base's many digits leave of a round figure is no part of it.
        constexpr double steps = 1e11, largest = 9e4;
        const double result = Quotient(base, to.factor) - to.offset;
        return std::fabs(result) < largest ? std::round(result * steps) / steps : result;
    }
    case UnitScale::APIDegrees:
        return APIFromDensity60(base);
    case UnitScale::PackedArc:
        return DegToDegMin(Degrees(base)).packed();
    case UnitScale::Reciprocal:
    case UnitScale::Ratio:
    case UnitScale::Clock:
        break;
    }
    return to.scale == UnitScale::Reciprocal ? Quotient(to.factor, base)
                                             : Quotient(base, to.factor);
}

} // namespace NavFunc113
