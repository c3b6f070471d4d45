// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "app/reading/Result.h"
#include "forms/frmCDDR/CalculateCD.h"
#include "forms/frmCDDR/CalculateDR.h"

#include <array>

namespace korvel
{

/// Half the earth's circumference: no dead reckoning goes further.
inline constexpr double longestRun = 10800;

/// The boxes of course and distance, then those of dead reckoning; in this order in the record.
inline constexpr std::array<Field, 8> CDDRFields = {{
    {"txtCDDR(0)", "Departure latitude", "Departure latitude", "degrees.minutes",
     FieldKind::Latitude, "degrees", -90, 90, "north positive"},
    {"txtCDDR(1)", "Departure longitude", "Departure longitude", "degrees.minutes",
     FieldKind::Longitude, "degrees", -180, 180, "east positive"},
    {"txtCDDR(2)", "Arrival latitude", "Arrival latitude", "degrees.minutes", FieldKind::Latitude,
     "degrees", -90, 90, "north positive"},
    {"txtCDDR(3)", "Arrival longitude", "Arrival longitude", "degrees.minutes",
     FieldKind::Longitude, "degrees", -180, 180, "east positive"},
    {"txtCDDR(4)", "Start latitude", "Dead reckoning start latitude", "degrees.minutes",
     FieldKind::Latitude, "degrees", -90, 90, "north positive"},
    {"txtCDDR(5)", "Start longitude", "Dead reckoning start longitude", "degrees.minutes",
     FieldKind::Longitude, "degrees", -180, 180, "east positive"},
    {"txtCDDR(6)", "Course", "Dead reckoning course", "degrees true", FieldKind::Figure,
     "degrees true", 0, 360},
    {"txtCDDR(7)", "Distance", "Dead reckoning distance", "nautical miles", FieldKind::Figure,
     "nautical miles", 0, longestRun},
}};

/// What course and distance, and dead reckoning, show.
inline constexpr std::array<Result<CDResult>, 2> CDResults = {{
    {"lblCDDR(0)", "Course", "degrees true", Weight::Answer, &CDResult::course},
    {"lblCDDR(1)", "Distance", "nautical miles", Weight::Answer, &CDResult::distance},
}};
inline constexpr std::array<Result<DRResult>, 2> DRResults = {{
    {"lblCDDR(2)", "Latitude reached", "", Weight::Answer, &DRResult::latitude},
    {"lblCDDR(3)", "Longitude reached", "", Weight::Answer, &DRResult::longitude},
}};

} // namespace korvel
