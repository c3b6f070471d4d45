// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmTIDE/day/TideWaters.h"

namespace korvel
{

/// A day and what is asked of it.
struct TideAsked {
    TideDayShown day;
    CurveAnswer height; ///< at a time
    CurveAnswer times;  ///< of a height
};

/// Constituents, factors, shallow-water terms and level of the day.
Working constituentsWorking(const TideDayShown& day);

/// The heights that the window names, each at its instant, and what is shown of them.
Working heightsWorking(const TideAsked& asked);

/// The same waters and heights as the sum of all constituents. Empty without it.
std::vector<Working> allConstituentsWorking(const TideAsked& asked);

} // namespace korvel
