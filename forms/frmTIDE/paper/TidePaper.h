// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmTIDE/day/StationLines.h"
#include "forms/frmTIDE/paper/TideWorking.h"

namespace korvel
{

/// Tells a day in its paper: place and date, waters, the half-hourly values, the workings, what is
/// to be said of the station, and the table for other programs.
/// @param paper has its questions as inputs already
void tellDay(WorkingPaper& paper, const std::string& place, const TideAsked& asked,
             const StationLines& lines);

} // namespace korvel
