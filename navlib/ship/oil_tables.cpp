// SPDX-License-Identifier: MIT
#include "navlib/ship/oil_tables.h"

#include "navlib/ship/thermal_expansion.h"

#include <cmath>

namespace NavFunc113
{
namespace
{

[[noreturn]] void refuse()
{
    throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
}

ExpansionConstants productsAt15C(KilogramsPerCubicMetre density15)
{
    if (density15 >= 838.5) return {186.9696, 0.4862, 0};       // fuel oils
    if (density15 >= 787.5) return {594.5418, 0, 0};            // jet fuels, kerosines
    if (density15 >= 770.5) return {2680.3206, 0, -0.00336312}; // between them
    return {346.4228, 0.4388, 0};                               // gasolines
}

ExpansionConstants productsAt60F(KilogramsPerCubicMetre density60)
{
    if (density60 >= 838.3127) return {103.8720, 0.2701, 0};
    if (density60 >= 787.5195) return {330.3010, 0, 0};
    if (density60 >= 770.3520) return {1489.0670, 0, -0.00186840};
    return {192.4571, 0.2438, 0};
}

ExpansionConstants constantsAt15C(OilTable table, KilogramsPerCubicMetre density15)
{
    if (table == OilTable::Crude) return {613.9723, 0, 0};
    if (table == OilTable::Lubricating) return {0, 0.6278, 0};
    return productsAt15C(density15);
}

ExpansionConstants constantsAt60F(OilTable table, KilogramsPerCubicMetre density60)
{
    if (table == OilTable::Own) refuse();
    if (table == OilTable::Crude) return {341.0957, 0, 0};
    if (table == OilTable::Lubricating) return {0, 0.34878, 0};
    return productsAt60F(density60);
}

/// The edition of 2004 knows one base, 60 degF; the way to 15 degC leads over it.
VolumeCorrection correctionOver60F(const Oil& oil, Celsius temperature)
{
    constexpr auto edition = CrudeEdition::Of2004;
    const auto correctionAt = [&oil](KilogramsPerCubicMetre density60, Fahrenheit at) {
        return oil.table == OilTable::Own
                   ? CorrectionOf2004(oil.coefficient / 1.8, at)
                   : CorrectionTo60FOfDensity(oil.table, density60, at, edition);
    };
    const KilogramsPerCubicMetre density60 =
        DensityThatGives(oil.density15, [&correctionAt](auto density) {
            return correctionAt(density, reference15C).factor;
        });
    VolumeCorrection correction = correctionAt(density60, FahrenheitOfCelsius(temperature));
    correction.atReference = correctionAt(density60, reference15C).factor;
    correction.factor = Quotient(correction.factor, correction.atReference);
    return correction;
}

double roundedTo(double value, double step)
{
    // The last bit of a quotient must not decide: 22.025 is a tie though 22.025 / 0.05 is below it.
    const double steps = value / step;
    return std::round(steps + std::copysign(std::fabs(steps) * 1e-13, steps)) * step;
}

double roundedFactor(double factor, FactorRounding rounding, CrudeEdition edition)
{
    const bool isFour = rounding == FactorRounding::FourDecimals ||
                        (rounding == FactorRounding::Procedure1980 &&
                         edition == CrudeEdition::Of1980 && factor >= 1);
    const double parts = isFour ? 1e4 : 1e5;
    return std::round(factor * parts) / parts;
}

bool isByProcedure(FactorRounding rounding, CrudeEdition edition)
{
    return rounding == FactorRounding::Procedure1980 && edition == CrudeEdition::Of1980;
}

bool isWithin(double value, double low, double high)
{
    return value >= low && value <= high;
}

/// The bands of temperature of table 6, converted: the volatile ones end earlier.
bool isWithinBands(Celsius temperature, bool isHeavy, bool isMiddle)
{
    return isWithin(temperature, -18, isHeavy ? 149 : isMiddle ? 121 : 93);
}

} // namespace

VolumeCorrection CorrectionTo15C(const Oil& oil, Celsius temperature, CrudeEdition edition)
{
    if (!(oil.density15 > 0)) refuse();
    if (oil.table == OilTable::Own && !(oil.coefficient > 0)) refuse();
    if (edition == CrudeEdition::Of2004) return correctionOver60F(oil, temperature);
    if (oil.table != OilTable::Own)
        return CorrectionOf1980(constantsAt15C(oil.table, oil.density15), oil.density15,
                                temperature - 15);
    VolumeCorrection correction;
    correction.density = oil.density15;
    correction.alpha = oil.coefficient;
    correction.difference = temperature - 15;
    correction.factor = FactorOf1980(oil.coefficient, correction.difference);
    return correction;
}

VolumeCorrection CorrectionTo60FOfDensity(OilTable table, KilogramsPerCubicMetre density60,
                                          Fahrenheit temperature, CrudeEdition edition)
{
    if (!(density60 > 0)) refuse();
    const ExpansionConstants constants = constantsAt60F(table, density60);
    if (edition == CrudeEdition::Of2004) return CorrectionOf2004(constants, density60, temperature);
    return CorrectionOf1980(constants, density60, temperature - 60);
}

VolumeCorrection CorrectionTo60F(OilTable table, APIGravity api, Fahrenheit temperature,
                                 CrudeEdition edition)
{
    return CorrectionTo60FOfDensity(table, Density60FromAPI(api, edition), temperature, edition);
}

double FactorTo15C(const Oil& oil, Celsius temperature, CrudeEdition edition,
                   FactorRounding rounding)
{
    if (!isByProcedure(rounding, edition))
        return roundedFactor(CorrectionTo15C(oil, temperature, edition).factor, rounding, edition);
    const Oil entered{oil.table, roundedTo(oil.density15, 0.5), oil.coefficient};
    const auto correction = CorrectionTo15C(entered, roundedTo(temperature, 0.05), edition);
    return roundedFactor(FactorOf1980(roundedTo(correction.alpha, 1e-7), correction.difference),
                         rounding, edition);
}

double FactorTo60F(OilTable table, APIGravity api, Fahrenheit temperature, CrudeEdition edition,
                   FactorRounding rounding)
{
    if (!isByProcedure(rounding, edition))
        return roundedFactor(CorrectionTo60F(table, api, temperature, edition).factor, rounding,
                             edition);
    const auto correction =
        CorrectionTo60F(table, roundedTo(api, 0.1), roundedTo(temperature, 0.1), edition);
    return roundedFactor(FactorOf1980(roundedTo(correction.alpha, 1e-7), correction.difference),
                         rounding, edition);
}

KilogramsPerCubicMetre Density15OfGravity(OilTable table, APIGravity api, CrudeEdition edition)
{
    if (table == OilTable::Own) refuse();
    return DensityThatGives(Density60FromAPI(api, edition), [table, edition](auto density15) {
        return CorrectionTo15C({table, density15}, reference60F, edition).factor;
    });
}

APIGravity GravityOfOil(const Oil& oil, CrudeEdition edition)
{
    return APIFromDensity60(oil.density15 * CorrectionTo15C(oil, reference60F, edition).factor,
                            edition);
}

CubicMetres CubicMetresPerBarrel(const Oil& oil, CrudeEdition edition)
{
    return cubicMetresPerBarrel * CorrectionTo15C(oil, reference60F, edition).factor;
}

bool WithinTable(const Oil& oil, Celsius temperature, CrudeEdition edition)
{
    const double alpha = oil.coefficient * 1e6;
    if (edition == CrudeEdition::Of2004) {
        if (!isWithin(temperature, -50, 150)) return false;
        if (oil.table == OilTable::Own) return isWithin(alpha, 414, 1674);
        if (!(oil.density15 >= 500)) return false; // far below the lightest of the table
        return isWithin(GravityOfOil(oil, edition), -10,
                        oil.table == OilTable::Lubricating ? 45 : 100);
    }
    switch (oil.table) {
    case OilTable::Own:
        return isWithin(alpha, 486, 1674) && isWithinBands(temperature, alpha <= 918, alpha <= 954);
    case OilTable::Lubricating:
        return isWithin(oil.density15, 825, 1164) && isWithin(temperature, -18, 149);
    case OilTable::Crude:
        return WithinTable54A(oil.density15, temperature);
    case OilTable::Products: // the bands of crude oils, from a heavier one on
        return oil.density15 >= 653 && WithinTable54A(oil.density15, temperature);
    }
    refuse();
}

} // namespace NavFunc113
