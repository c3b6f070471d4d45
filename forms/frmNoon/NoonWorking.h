// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmNoon/CalculateNoon.h"

namespace korvel
{

/// How the report came about: the day, the way to go and the arrivals, the propeller, fuel and
/// weather; each where there is one.
std::vector<Working> noonWorkings(const NoonInput& input, const NoonResult& noon);

} // namespace korvel
