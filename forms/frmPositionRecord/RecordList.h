// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmPositionRecord/PositionRecord.h"

#include <string_view>

namespace korvel
{

/// The rows in use for other programs, and to be read back: what was understood of the boxes, then
/// what was calculated. A row without TD has the one that it was reckoned with.
ExportTable recordList(const PositionRecordInput& input, const PositionRecordResult& result);

/// The fixes as a track.
ExportLine trackOf(const PositionRecordResult& result);

/// A list that was read back.
struct ReadList {
    PositionRows rows; ///< those that the list does not name are empty
    std::string fault; ///< line and field, and what is wrong; empty when all is well
};

/// Reads what recordList() gave, as comma-separated values. Nothing is guessed: another heading, a
/// missing or further field, a row named twice, a value out of range or in another form, and a UTC
/// that is not SMT less TD are faults. Courses and the like must be numbers and are calculated
/// anew.
/// @param text a byte-order mark, quoted fields and any line ends are taken
ReadList readRecordList(std::string_view text);

} // namespace korvel
