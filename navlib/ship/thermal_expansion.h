// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/arithmetic_error.h"
#include "navlib/ship/cargo.h"

#include <cmath>

/// The formulas that all volume correction tables share.
namespace NavFunc113
{

/// Constants of a kind of oil. Its coefficient of expansion is K0 / density^2 + K1 / density + K2,
/// per degree of the base that the constants belong to: 15 degC, or 60 degF.
struct ExpansionConstants {
    double K0{};
    double K1{};
    double K2{};
};

inline constexpr Celsius reference60F = 140 / 9.0; ///< 60 degF
inline constexpr Fahrenheit reference15C = 59;     ///< 15 degC

/// @throws ArithmeticError InvalidArgument unless density > 0
double CoefficientOfExpansion(const ExpansionConstants& constants, KilogramsPerCubicMetre density);

/// The factor of the edition of 1980: exp(-alpha dt (1 + 0.8 alpha dt)).
/// @param difference of the temperature from the base, in degrees of the base
double FactorOf1980(double alpha, double difference);
VolumeCorrection CorrectionOf1980(const ExpansionConstants& constants,
                                  KilogramsPerCubicMetre density, double difference);

/// The edition of 2004, whose base is 60 degF for every table.
/// @param constants of that base
VolumeCorrection CorrectionOf2004(const ExpansionConstants& constants,
                                  KilogramsPerCubicMetre density60, Fahrenheit temperature);
/// The same of a coefficient that is known itself, per degF at 60 degF.
VolumeCorrection CorrectionOf2004(double alpha60, Fahrenheit temperature);

/// Solves density x factor(density) = target by repeated division, to 1e-6 kg/m3.
/// @throws ArithmeticError InvalidArgument or DivisionByZero when no density fits
template <typename Factor>
KilogramsPerCubicMetre DensityThatGives(KilogramsPerCubicMetre target, Factor factor)
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

} // namespace NavFunc113
