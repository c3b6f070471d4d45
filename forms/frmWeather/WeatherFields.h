// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "app/reading/Result.h"
#include "forms/frmWeather/CalculateWeather.h"

#include <array>

namespace korvel
{

/// The boxes of the weather window, which keeps no record.
inline constexpr std::array<Field, 3> WeatherFields = {{
    {"txtWave", "Wav&e height", "Wave height", "metres", FieldKind::Figure, "m"},
    {"txtSWELL", "&Swell height", "Swell height", "metres", FieldKind::Figure, "m"},
    {"txtVISIBILITY", "Visi&bility", "Visibility", "kilometres", FieldKind::Figure, "km", -HUGE_VAL,
     HUGE_VAL, "", true},
}};

/// The term of each box in its order, then what else the window shows.
inline constexpr std::array<Result<WeatherShown>, 5> WeatherResults = {{
    {"lblWave", "", "", Weight::Answer, &WeatherShown::wave, "Wave height"},
    {"lblSWELL", "", "", Weight::Answer, &WeatherShown::swell, "Swell height"},
    {"lblVISIBILITY", "", "", Weight::Answer, &WeatherShown::visibility, "Visibility"},
    {"lblVISIBILITYnm", "", "", Weight::Figure, &WeatherShown::miles, "Visibility in miles"},
    {"lblWr", "", "", Weight::Figure, &WeatherShown::letter, "Weather"},
}};

} // namespace korvel
