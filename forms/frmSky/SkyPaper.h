// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmSky/CalculateStars.h"
#include "forms/frmSky/CalculateUnknown.h"

namespace korvel
{

/// Tells the twilight sheet: the times of the day, and what they are worth.
/// @param paper has its inputs and results already
void tellDay(WorkingPaper& paper, const SkyDay& day);

/// Tells the sheet of the stars: the round, then all other bodies.
void tellStars(WorkingPaper& paper, const SkyDay& day, const SkyStars& stars);

/// Tells an unknown body.
void tellUnknown(WorkingPaper& paper, const UnknownResult& found);

} // namespace korvel
