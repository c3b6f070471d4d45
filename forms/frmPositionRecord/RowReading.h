// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/NumberField.h"
#include "forms/frmPositionRecord/PositionRecord.h"

namespace korvel
{

/// Adds a sentence to a remark.
void say(std::string& text, const std::string& sentence);

/// The number in a box. Empty and half-typed boxes give nothing and no word.
std::optional<double> numberIn(const std::string& box, const NumberField& field,
                               std::string& remark);

/// Reads a row of the record; writes its UTC, remarks and what was understood into its result.
/// @param tdAbove time difference of the rows above, hours; replaced by the row's own
/// @return the fix when the row is complete
std::optional<RecordedFix> readRow(const PositionRecordInput& input, std::size_t index,
                                   double& tdAbove, PositionRowResult& result);

} // namespace korvel
