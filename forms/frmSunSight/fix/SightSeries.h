// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/fix/SightFix.h"
#include "forms/frmSunSight/sight/SightInput.h"

#include <vector>

namespace korvel
{

/// Shots of one body that follow each other within a quarter of an hour become one line each.
///
/// What is fitted is one height over the computed altitudes of the moving ship: each shot is held
/// against the altitude computed for its own time and place, so the slope is that of the track, not
/// of the shots. The line stands at the mean of the times with the mean of the intercepts; its
/// sigma is the assumed one of a line, or that of the shots by their residuals where it is larger,
/// divided by the root of their number.
/// @param observations of result.lines, in their order
/// @param result       its lines are made; comes back with one for each series, and the series
void fitSeries(const std::vector<Observation>& observations, const Track& track,
               const NavFunc113::ErrorModel& errors, SightFixResult& result);

/// Names the shots that lie off the others of their series.
void warnOfWildShots(const SightFixResult& result, Remarks& remarks);

/// What a series came to, a sentence each.
std::string seriesText(const SightFixResult& result);

} // namespace korvel
