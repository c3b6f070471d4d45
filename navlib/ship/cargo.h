// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/exact_factors.h"

/// Crude oil: volume correction, densities, barrels, kilolitres and tons.
///
/// Formulas: ASTM D1250-80 / API MPMS chapter 11.1, crude oils, tables 5A, 6A, 53A and 54A; with
/// CrudeEdition::Of2004 the revision of 2004 (API MPMS 11.1-2004), which differs by less than
/// 2e-5 in the normal range of cargoes. At the reference temperature the factor is exactly 1.
/// Densities are in vacuo, as these standards define them.
namespace NavFunc113
{

using KilogramsPerCubicMetre = double;
using APIGravity = double; ///< degrees API at 60 degF
using Celsius = double;
using Fahrenheit = double;
using CubicMetres = double; ///< 1 kL = 1 m3
using Barrels = double;     ///< US petroleum barrels
using MetricTons = double;
using LongTons = double;

enum class CrudeEdition { Of1980, Of2004 };

/// 42 US gallons of 231 cubic inches; exact.
inline constexpr CubicMetres cubicMetresPerBarrel = exact::litresPerBarrel / 1000;
/// 2240 lb; exact.
inline constexpr MetricTons metricTonsPerLongTon = exact::kilogramsPerLongTon / 1000;

Celsius CelsiusOfFahrenheit(Fahrenheit value);
Fahrenheit FahrenheitOfCelsius(Celsius value);

/// Density of water at 60 degF to which the edition's relative densities refer: 999.012 kg/m3 in
/// 1980, 999.016 in 2004. The two must not be mixed.
KilogramsPerCubicMetre WaterDensity60F(CrudeEdition edition = CrudeEdition::Of1980);

/// Density at 60 degF of an API gravity: 141.5 x water / (131.5 + API).
/// @throws ArithmeticError InvalidArgument unless api > -131.5
KilogramsPerCubicMetre Density60FromAPI(APIGravity api,
                                        CrudeEdition edition = CrudeEdition::Of1980);

/// The way back. @throws ArithmeticError InvalidArgument unless density60 > 0
APIGravity APIFromDensity60(KilogramsPerCubicMetre density60,
                            CrudeEdition edition = CrudeEdition::Of1980);

/// Density at 15 degC of an API gravity at 60 degF, and the way back. The oil shrinks by the 5/9
/// degree between the two references: 850 kg/m3 at 15 degC is 34.88 API, not 34.81.
/// @throws ArithmeticError InvalidArgument unless api > -131.5, density15 > 0
KilogramsPerCubicMetre Density15FromAPI(APIGravity api,
                                        CrudeEdition edition = CrudeEdition::Of1980);
APIGravity APIFromDensity15(KilogramsPerCubicMetre density15,
                            CrudeEdition edition = CrudeEdition::Of1980);

/// A volume correction factor with what it was calculated from:
/// exp(-alpha x difference x (1 + 0.8 alpha (difference + shift))) / atReference.
struct VolumeCorrection {
    KilogramsPerCubicMetre density{}; ///< at the base of the formula
    double K0{};
    double alpha{};         ///< K0 / density^2, per degree of the base
    double difference{};    ///< of temperature from the base
    double shift{};         ///< of the base itself on the scale of 1968; 0 in the edition of 1980
    double atReference = 1; ///< 54A of 2004: the factor at 15 degC, for the base is 60 degF
    double factor = 1;
    double K1{}; ///< of kinds of oil whose alpha has them: + K1 / density + K2
    double K2{};
};
VolumeCorrection CorrectionBy54A(KilogramsPerCubicMetre density15, Celsius temperature,
                                 CrudeEdition edition = CrudeEdition::Of1980);
VolumeCorrection CorrectionBy6A(APIGravity api, Fahrenheit temperature,
                                CrudeEdition edition = CrudeEdition::Of1980);

/// Correction of a glass hydrometer for its own expansion: what its reading is multiplied with.
double HydrometerCorrection(Celsius temperature);
double HydrometerCorrectionF(Fahrenheit temperature);

/// Volume correction factor to 15 degC, Table 54A; not rounded.
///
/// @param density15 at 15 degC; the table covers 610 to 1075 (see WithinTable54A), beyond it the
///                  formula is carried on
/// @throws ArithmeticError InvalidArgument unless density15 > 0
double VCF54A(KilogramsPerCubicMetre density15, Celsius temperature,
              CrudeEdition edition = CrudeEdition::Of1980);

/// Volume correction factor to 60 degF, Table 6A; not rounded.
/// @throws ArithmeticError InvalidArgument unless api > -131.5
double VCF6A(APIGravity api, Fahrenheit temperature, CrudeEdition edition = CrudeEdition::Of1980);

/// True where the printed tables give a value.
///
/// 6A: 0 to 40.0 API 0 to 300 degF; to 50.0 API up to 250 degF; to 100.0 API up to 200 degF. 54A:
/// 610 to 1075 kg/m3, the temperatures those of 6A converted: 824.7 and more -18 to 149 degC,
/// 779.3 and more up to 121 degC, below that up to 93 degC. The tables are entered to the nearest
/// 0.1. Edition of 2004: -10 to 100 API, -50 to 150 degC.
bool WithinTable54A(KilogramsPerCubicMetre density15, Celsius temperature,
                    CrudeEdition edition = CrudeEdition::Of1980);
bool WithinTable6A(APIGravity api, Fahrenheit temperature,
                   CrudeEdition edition = CrudeEdition::Of1980);

/// Whether the reading came from a glass hydrometer, which expands too and is corrected for it.
enum class ReadWith { Hydrometer, OtherMeans };

/// Density at 15 degC of a density observed at another temperature, Table 53A: found by repeated
/// division by the correction factor until it changes by less than 1e-6 kg/m3.
/// @throws ArithmeticError InvalidArgument unless observed > 0; InvalidArgument or DivisionByZero
///         when no density fits
KilogramsPerCubicMetre Density15FromObserved(KilogramsPerCubicMetre observed, Celsius temperature,
                                             ReadWith means,
                                             CrudeEdition edition = CrudeEdition::Of1980);

/// API gravity at 60 degF of one observed at another temperature, Table 5A.
/// @throws ArithmeticError InvalidArgument unless observed > -131.5; InvalidArgument or
///         DivisionByZero when no gravity fits
APIGravity API60FromObserved(APIGravity observed, Fahrenheit temperature, ReadWith means,
                             CrudeEdition edition = CrudeEdition::Of1980);

/// Kilolitres at 15 degC of one barrel at 60 degF: the volume of the barrel times the shrinkage
/// of the oil between the two temperatures, 0.15889 to 0.15893 for crudes.
/// @throws ArithmeticError InvalidArgument unless density15 > 0
double KilolitresPerBarrel(KilogramsPerCubicMetre density15,
                           CrudeEdition edition = CrudeEdition::Of1980);

MetricTons MassInVacuo(CubicMetres volume15, KilogramsPerCubicMetre density15);

/// Weight in air by the ships' rule: density less 1.1 kg/m3.
MetricTons WeightInAir(CubicMetres volume15, KilogramsPerCubicMetre density15);

/// Weight in air of one ton in vacuo, Table 56: buoyancy in air of 1.22 kg/m3 of the oil, and of
/// the weights of 8100 kg/m3 that it is compared with. The two constants are fitted; they
/// reproduce every break point of the printed table.
/// @throws ArithmeticError InvalidArgument unless density15 > 0
double Table56Factor(KilogramsPerCubicMetre density15);

/// The same as printed, in steps of 0.0001 that end on 5 in the fifth decimal.
/// @throws ArithmeticError InvalidArgument unless density15 > 0
double Table56FactorAsPrinted(KilogramsPerCubicMetre density15);

LongTons LongTonsOf(MetricTons weight);

} // namespace NavFunc113
