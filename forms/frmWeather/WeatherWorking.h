// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "forms/frmWeather/CalculateWeather.h"

#include <string_view>

namespace korvel
{

/// How the terms of the log follow from the heights and the visibility as typed.
/// @param shown a blank term was not asked for
Working weatherWorking(std::string_view txtWave, std::string_view txtSWELL,
                       std::string_view txtVISIBILITY, const WeatherShown& shown);

} // namespace korvel
