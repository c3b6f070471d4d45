// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmCRUDE/CalculateCrude.h"

namespace korvel
{

/// How the figures of the cargo came about.
Working cargoWorking(const CrudeInput& input, const CrudeResult& result);

/// All figures that there are, with names and units.
std::vector<PaperFigure> cargoFigures(const CrudeResult& result);

} // namespace korvel
