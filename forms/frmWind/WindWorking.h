// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmWind/CalculateWind.h"

namespace korvel
{

/// How the true wind came about.
Working trueWindWorking(const WindResult& result);

} // namespace korvel
