// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/sea/tide.h"
#include "tidedata/astronomy.h"

#include <cstdint>
#include <functional>
#include <string>

/// The daily astronomical factors: one line a day for all stations.
namespace tidedata
{

/// First day of the file and last year that it may reach: the node series are good to 2060.
inline constexpr int firstFactorYear = 2005;
inline constexpr int lastFactorYear = 2060;

/// Angle and factor of M2, S2, K1 and O1 for 00:00 of a day, not rounded.
///
/// Each carrier stands for its whole group of constituents of nearly the same speed (M2 with N2,
/// NU2 and others): modulus and negated argument of the group's sum, formed with ratios and lags
/// that are typical of the world's ports. With bare constituents the prediction would be 24 % out
/// instead of 7 %.
NavFunc113::DailyFactors dailyFactorsAt(Days2000 day);

/// The line of a day: 44 characters and CR LF, "yyyymmdd,aaa,f.ff,aaa,f.ff,aaa,f.ff,aaa,f.ff".
/// @param serial day number, 0 = 1899-12-30
std::string factorsLine(std::int64_t serial);

/// The whole file: from 2002-10-01 to 1 January after the last year, because the last day's
/// prediction needs the day after it too.
/// @param lastYear firstFactorYear to lastFactorYear
/// @param progress called after every year with the percentage that is made, for who waits for it
/// @throws std::out_of_range for another year
std::string factorsFile(int lastYear, const std::function<void(int percent)>& progress = {});

} // namespace tidedata
