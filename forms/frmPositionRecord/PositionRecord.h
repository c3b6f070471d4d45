// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPositionRecord/PositionRows.h"
#include "navlib/sailing.h"

#include <optional>

/// The position record: what lies between the recorded fixes.
namespace korvel
{

struct PositionRecordInput {
    PositionRows rows;
    NavFunc113::Earth earth = NavFunc113::Earth::Sphere;
    double shipsTD = 0;                      ///< hours, for rows that name none
    std::optional<NavFunc113::DateTime> now; ///< UTC; nothing: no fix lies in the future
    std::string
        courseSteered;        ///< since the last fix but one, degrees true; empty: no set and drift
    std::string speedSteered; ///< knots
    std::optional<std::size_t> typingTimeIn; ///< row whose time is still being typed: no word on it
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
};

/// Everything the record shows.
///
/// A row counts when its time of fix (a full date and time, see NormaliseSMT), latitude and
/// longitude are there and make sense; rows with gaps are stepped over. An empty TD is that of the
/// row above, in the first rows the ship's. Times between rows come
/// from UTC alone, so clock changes and the date line need no care. Courses and distances are
/// rhumb lines.
PositionRecordResult CalculatePositionRecord(const PositionRecordInput& input);

/// The record to be copied or printed: a heading, one line a row in use, the totals; the columns
/// parted by tabs, and which mile it is in. What could not be read stands there as typed.
std::string positionRecordText(const PositionRecordInput& input,
                               const PositionRecordResult& result);

} // namespace korvel
