// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmTanks/TankSheet.h"

#include <string_view>

namespace korvel
{

/// The tanks of a list as a table for spreadsheets: both surveys side by side, the unit of a figure
/// in its heading. Read back it gives the same tanks.
ExportTable tankTable(const TankList& list, const TankChoices& choices);

/// Tanks of a file, or why they were not taken.
struct ReadTanks {
    std::vector<TankRow> rows; ///< the whole list, with what the file has
    std::string fault;         ///< line and column where there are; empty when the tanks were taken
};

/// Reads a list of tanks: comma-separated values, with semicolons or tabs instead of the commas
/// too, and then with decimal commas; fields between double quotes.
///
/// The heading names the columns: tank; sounding (or ullage), volume, water, temperature, grade,
/// each with "first" or "last" (or "before", "after") in front for its survey, without for the
/// survey in hand; a unit behind them ("volume_m3") must be the sheet's. What a file does not have
/// stays as it is in the tank of that name; with a column for only one survey the other one stays.
/// @param text UTF-8
/// @param survey in hand
ReadTanks readTanks(std::string_view text, const TankList& list, const TankChoices& choices,
                    TankSurvey survey);

} // namespace korvel
