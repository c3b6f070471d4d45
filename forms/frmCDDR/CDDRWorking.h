// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/SailingWorking.h"
#include "forms/frmCDDR/CalculateCD.h"
#include "forms/frmCDDR/CalculateDR.h"

namespace korvel
{

/// How course and distance came about.
Working courseAndDistanceWorking(const CDResult& result, NavFunc113::Earth earth);

/// How the position reached came about.
Working deadReckoningWorking(const DRResult& result, NavFunc113::Earth earth);

} // namespace korvel
