// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/data/TideData.h"
#include "navlib/sea/tide.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace korvel
{

enum class TideKind { Tide, Stream };

/// What lblPlace and lblDate show before anything is chosen.
inline constexpr std::string_view noPlace = "Place";
inline constexpr std::string_view noDate = "Date";

/// A prediction as the window keeps it, for drawing and for the next search.
struct TidePrediction {
    TideKind kind = TideKind::Tide;
    std::string title;
    NavFunc113::TideValues values{};    ///< metres or knots, every half hour from 00:00
    NavFunc113::TideExtremes extremes;  ///< times in decimal hours
    NavFunc113::Degrees floodDirection; ///< true; streams only
    std::string lblTD;
    std::string lblTideInfo;
    std::string remark; ///< what of lblTideInfo is not of this day, in words; else empty
    std::array<std::string, 2> lblCuDirection; ///< blank for a tide station
    std::int64_t serial{};                     ///< the day
    TideStation station;
    std::optional<NavFunc113::TideDay> day;
    DaysFactors factors;
    double level{}; ///< mean level with the month's correction, or mean stream

    /// The curve itself, at any instant. A prediction must have been made.
    double at(NavFunc113::Hours t) const { return day->at(t) + level; }
};

/// The day of a station whose files have been read.
/// @param shown the prediction that is shown now: the times of highest and lowest stay when the
///              search finds none
TidePrediction predictTideDay(const TideStation& station, const DaysFactors& factors,
                              std::int64_t serial, const TidePrediction& shown);
/// @throws ArithmeticError when the station's flood direction is no direction
TidePrediction predictStreamDay(const TideStation& station, const DaysFactors& factors,
                                std::int64_t serial, const TidePrediction& shown);

} // namespace korvel
