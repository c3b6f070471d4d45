// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"

#include <array>

namespace korvel
{

/// Half the earth's circumference: no dead reckoning goes further.
inline constexpr double longestRun = 10800;

/// The boxes of course and distance, then those of dead reckoning; in this order in the record.
inline constexpr std::array<Field, 8> CDDRFields = {{
    {"txtCDDR(0)", "Departure latitude", "Departure latitude, degrees.minutes, north positive",
     FieldKind::Latitude, "degrees", -90, 90},
    {"txtCDDR(1)", "Departure longitude", "Departure longitude, degrees.minutes, east positive",
     FieldKind::Longitude, "degrees", -180, 180},
    {"txtCDDR(2)", "Arrival latitude", "Arrival latitude, degrees.minutes, north positive",
     FieldKind::Latitude, "degrees", -90, 90},
    {"txtCDDR(3)", "Arrival longitude", "Arrival longitude, degrees.minutes, east positive",
     FieldKind::Longitude, "degrees", -180, 180},
    {"txtCDDR(4)", "Start latitude",
     "Dead reckoning start latitude, degrees.minutes, north positive", FieldKind::Latitude,
     "degrees", -90, 90},
    {"txtCDDR(5)", "Start longitude",
     "Dead reckoning start longitude, degrees.minutes, east positive", FieldKind::Longitude,
     "degrees", -180, 180},
    {"txtCDDR(6)", "Course", "Dead reckoning course, degrees true", FieldKind::Number,
     "degrees true", 0, 360},
    {"txtCDDR(7)", "Distance", "Dead reckoning distance, nautical miles", FieldKind::Number,
     "nautical miles", 0, longestRun},
}};

} // namespace korvel
