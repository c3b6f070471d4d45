// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"

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

} // namespace korvel
