// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmSunMoon/CalculateRiseSet.h"

namespace korvel
{

/// A row of the window: what was typed into it and what came of it.
struct RiseSetTableRow {
    std::size_t number{}; ///< counted from 1
    RiseSetInput typed;
    const RiseSetResult* result = nullptr;
    std::string line = {}; ///< of the row in focus, as the window shows it
};

/// How the events and azimuths of one row came about, and the age of the Moon.
std::vector<Working> riseSetWorkings(const RiseSetTableRow& row);

/// All rows in which something was typed, with refined figures behind those of the window.
PaperTable riseSetTable(const std::vector<RiseSetTableRow>& rows);

/// The rows that were computed, for other programs.
ExportTable riseSetList(const std::vector<RiseSetTableRow>& rows);

/// How good the times and azimuths are.
std::vector<std::string> riseSetLimits();

} // namespace korvel
