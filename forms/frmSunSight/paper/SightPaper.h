// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmSunSight/fix/SightFix.h"
#include "forms/frmSunSight/sight/CalculateLOP.h"
#include "forms/frmSunSight/sight/MeridianPassage.h"

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

/// Leaves out of a remark what another says too, there with the sight that it is of.
void leaveOutTwice(std::vector<std::string>& remarks);

/// Adds results, list of sights, workings, limits and export to a paper.
void addSights(const SightPaperParts& parts, WorkingPaper& paper);

} // namespace korvel
