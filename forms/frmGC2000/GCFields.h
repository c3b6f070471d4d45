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
    {"txtGC(0)", "Departure latitude", "Departure latitude, degrees.minutes, north positive",
     FieldKind::Latitude, "degrees", -highestLatitude, highestLatitude},
    {"txtGC(1)", "Departure longitude", "Departure longitude, degrees.minutes, east positive",
     FieldKind::Longitude, "degrees", -180, 180},
    {"txtGC(2)", "Arrival latitude", "Arrival latitude, degrees.minutes, north positive",
     FieldKind::Latitude, "degrees", -highestLatitude, highestLatitude},
    {"txtGC(3)", "Arrival longitude", "Arrival longitude, degrees.minutes, east positive",
     FieldKind::Longitude, "degrees", -180, 180},
}};

} // namespace korvel
