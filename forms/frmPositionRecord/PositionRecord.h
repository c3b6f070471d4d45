// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPositionRecord/PositionRows.h"
#include "navlib/sailing/sailing.h"

#include <optional>
#include <vector>

/// The position record: what lies between the recorded fixes.
namespace korvel
{

struct PositionRecordInput {
    PositionRows rows;
    NavFunc113::Earth earth = NavFunc113::Earth::Sphere;
    double shipsTD{};                        ///< hours, for rows that name none
    std::optional<NavFunc113::DateTime> now; ///< UTC; nothing: no fix lies in the future
    std::string
        courseSteered;        ///< since the last fix but one, degrees true; empty: no set and drift
    std::string speedSteered; ///< knots
    std::optional<std::size_t> typingTimeIn; ///< row whose time is still being typed: no word on it
};

/// A row as it was understood; nothing where a box makes no sense or is empty.
struct ReadRow {
    std::optional<NavFunc113::DateTime> smt;
    std::optional<double> td; ///< hours, also when it is that of the row above or the ship's
    std::optional<NavFunc113::DateTime> utc;
    std::optional<NavFunc113::DegMin> latitude;
    std::optional<NavFunc113::DegMin> longitude;

    bool operator==(const ReadRow&) const = default;
};

/// A row that counts.
struct RecordedFix {
    std::size_t row; ///< its index
    NavFunc113::DateTime smt;
    NavFunc113::DateTime utc;
    NavFunc113::DegMin latitude;
    NavFunc113::DegMin longitude;
};

/// From one fix to the next.
struct RecordLeg {
    NavFunc113::RhumbLeg sailed;
    NavFunc113::Hours hours;
};

/// The sum of the legs between two fixes, told by their places among the fixes.
struct RecordRun {
    std::size_t from;
    std::size_t to;
    NavFunc113::Miles distance;
    NavFunc113::Hours hours;
};

/// What the current was calculated from.
struct RecordCurrent {
    NavFunc113::Degrees courseSteered;
    NavFunc113::Knots speedSteered;
    NavFunc113::Miles run; ///< by speed steered
    NavFunc113::LatitudeRun latitude;
    NavFunc113::LongitudeRun longitude;
    RecordLeg leg; ///< from the position reckoned to the last fix
};

/// Labels of a row; an empty text blanks the label.
struct PositionRowResult {
    std::string utc;       ///< "2024/05/01 03:00", as soon as time and TD are there
    std::string assumedTD; ///< "9.0" where the row names none: that of the row above, or the ship's

    // To the next complete row; blank in the last complete one and in rows with gaps.
    std::string course;   ///< "<073.6>"
    std::string distance; ///< "318.'6", nautical miles
    std::string hours;    ///< "23.0", by UTC; negative when the next row is earlier
    std::string speed;    ///< "13.85", knots; blank unless the hours are positive

    std::string dayRun;      ///< in a row at 12:00 SMT: run since the noon row before it
    bool outOfOrder = false; ///< earlier by UTC than the complete row before it
    std::string remark;      ///< what makes no sense in the row, in words
    ReadRow read;

    bool operator==(const PositionRowResult&) const = default;
};

struct PositionRecordResult {
    std::array<PositionRowResult, positionRowCount> rows;
    std::string totalDistance; ///< "980.'5"; the totals are blank while a row is out of order
    std::string totalHours;    ///< "70.0"
    std::string averageSpeed;  ///< "14.01"
    std::optional<double> totalMiles;   ///< the same in full, for the memory
    std::optional<double> averageKnots; ///< the same in full
    std::string dayRun;                 ///< the latest of the rows' runs, "332.'3 in 23.0 h"
    std::string set;                    ///< "259", degrees true, towards which the current sets
    std::string drift;                  ///< "26.'4 = 1.15 kn"
    std::string notice;                 ///< remarks of the first rows and what else makes no sense

    // The same in full.
    std::vector<RecordedFix> fixes;
    std::vector<std::optional<RecordLeg>> legs; ///< legs[i] leads from fixes[i] to fixes[i + 1]
    std::vector<RecordRun> dayRuns;
    std::optional<RecordRun> total;
    std::optional<RecordCurrent> current;
};

/// Everything the record shows.
///
/// A row counts when its time of fix (a full date and time, see NormaliseSMT), latitude and
/// longitude are there and make sense; rows with gaps are stepped over. An empty TD is that of the
/// row above, in the first rows the ship's. Times between rows come
/// from UTC alone, so clock changes and the date line need no care. Courses and distances are
/// rhumb lines.
PositionRecordResult CalculatePositionRecord(const PositionRecordInput& input);

struct RecordMemory;
/// The same, sooner.
/// @param memory of the calculation before; what it found is taken over where it holds
PositionRecordResult CalculatePositionRecord(const PositionRecordInput& input,
                                             RecordMemory& memory);

} // namespace korvel
