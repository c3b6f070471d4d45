// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmTanks/TankTexts.h"

namespace korvel
{

/// The ullage report of the survey in hand: its tanks and totals, one page for a usual ship, with
/// places for the signatures of both sides. Of bunkers the survey in hand of these.
void tellSurvey(WorkingPaper& paper, const SheetInHand& work, const TanksShown& shown,
                ListKind kind);

/// What was loaded or discharged, ship against bill of lading, with the working of the tank in
/// hand.
void tellMoved(WorkingPaper& paper, const SheetInHand& work, const TanksShown& shown);

/// What was consumed.
void tellBunkers(WorkingPaper& paper, const SheetInHand& work, const TanksShown& shown);

/// The voyages of both factors.
void tellExperience(WorkingPaper& paper, const SheetInHand& work, const TanksShown& shown);

} // namespace korvel
