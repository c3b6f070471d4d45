// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/PositionText.h"
#include "routes/route/DelimitedLines.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvel
{

/// What a column of a list of waypoints holds. Calculated: known, and calculated anew.
enum class RouteColumn {
    Name,
    Latitude,
    Longitude,
    NorthSouth,
    EastWest,
    Position,
    Leg,
    Speed,
    Stay,
    Zone,
    Eta,
    Etd,
    Remark,
    Calculated,
    Unknown
};

/// How a list is written.
struct RouteLayout {
    std::vector<RouteColumn> columns;
    std::vector<std::string> names; ///< of the columns, for faults
    bool hasHeading = false;
    bool hasDecimalCommas = false;

    bool knowsPositions() const;
};

/// The layout of a list by its first line: the heading, or what the line holds.
RouteLayout layoutOfList(const DelimitedLine& first, char separator);

/// Degrees of a field: a number with or without a letter is decimal degrees, anything longer is
/// what the boxes understand when it is pasted. @return nothing when it is neither
std::optional<NavFunc113::Degrees> degreesOfField(std::string field, Axis axis,
                                                  bool hasDecimalCommas);

/// Whether a sign is one of those letters, which are small.
bool isLetterOf(std::string_view letters, char sign);

} // namespace korvel
