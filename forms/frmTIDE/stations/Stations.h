// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

namespace korvel
{

/// An area of the station menus with its places, in menu order.
struct StationArea {
    std::string_view caption;   ///< with the mnemonic's &
    std::string_view itemArray; ///< name of the menu array; empty for an area without stations
    std::span<const std::string_view> places; ///< captions, which are the file names too
};

/// The areas under "Place for &Tide.." (mnuArea).
std::span<const StationArea> tideAreas();

/// The areas under "Place for Tidal &Current.." (mnuCuArea).
std::span<const StationArea> streamAreas();

/// Whether a place stands in the menus; a settings file may name one that no longer does.
bool isTideStation(std::string_view place);
bool isStreamStation(std::string_view place);

} // namespace korvel
