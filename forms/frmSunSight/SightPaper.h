// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmSunSight/CalculateLOP.h"
#include "forms/frmSunSight/MeridianPassage.h"
#include "forms/frmSunSight/SightFix.h"

namespace korvel
{

/// What the sun sight window calculated.
struct SightPaperParts {
    SightTexts sight; ///< being entered
    const LOPResult& line;
    const MeridianResult& noon;
    const SightList& list;
    const SightFixResult& fix;
};

/// Adds results, list of sights, workings, limits and export to a paper.
void addSights(const SightPaperParts& parts, WorkingPaper& paper);

} // namespace korvel
