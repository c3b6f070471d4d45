// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/angles.h"
#include "navlib/units.h"

#include <span>

namespace NavFunc113
{

/// Altitude of a body as it would be seen from a position.
///
/// @param GHA, declination  of the body; north positive
/// @param latitude, longitude  north and east positive
/// @throws ArithmeticError DivisionByZero with the body in the zenith or nadir
DegMin ComputedAltitude(DegMin GHA, DegMin declination, DegMin latitude, DegMin longitude);

/// True azimuth of the same, 0 <= azimuth < 360, in decimal degrees.
/// @throws ArithmeticError as ComputedAltitude; DivisionByZero for a body due east or west exactly,
///         InvalidArgument on the meridian when rounding carries the cosine beyond 1
Degrees ComputedAzimuth(DegMin GHA, DegMin declination, DegMin latitude, DegMin longitude);

/// The terms of a Sun altitude correction in minutes of arc.
struct AltitudeCorrectionTerms {
    double dip{};                 ///< 0 or less
    double refraction{};          ///< as tabulated, to be subtracted
    double semiDiameter{};        ///< in July, the smallest of the year
    double parallax{};            ///< in altitude
    double temperature{};         ///< departure of the refraction from that of mean air
    double pressure{};            ///< the same for the pressure
    double semiDiameterOfMonth{}; ///< what the month adds to that of July
    double airSea{};              ///< departure of the dip with the air warmer than the sea
};

/// Corrections of an altitude of the Sun's lower limb.
///
/// Refraction is tabulated from 10 to 85 degrees, and extrapolated beyond. Tables are entered with
/// the packed altitude as it stands (35.30 is looked up as 35.30 degrees). Temperature and
/// pressure count up to an altitude of 30.
/// @param observedAltitude   above the sea horizon, index error taken off
/// @param month              1 to 12, fraction cut off
/// @param heightOfEye        0 or more
/// @param airTemperature     degrees Celsius
/// @param seaTemperature     degrees Celsius
/// @param pressure           hectopascals; single precision, so that 984.99999999 is 985
/// @throws ArithmeticError InvalidArgument for a height below 0, SubscriptOutOfRange for a month
///         that is none
AltitudeCorrectionTerms SunAltitudeTerms(DegMin observedAltitude, float month, Metres heightOfEye,
                                         double airTemperature, double seaTemperature,
                                         float pressure);

/// An entry of a correction table: altitude in degrees, correction in minutes of arc. Between the
/// entries, and beyond them, Lagrange's formula holds.
using CorrectionTable = std::span<const TablePair>;
CorrectionTable RefractionTable();
/// Tables of the terms that depend on the air; empty where there is nothing to look up.
CorrectionTable TemperatureTable(DegMin altitude, double temperature);
CorrectionTable PressureTable(DegMin altitude, float pressure);

/// Refraction in minutes of arc in mean air (10 degrees, 1010 hPa), good to 0.1' from the horizon
/// to the zenith, where it is 0: for altitudes that the table of the correction does not cover.
/// @param apparentAltitude  above the horizon of the eye, dip taken off; 0 or more
/// Source: Bennett, The Calculation of Astronomical Refraction in Marine Navigation, 1982.
double MeanRefraction(Degrees apparentAltitude);

/// Corrected altitude: the observed one with the sum of all terms.
DegMin SunAltitudeCorrection(DegMin observedAltitude, float month, Metres heightOfEye,
                             double airTemperature, double seaTemperature, float pressure);

} // namespace NavFunc113
