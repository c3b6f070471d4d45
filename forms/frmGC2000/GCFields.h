// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"

#include <array>

namespace korvel
{

/// The chart ends at 75 degrees; great circles between higher latitudes would leave it.
inline constexpr double highestLatitude = 65;

/// The boxes of the great-circle window; in this order in the record.
inline constexpr std::array<Field, 4> GCFields = {{
    {"txtGC(0)", "Departure latitude", "Departure latitude", "degrees.minutes", FieldKind::Latitude,
     "degrees", -highestLatitude, highestLatitude, "north positive"},
    {"txtGC(1)", "Departure longitude", "Departure longitude", "degrees.minutes",
     FieldKind::Longitude, "degrees", -180, 180, "east positive"},
    {"txtGC(2)", "Arrival latitude", "Arrival latitude", "degrees.minutes", FieldKind::Latitude,
     "degrees", -highestLatitude, highestLatitude, "north positive"},
    {"txtGC(3)", "Arrival longitude", "Arrival longitude", "degrees.minutes", FieldKind::Longitude,
     "degrees", -180, 180, "east positive"},
}};

} // namespace korvel
