// SPDX-License-Identifier: MIT
#include "navlib/ship/cargo.h"

#include "navlib/arithmetic_error.h"
#include "navlib/ship/oil_tables.h"
#include "navlib/ship/thermal_expansion.h"

#include <cmath>

namespace NavFunc113
{
namespace
{

void requirePositive(double value)
{
    if (!(value > 0)) throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
}

} // namespace

Celsius CelsiusOfFahrenheit(Fahrenheit value)
{
    return (value - 32) / 1.8;
}

Fahrenheit FahrenheitOfCelsius(Celsius value)
{
    return 1.8 * value + 32;
}

KilogramsPerCubicMetre WaterDensity60F(CrudeEdition edition)
{
    return edition == CrudeEdition::Of2004 ? 999.016 : 999.012;
}

KilogramsPerCubicMetre Density60FromAPI(APIGravity api, CrudeEdition edition)
{
    requirePositive(131.5 + api);
    return 141.5 * WaterDensity60F(edition) / (131.5 + api);
}

APIGravity APIFromDensity60(KilogramsPerCubicMetre density60, CrudeEdition edition)
{
    requirePositive(density60);
    return 141.5 * WaterDensity60F(edition) / density60 - 131.5;
}

KilogramsPerCubicMetre Density15FromAPI(APIGravity api, CrudeEdition edition)
{
    return DensityThatGives(Density60FromAPI(api, edition), [edition](auto density15) {
        return VCF54A(density15, reference60F, edition);
    });
}

APIGravity APIFromDensity15(KilogramsPerCubicMetre density15, CrudeEdition edition)
{
    return APIFromDensity60(density15 * VCF54A(density15, reference60F, edition), edition);
}

double HydrometerCorrection(Celsius temperature)
{
    const double dt = temperature - 15;
    return 1 - 0.000023 * dt - 0.00000002 * dt * dt;
}

double HydrometerCorrectionF(Fahrenheit temperature)
{
    const double dt = temperature - 60;
    return 1 - 0.00001278 * dt - 0.0000000062 * dt * dt;
}

VolumeCorrection CorrectionBy54A(KilogramsPerCubicMetre density15, Celsius temperature,
                                 CrudeEdition edition)
{
    return CorrectionTo15C({OilTable::Crude, density15}, temperature, edition);
}

VolumeCorrection CorrectionBy6A(APIGravity api, Fahrenheit temperature, CrudeEdition edition)
{
    return CorrectionTo60F(OilTable::Crude, api, temperature, edition);
}

double VCF54A(KilogramsPerCubicMetre density15, Celsius temperature, CrudeEdition edition)
{
    return CorrectionBy54A(density15, temperature, edition).factor;
}

double VCF6A(APIGravity api, Fahrenheit temperature, CrudeEdition edition)
{
    return CorrectionBy6A(api, temperature, edition).factor;
}

bool WithinTable54A(KilogramsPerCubicMetre density15, Celsius temperature, CrudeEdition edition)
{
    if (edition == CrudeEdition::Of2004) {
        if (!(density15 >= 500)) return false; // 100 API, the lightest of the table, is above 600
        return WithinTable6A(APIFromDensity15(density15, edition), FahrenheitOfCelsius(temperature),
                             edition);
    }
    if (!(density15 >= 610) || density15 > 1075 || !(temperature >= -18)) return false;
    const Celsius highest = density15 >= 824.65 ? 149 : density15 >= 779.25 ? 121 : 93;
    return temperature <= highest;
}

bool WithinTable6A(APIGravity api, Fahrenheit temperature, CrudeEdition edition)
{
    if (edition == CrudeEdition::Of2004)
        return api >= -10 && api <= 100 && temperature >= -58 && temperature <= 302;
    if (!(api >= 0) || api > 100 || !(temperature >= 0)) return false;
    const Fahrenheit highest = api < 40.05 ? 300 : api < 50.05 ? 250 : 200;
    return temperature <= highest;
}

KilogramsPerCubicMetre Density15FromObserved(KilogramsPerCubicMetre observed, Celsius temperature,
                                             ReadWith means, CrudeEdition edition)
{
    if (means == ReadWith::Hydrometer) observed *= HydrometerCorrection(temperature);
    requirePositive(observed);
    return DensityThatGives(observed, [temperature, edition](auto density15) {
        return VCF54A(density15, temperature, edition);
    });
}

APIGravity API60FromObserved(APIGravity observed, Fahrenheit temperature, ReadWith means,
                             CrudeEdition edition)
{
    KilogramsPerCubicMetre density = Density60FromAPI(observed, edition);
    if (means == ReadWith::Hydrometer) density *= HydrometerCorrectionF(temperature);
    requirePositive(density);
    const KilogramsPerCubicMetre density60 = DensityThatGives(density, [temperature,
                                                                        edition](auto candidate) {
        return CorrectionTo60FOfDensity(OilTable::Crude, candidate, temperature, edition).factor;
    });
    return APIFromDensity60(density60, edition);
}

double KilolitresPerBarrel(KilogramsPerCubicMetre density15, CrudeEdition edition)
{
    return cubicMetresPerBarrel * VCF54A(density15, reference60F, edition);
}

MetricTons MassInVacuo(CubicMetres volume15, KilogramsPerCubicMetre density15)
{
    return volume15 * density15 / 1000;
}

MetricTons WeightInAir(CubicMetres volume15, KilogramsPerCubicMetre density15)
{
    return volume15 * (density15 - 1.1) / 1000;
}

double Table56Factor(KilogramsPerCubicMetre density15)
{
    requirePositive(density15);
    return (1 - 1.22 / density15) / (1 - 1.22 / 8100);
}

double Table56FactorAsPrinted(KilogramsPerCubicMetre density15)
{
    return std::floor(Table56Factor(density15) * 1e4) / 1e4 + 0.00005;
}

LongTons LongTonsOf(MetricTons weight)
{
    return weight / metricTonsPerLongTon;
}

} // namespace NavFunc113
