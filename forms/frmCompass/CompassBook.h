// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Instant.h"
#include "app/working/WorkingPaper.h"
#include "forms/frmCompass/CalculateCompass.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The compass book: what was observed and found, kept as it was on the day.
namespace korvel
{

/// A line of the book. East is positive.
struct CompassLine {
    Instant UTC{};
    std::optional<NavFunc113::Degrees> latitude; ///< north positive
    std::optional<NavFunc113::Degrees> longitude;
    std::string body;
    CompassMethod method = CompassMethod::Azimuth;
    std::optional<NavFunc113::Degrees> trueBearing;
    std::optional<NavFunc113::Degrees> variation;
    std::string variationSource; ///< "typed", "WMM-2025"
    CompassReadings readings;    ///< by CompassKind
    std::string observer;        ///< by whom
    std::string remark;

    /// Whether it tells something of a compass.
    bool has(CompassKind kind) const { return at(kind).error.has_value(); }
    bool isVariationTyped() const { return variationSource == "typed"; }
    const CompassReading& at(CompassKind kind) const
    {
        return readings[static_cast<std::size_t>(kind)];
    }
    bool operator==(const CompassLine&) const = default;
};

using CompassBook = std::vector<CompassLine>; ///< in the order in which they were recorded

/// As many lines as a book holds: five years of watches.
inline constexpr std::size_t mostCompassLines = 12000;

/// The line that "Record" keeps.
/// @return nothing when no compass has an error
std::optional<CompassLine> lineOf(const CompassInput& input, const CompassResult& result,
                                  std::string observer, std::string remark);

/// Indices of the lines that tell something of a compass, or of all; the latest observation first.
std::vector<std::size_t> compassLines(const CompassBook& book, std::optional<CompassKind> kind);

/// The boxes of an observation as they have the figures of a line; height of eye and speed are no
/// part of it.
std::array<std::string, CompassFields.size()> boxesOf(const CompassLine& line);

/// A line as the list and the paper show it; an empty text where there is nothing.
struct CompassLineTexts {
    std::string UTC; ///< "2008/07/20 04:06"
    std::string position;
    std::string body; ///< "Sun", of an amplitude "Sun, amplitude"
    std::string trueBearing;
    std::string variation;
    struct Compass {
        std::string bearing, head, error, deviation;
    };
    std::array<Compass, compassCount> compasses;
    std::string observer;
    std::string remark;
};
CompassLineTexts compassLineTexts(const CompassLine& line);

/// The row of a line in a list of all compasses: what is wrong with each.
std::vector<std::string> rowOfAll(const CompassLineTexts& line);
/// The row in a list of one compass: what it showed.
std::vector<std::string> rowOfOne(const CompassLineTexts& line, CompassKind kind);

} // namespace korvel
