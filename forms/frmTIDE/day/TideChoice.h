// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/Value.h"
#include "forms/frmTIDE/data/TideDates.h"
#include "forms/frmTIDE/day/PredictTide.h"

#include <string>

namespace korvel
{

/// What the officer has chosen, and what the settings file keeps of it.
struct TideChoice {
    bool TideMode = false; ///< a tide station; false: a stream station
    std::string lblPlace{noPlace};
    std::string lblDate{noDate};
};

/// The settings record: TideMode (a tick), lblPlace and lblDate (texts).
Record recordOf(const TideChoice& choice);

struct SavedChoice {
    TideChoice choice;
    std::string notice; ///< what could not be taken over, in words; empty when all was
};

/// The choice that a record holds. A place that the menus do not have opens empty; a date out of
/// range is left out.
SavedChoice choiceOf(const Record& record, const TideDates& dates);

} // namespace korvel
