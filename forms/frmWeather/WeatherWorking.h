// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"

#include <string_view>

namespace korvel
{

/// How the terms of the log follow from the heights and the visibility as typed.
/// @param shown terms of the labels; a blank one was not asked for
struct WeatherShown {
    std::string wave, swell, visibility, miles, letter;
};
Working weatherWorking(std::string_view txtWave, std::string_view txtSWELL,
                       std::string_view txtVISIBILITY, const WeatherShown& shown);

} // namespace korvel
