// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/PositionText.h"
#include "forms/frmPositionRecord/PositionRecord.h"

namespace korvel
{

/// The record to be copied or printed: a heading, one line a row in use, the totals; the columns
/// parted by tabs, and which mile it is in. What could not be read stands there as typed.
std::string positionRecordText(const PositionRecordInput& input,
                               const PositionRecordResult& result);

/// A box of a position in full, "35°30.5'N"; as typed when it holds no number.
std::string positionOfBox(const std::string& box, Axis axis);

/// The time difference of a row with its sign, "+9.0": where its box is empty, the one assumed.
std::string timeDifferenceOf(const PositionRow& row, const PositionRowResult& shown);

} // namespace korvel
