// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmPositionRecord/PositionRecord.h"

namespace korvel
{

/// How UTC, the legs, the day's runs and the totals came about.
Working legsWorking(const PositionRecordInput& input, const PositionRecordResult& result);
Working runsWorking(const PositionRecordResult& result);

/// How set and drift came about: the position reckoned, and the way from it to the last fix. Empty
/// when there is no current.
std::vector<Working> currentWorkings(const PositionRecordInput& input,
                                     const PositionRecordResult& result);

} // namespace korvel
