// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"

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

} // namespace korvel
