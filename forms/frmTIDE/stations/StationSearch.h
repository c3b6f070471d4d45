// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/stations/StationList.h"
#include "navlib/units.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Finding a station by its name or by where it lies.
namespace korvel
{

/// A station of the menus.
struct FoundStation {
    bool TideMode = true; ///< a tide station; false: a stream station
    std::string place;
    std::string area; ///< without the mnemonic's &
};

/// Every station of the menus, tide stations first, in menu order.
std::vector<FoundStation> allStations();

/// Stations whose name holds the typed letters, those that begin with them first, then those with
/// a word that does. Capitals, blanks and apostrophes do not matter, and names as they are spelt
/// today are known beside those of the menus.
/// @return nothing for less than three letters, unless they are a whole name
std::vector<FoundStation> findStations(std::string_view typed);

/// What the officer is told of typed letters.
struct SearchAnswer {
    std::optional<FoundStation> first; ///< the best one; nothing when there is none
    std::string notice;                ///< what else was found, or that nothing was
};
SearchAnswer answerSearch(std::string_view typed);

/// A station and how far it is.
struct NearStation {
    std::string place;
    NavFunc113::Miles distance; ///< along the great circle
};

/// The tide stations nearest to a position, nearest first.
std::vector<NearStation> nearestStations(const StationList& list, NavFunc113::DegMin latitude,
                                         NavFunc113::DegMin longitude, std::size_t count);

} // namespace korvel
