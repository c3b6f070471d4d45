// SPDX-License-Identifier: MIT
#pragma once

#include "tools/tidedata/sources.h"

#include <array>
#include <complex>

/// Station files of the tide window, made from published constants.
namespace tidedata
{

/// A constituent's amplitude and phase lag as one complex number H exp(i kappa).
using ComplexConstant = std::complex<double>;

/// Phase lag referred to the station's zone time, 0 <= x < 360.
Degrees zonePhase(const Station& station, const Constituent& constituent);

/// Quarter-diurnal coefficient: M4, MS4 and S4, fitted in the least-squares sense to the square of
/// the combined M2 and S2. Its modulus and argument are fields 13 and 12 of the station file; 0
/// when the station has none of the three.
ComplexConstant quarterDiurnal(const Station& station);

/// Sixth-diurnal coefficient: M6 and 2MS6, fitted likewise to the cube; fields 15 and 14.
ComplexConstant sixthDiurnal(const Station& station);

/// Corrections of the mean level for January to December: the seasonal terms SA and SSA, averaged
/// over the days of each month in 2003 to 2005 at 12:00. Their sum over the year is near zero.
std::array<double, 12> monthlyCorrections(const Station& station);

/// The file: 27 fields, comma-separated, and CR LF. An estimated station (grades C and D) says so
/// in its title.
std::string stationFile(const Station& station);

/// The list of stations.txt, which carries what has no field in a station file: for each place, in
/// tab-separated columns, place, grade, uncertainty, source, licence, position in degrees, and
/// whether mean level and monthly corrections are estimates. Lines that begin with # are comments;
/// they hold the credits that must travel with the data.
std::string stationsList(const Sources& sources);

/// The list of constituents.txt: for each place with a record its zone time, its mean level and
/// every constituent, for the sum of them all.
std::string constituentsList(const Sources& sources);

} // namespace tidedata
