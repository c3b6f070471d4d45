// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "app/reading/Result.h"
#include "forms/frmWind/CalculateWind.h"

#include <array>

namespace korvel
{

/// The boxes of the wind window; in this order in the record.
inline constexpr std::array<Field, 4> WindFields = {{
    {"txtWind(0)", "Ship's course", "Ship's course", "degrees true", FieldKind::Figure,
     "degrees true", 0, 360},
    {"txtWind(1)", "Ship's speed", "Ship's speed", "knots", FieldKind::Figure, "knots", 0},
    {"txtWind(2)", "Wind from the bow", "Apparent wind from the bow", "degrees", FieldKind::Figure,
     "degrees, port negative", -180, 180, "port negative"},
    {"txtWind(3)", "Apparent speed", "Apparent wind speed", "knots", FieldKind::Figure, "knots", 0},
}};

/// What the wind window shows.
inline constexpr std::array<Result<WindResult>, 2> WindResults = {{
    {"lblWind(0)", "From", "", Weight::Answer, textAt<&WindResult::lblWind, 0>, "True wind from"},
    {"lblWind(1)", "Force", "", Weight::Answer, textAt<&WindResult::lblWind, 1>,
     "Force of the true wind"},
}};

} // namespace korvel
