// SPDX-License-Identifier: MIT
#pragma once

/// Factors that are exact by agreement, each with the agreement. What is built of them is worked
/// out where it is used.
namespace NavFunc113::exact
{

/// International Extraordinary Hydrographic Conference, Monaco 1929; SI brochure, 9th edition.
inline constexpr double metresPerMile = 1852;
/// International yard and pound agreement, 1959: 1 yard = 0.9144 m, 1 pound = 0.45359237 kg.
inline constexpr double metresPerYard = 0.9144;
inline constexpr double metresPerFoot = 0.3048;
inline constexpr double metresPerInch = 0.0254;
inline constexpr double kilogramsPerPound = 0.45359237;
/// 2240, 112 and 28 pounds; the quarter of a hundredweight has two stone.
inline constexpr double kilogramsPerLongTon = 1016.0469088;
inline constexpr double kilogramsPerUKHundredweight = 50.80234544;
inline constexpr double kilogramsPerQuarter = 12.70058636;
/// 231 cubic inches; 42 of these; Weights and Measures Act 1985.
inline constexpr double litresPerUSGallon = 3.785411784;
inline constexpr double litresPerBarrel = 158.987294928;
inline constexpr double litresPerUKGallon = 4.54609;
inline constexpr double litresPerCubicFoot = 28.316846592;
/// 3rd General Conference on Weights and Measures, 1901.
inline constexpr double standardGravity = 9.80665; // m/s2
/// 10th General Conference, 1954: the ice point and the atmosphere.
inline constexpr double kelvinOfIcePoint = 273.15;
inline constexpr double pascalsPerAtmosphere = 101325;
/// The ice point is 32 degF and 491.67 degR.
inline constexpr double rankineOfZeroFahrenheit = 459.67;
/// 5th International Conference on the Properties of Steam, London 1956.
inline constexpr double joulesPerCalorie = 4.1868;
/// The same heat of a pound and a degree Fahrenheit: 4.1868 x 453.59237 / 1.8.
inline constexpr double joulesPerBTU = 1055.05585262;
/// 75 m kgf/s, and 550 ft lbf/s.
inline constexpr double wattsPerMetricHorsepower = 735.49875;
inline constexpr double wattsPerHorsepower = 745.69987158227022;

static_assert(75 * standardGravity == wattsPerMetricHorsepower);

} // namespace NavFunc113::exact
