// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmETA/CalculateETA.h"
#include "forms/frmETA/CalculateReqSpd.h"

namespace korvel
{

/// How the arrivals came about.
Working arrivalsWorking(const ETAResult& result);
/// The arrivals, their year included.
PaperTable arrivalsTable(const ETAResult& result);

/// How the required speed came about.
Working requiredSpeedWorking(const ReqSpdResult& result);

} // namespace korvel
