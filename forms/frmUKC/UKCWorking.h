// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmUKC/CalculateUKC.h"

namespace korvel
{

/// Every line of the column with its formula and figures.
Working columnWorking(const UKCInput& input, const UKCResult& result);

/// The hours of seven days when the minimum is kept; nothing without a station.
std::optional<PaperTable> hoursTable(const UKCResult& result, const TideWeek& week);

/// What holds of the figures, for beside them.
std::vector<std::string> keelLimits(const TideWeek& week);

} // namespace korvel
