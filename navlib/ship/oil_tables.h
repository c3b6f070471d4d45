// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/ship/cargo.h"

/// Volume correction of any oil: crude oils, products, lubricating oils, and oils whose coefficient
/// of expansion is known.
///
/// Formulas and constants: ASTM D1250-80 / API MPMS chapter 11.1, tables 6A, 6B, 6D, 54A to 54D;
/// with CrudeEdition::Of2004 API MPMS 11.1-2004. From -15 to 75 degC the two differ by less than
/// 7e-5, for products of 770.5 to 787.5 kg/m3 by up to 3.1e-4. At the reference temperature the
/// factor is exactly 1.
///
/// Products have four groups by their density, parted at 838.5, 787.5 and 770.5 kg/m3 at 15 degC
/// (838.3127, 787.5195 and 770.3520 at 60 degF). There the coefficients of neighbours meet, to 2e-7
/// per degC at the first two and to 1.4e-6 at the third: 15 degrees from the reference a product
/// that crosses it jumps by 2e-5 at most.
namespace NavFunc113
{

enum class OilTable {
    Crude,      ///< 54A, 6A
    Products,   ///< 54B, 6B
    Own,        ///< 54C: the coefficient of expansion is given
    Lubricating ///< 54D, 6D
};

/// An oil as its certificate describes it.
struct Oil {
    OilTable table = OilTable::Products;
    KilogramsPerCubicMetre density15{}; ///< at 15 degC, in vacuo
    double coefficient{}; ///< of an Own oil: per degC at 15 degC, "0.000841"; else not used
};

/// How a factor is rounded before anything is multiplied with it, half away from zero.
enum class FactorRounding {
    FiveDecimals, ///< as the edition of 2004 gives them, and most ships calculate
    FourDecimals, ///< as the printed tables of 1980 show them
    /// The procedure that is the standard of 1980: density to the nearest 0.5 kg/m3 or gravity to
    /// 0.1, temperature to 0.05 degC or 0.1 degF, the coefficient to 1e-7 per degree; the factor
    /// with five decimals below 1 and four from 1 on. With the edition of 2004 five decimals.
    Procedure1980
};

/// Correction to 15 degC of a volume observed at another temperature; not rounded.
/// @throws ArithmeticError InvalidArgument unless density15 > 0, of an Own oil coefficient > 0
VolumeCorrection CorrectionTo15C(const Oil& oil, Celsius temperature,
                                 CrudeEdition edition = CrudeEdition::Of1980);

/// Correction to 60 degF; not rounded. @param table not Own
/// @throws ArithmeticError InvalidArgument unless api > -131.5, or for an Own oil
VolumeCorrection CorrectionTo60F(OilTable table, APIGravity api, Fahrenheit temperature,
                                 CrudeEdition edition = CrudeEdition::Of1980);

/// The same of the density at 60 degF instead of the gravity.
/// @throws ArithmeticError InvalidArgument unless density60 > 0, or for an Own oil
VolumeCorrection CorrectionTo60FOfDensity(OilTable table, KilogramsPerCubicMetre density60,
                                          Fahrenheit temperature,
                                          CrudeEdition edition = CrudeEdition::Of1980);

/// The factors as they are multiplied with. @throws as the corrections
double FactorTo15C(const Oil& oil, Celsius temperature, CrudeEdition edition,
                   FactorRounding rounding);
double FactorTo60F(OilTable table, APIGravity api, Fahrenheit temperature, CrudeEdition edition,
                   FactorRounding rounding);

/// Density at 15 degC of an API gravity at 60 degF, by the expansion of the table; and the way
/// back.
/// @param table not Own in the first
/// @throws ArithmeticError InvalidArgument unless api > -131.5, density15 > 0
KilogramsPerCubicMetre Density15OfGravity(OilTable table, APIGravity api,
                                          CrudeEdition edition = CrudeEdition::Of1980);
APIGravity GravityOfOil(const Oil& oil, CrudeEdition edition = CrudeEdition::Of1980);

/// Cubic metres at 15 degC of one barrel at 60 degF: 0.15884 to 0.15893.
/// @throws ArithmeticError as CorrectionTo15C
CubicMetres CubicMetresPerBarrel(const Oil& oil, CrudeEdition edition = CrudeEdition::Of1980);

/// True where the tables give a value; beyond them the formula is carried on.
///
/// 1980: 54A 610 to 1075, 54B 653 to 1075 kg/m3, from -18 degC up to 149 from 824.7 kg/m3 on, to
/// 121 from 779.3 on, to 93 below; 54D 825 to 1164 kg/m3, -18 to 149 degC; 54C coefficients of
/// 486e-6 to 918e-6 up to 149 degC, to 954e-6 up to 121, to 1674e-6 up to 93. The temperatures of
/// 54 are those of table 6, converted. 2004: 54A and 54B -10 to 100 API, 54D -10 to 45, 54C 414e-6
/// to 1674e-6, all of them -50 to 150 degC.
bool WithinTable(const Oil& oil, Celsius temperature, CrudeEdition edition = CrudeEdition::Of1980);

} // namespace NavFunc113
