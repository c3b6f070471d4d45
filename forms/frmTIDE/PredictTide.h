// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/tide.h"

#include <array>
#include <filesystem>
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
    std::array<std::string, 2> lblCuDirection; ///< blank for a tide station
};

/// Predicts the day of a tide station.
///
/// @param programFolder where the data files lie
/// @param lblPlace the station's name
/// @param lblDate  the date
/// @param shown    the prediction that is shown now: the times of highest and lowest stay when the
///                 search finds none
/// @return nothing when no station is chosen or lblDate holds no date: what is shown stays
/// @throws TideDataFault when a data file is missing or malformed: what is shown stays
std::optional<TidePrediction> PredictTide(const std::filesystem::path& programFolder,
                                          const std::string& lblPlace, std::string_view lblDate,
                                          const TidePrediction& shown);

/// The same for a tidal-stream station.
/// @throws ArithmeticError when the station's flood direction is no direction
std::optional<TidePrediction> PredictCurrent(const std::filesystem::path& programFolder,
                                             const std::string& lblPlace, std::string_view lblDate,
                                             const TidePrediction& shown);

} // namespace korvel
