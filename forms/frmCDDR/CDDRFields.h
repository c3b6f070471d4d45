// SPDX-License-Identifier: MIT
#pragma once

#include "app/Field.h"

#include <array>

namespace korvel
{

/// The boxes of course and distance, then those of dead reckoning; in this order in the record.
inline constexpr std::array<Field, 8> CDDRFields = {{
    {"txtCDDR(0)", "Departure latitude", "Departure latitude, degrees.minutes, north positive",
     FieldKind::Latitude},
    {"txtCDDR(1)", "Departure longitude", "Departure longitude, degrees.minutes, east positive",
     FieldKind::Longitude},
    {"txtCDDR(2)", "Arrival latitude", "Arrival latitude, degrees.minutes, north positive",
     FieldKind::Latitude},
    {"txtCDDR(3)", "Arrival longitude", "Arrival longitude, degrees.minutes, east positive",
     FieldKind::Longitude},
    {"txtCDDR(4)", "Start latitude",
     "Dead reckoning start latitude, degrees.minutes, north positive", FieldKind::Latitude},
    {"txtCDDR(5)", "Start longitude",
     "Dead reckoning start longitude, degrees.minutes, east positive", FieldKind::Longitude},
    {"txtCDDR(6)", "Course", "Dead reckoning course, degrees true", FieldKind::Number,
     "degrees true"},
    {"txtCDDR(7)", "Distance", "Dead reckoning distance, nautical miles", FieldKind::Number,
     "nautical miles"},
}};

} // namespace korvel
