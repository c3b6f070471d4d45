// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmPositionRecord/PositionRecord.h"

namespace korvel
{

/// Tells the record in a paper that has the fields and the totals already: the rows in use, the
/// legs between the fixes, the workings, the list and the track.
void tellRecord(WorkingPaper& paper, const PositionRecordInput& input,
                const PositionRecordResult& result);

} // namespace korvel
