// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <array>
#include <functional>
#include <vector>

/// High and low waters of a day's curve, and the times at which it stands at a height.
namespace NavFunc113
{

/// Metres or knots at t hours after 00:00; must be good from half an hour before 00:00 to half an
/// hour after 24:00.
using TideCurve = std::function<double(Hours)>;

/// A curve at every ten minutes from ten minutes before 00:00 to ten minutes after 24:00.
using TenMinutely = std::array<double, 147>;
inline constexpr Hours tenMinutes(1.0 / 6);

/// A high or low water; for a stream the greatest rate of a flood or an ebb.
struct TideTurn {
    Hours time;     ///< 0 <= time < 24
    double value{}; ///< metres or knots
    bool isHigh = false;
};

/// The turns of the curve itself from 00:00 to before 24:00, in order of time, to the second.
///
/// Two turns within ten minutes of each other are not seen: no tide of twelve hours with its
/// shallow-water parts has them.
/// @param samples of the same curve, to within rounding
std::vector<TideTurn> TurnsOf(const TideCurve& curve, const TenMinutely& samples);
/// The same for a curve that has no quicker way to its samples.
std::vector<TideTurn> TurnsOf(const TideCurve& curve);

/// When the curve passes a value between 00:00 and 24:00, in order of time, to the second. A curve
/// that touches it between two samples ten minutes apart without passing is not seen.
struct TidePassage {
    Hours time;            ///< 0 <= time <= 24
    bool isRising = false; ///< above the value afterwards
};
std::vector<TidePassage> PassagesOf(const TideCurve& curve, double value);

} // namespace NavFunc113
