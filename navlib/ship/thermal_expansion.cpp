// SPDX-License-Identifier: MIT
#include "navlib/ship/thermal_expansion.h"

#include <array>

namespace NavFunc113
{
namespace
{

// 60 degF lies at 60.0068749 on the scale of 1968; the base density moves by that much.
constexpr double shiftOf60F = 0.01374979547;

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

} // namespace

double CoefficientOfExpansion(const ExpansionConstants& constants, KilogramsPerCubicMetre density)
{
    if (!(density > 0)) throw ArithmeticError(ArithmeticError::Condition::InvalidArgument);
    return constants.K0 / (density * density) + constants.K1 / density + constants.K2;
}

double FactorOf1980(double alpha, double difference)
{
    const double x = alpha * difference;
    return std::exp(-x * (1 + 0.8 * x));
}

VolumeCorrection CorrectionOf1980(const ExpansionConstants& constants,
                                  KilogramsPerCubicMetre density, double difference)
{
    VolumeCorrection correction;
    correction.density = density;
    correction.K0 = constants.K0;
    correction.K1 = constants.K1;
    correction.K2 = constants.K2;
    correction.alpha = CoefficientOfExpansion(constants, density);
    correction.difference = difference;
    correction.factor = FactorOf1980(correction.alpha, difference);
    return correction;
}

VolumeCorrection CorrectionOf2004(double alpha60, Fahrenheit temperature)
{
    VolumeCorrection correction;
    correction.alpha = alpha60;
    correction.difference = onScaleOf1968(temperature) - 60.0068749;
    correction.shift = shiftOf60F;
    correction.factor = std::exp(-alpha60 * correction.difference *
                                 (1 + 0.8 * alpha60 * (correction.difference + shiftOf60F)));
    return correction;
}

VolumeCorrection CorrectionOf2004(const ExpansionConstants& constants,
                                  KilogramsPerCubicMetre density60, Fahrenheit temperature)
{
    const auto& [K0, K1, K2] = constants;
    const double A = shiftOf60F / 2 * CoefficientOfExpansion(constants, density60);
    const double B = Quotient(2 * K0 + K1 * density60, K0 + (K1 + K2 * density60) * density60);
    const KilogramsPerCubicMetre base =
        density60 * (1 + (std::exp(A * (1 + 0.8 * A)) - 1) / (1 + A * (1 + 1.6 * A) * B));
    VolumeCorrection correction =
        CorrectionOf2004(CoefficientOfExpansion(constants, base), temperature);
    correction.density = base;
    correction.K0 = K0;
    correction.K1 = K1;
    correction.K2 = K2;
    return correction;
}

} // namespace NavFunc113
