// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"
#include "navlib/units.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvel
{

/// What is known about a tide station beside the constants in its file.
struct StationNotes {
    std::string place;
    std::string grade;       ///< A to D; "none" for a place without an honest source
    std::string uncertainty; ///< in words; empty for grade A
    std::string source;      ///< in words; for grade "none" the reason why there is none
    std::string licence;
    std::optional<NavFunc113::Degrees> latitude;  ///< north positive
    std::optional<NavFunc113::Degrees> longitude; ///< east positive
    bool isLevelEstimated = false;                ///< the mean level above chart datum
    bool areMonthsEstimated = false; ///< the monthly corrections: from other places' records
};

/// How far the four-constituent method was from the sum of all constituents at a station, over the
/// years 2003 to 2005.
struct MethodError {
    double rms{};         ///< metres, of the half-hourly heights
    double highRms{};     ///< metres, of the day's highest
    double lowRms{};      ///< metres, of its lowest
    double highMinutes{}; ///< mean error of their times
    double lowMinutes{};
};

/// stations.txt and accuracy.txt, read once. Either may be missing: a file made from the ship's own
/// tables needs no entry.
class StationList
{
public:
    StationList() = default;
    explicit StationList(FileStore& files);

    const std::vector<StationNotes>& all() const { return m_notes; }
    const StationNotes* notesOf(std::string_view place) const;
    std::optional<MethodError> errorOf(std::string_view place) const;

private:
    struct Measured {
        std::string place;
        MethodError error;
    };
    std::vector<StationNotes> m_notes;
    std::vector<Measured> m_errors;
};

/// The columns of a line of a list, separated by tabs; as many as asked for, missing ones empty.
std::vector<std::string> columnsOf(std::string_view line, std::size_t count);

/// The lines of a list without comments (#) and line ends.
std::vector<std::string_view> linesOf(std::string_view list);

} // namespace korvel
