// SPDX-License-Identifier: MIT
#include "navlib/ship/cargo.h"

#include "navlib/arithmetic_error.h"

#include <array>
#include <cmath>

namespace NavFunc113
{
namespace
{

// Expansion coefficient of crude oil is K0 / density^2; the density at the table's reference.
constexpr double K0of54A = 613.9723;
constexpr double K0of6A = 341.0957;

constexpr Celsius reference60F = 140 / 9.0; // 60 degF
constexpr Fahrenheit reference15C = 59;     // 15 degC

void requirePositive(double value)
{
    if (!(value > 0)) throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
}

/// Solves density x factor(density) = target by repeated division.
template <typename Factor>
KilogramsPerCubicMetre densityThatGives(KilogramsPerCubicMetre target, Factor factor)
{
    KilogramsPerCubicMetre density = target;
    for (int i = 0; i < 50; ++i) {
        const KilogramsPerCubicMetre next = Quotient(target, factor(density));
        const bool settled = std::fabs(next - density) < 1e-6;
        density = next;
        if (settled) return density;
    }
    throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
}

VolumeCorrection correctionOf1980(double K0, KilogramsPerCubicMetre density,
                                  double temperatureDifference)
{
    const double alpha = K0 / (density * density);
    const double x = alpha * temperatureDifference;
    return {density, K0, alpha, temperatureDifference, 0, 1, std::exp(-x * (1 + 0.8 * x))};
}

/// Temperature of the scale of 1968, in which the expansion was measured, from today's scale.
Fahrenheit onScaleOf1968(Fahrenheit temperature)
{
    constexpr std::array<double, 8> a{-0.148759, -0.267408, 1.080760, 1.269056,
                                      -4.089591, -1.871251, 7.438081, -3.536296};
    const Celsius t90 = CelsiusOfFahrenheit(temperature);
    const double x = t90 / 630;
    double difference = 0;
    for (std::size_t i = a.size(); i-- > 0;)
        difference = (difference + a[i]) * x;
    return FahrenheitOfCelsius(t90 - difference);
}

VolumeCorrection correctionOf2004(KilogramsPerCubicMetre density60, Fahrenheit temperature)
{
    // 60 degF lies at 60.0068749 on the scale of 1968; the base density moves by that much.
    constexpr double shiftOf60F = 0.01374979547;
    const double A = shiftOf60F / 2 * K0of6A / (density60 * density60);
    const double B = 2;
    const KilogramsPerCubicMetre base =
        density60 * (1 + (std::exp(A * (1 + 0.8 * A)) - 1) / (1 + A * (1 + 1.6 * A) * B));
    const double alpha = K0of6A / (base * base);
    const double dt = onScaleOf1968(temperature) - 60.0068749;
    return {base,
            K0of6A,
            alpha,
            dt,
            shiftOf60F,
            1,
            std::exp(-alpha * dt * (1 + 0.8 * alpha * (dt + shiftOf60F)))};
}

double factorOf2004(KilogramsPerCubicMetre density60, Fahrenheit temperature)
{
    return correctionOf2004(density60, temperature).factor;
}

VolumeCorrection correctionTo60F(KilogramsPerCubicMetre density60, Fahrenheit temperature,
                                 CrudeEdition edition)
{
    if (edition == CrudeEdition::Of2004) return correctionOf2004(density60, temperature);
    return correctionOf1980(K0of6A, density60, temperature - 60);
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
    return densityThatGives(Density60FromAPI(api, edition), [edition](auto density15) {
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
    requirePositive(density15);
    if (edition == CrudeEdition::Of1980)
        return correctionOf1980(K0of54A, density15, temperature - 15);
    // The revision knows one base, 60 degF; the way to 15 degC leads over it.
    const KilogramsPerCubicMetre density60 = densityThatGives(
        density15, [](auto density) { return factorOf2004(density, reference15C); });
    VolumeCorrection correction = correctionOf2004(density60, FahrenheitOfCelsius(temperature));
    correction.atReference = factorOf2004(density60, reference15C);
    correction.factor = Quotient(correction.factor, correction.atReference);
    return correction;
}

VolumeCorrection CorrectionBy6A(APIGravity api, Fahrenheit temperature, CrudeEdition edition)
{
    return correctionTo60F(Density60FromAPI(api, edition), temperature, edition);
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
    return densityThatGives(observed, [temperature, edition](auto density15) {
        return VCF54A(density15, temperature, edition);
    });
}

APIGravity API60FromObserved(APIGravity observed, Fahrenheit temperature, ReadWith means,
                             CrudeEdition edition)
{
    KilogramsPerCubicMetre density = Density60FromAPI(observed, edition);
    if (means == ReadWith::Hydrometer) density *= HydrometerCorrectionF(temperature);
    requirePositive(density);
    const KilogramsPerCubicMetre density60 =
        densityThatGives(density, [temperature, edition](auto candidate) {
            return correctionTo60F(candidate, temperature, edition).factor;
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
