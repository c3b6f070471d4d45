// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"

#include <array>
#include <cstddef>

namespace korvel
{

namespace ETAField
{
enum : std::size_t { departureTD = 4, arrivalTD, distance, speed };
}

/// The boxes of the ETA window; in this order in the record.
inline constexpr std::array<Field, 8> ETAFields = {{
    {"txtTime(0)", "Departure", "Departure date", "year/month/day", FieldKind::Moment},
    {"txtTime(1)", "", "Departure time", "hours:minutes, local", FieldKind::Moment},
    {"txtTime(2)", "Arrival wanted", "Arrival date wanted", "year/month/day", FieldKind::Moment},
    {"txtTime(3)", "", "Arrival time wanted", "hours:minutes, local", FieldKind::Moment},
    {"txtTD(0)", "TD at departure", "Time difference TD at departure", "hours", FieldKind::Figure,
     "hours", -12, 12, "east positive"},
    {"txtTD(1)", "TD at arrival", "Time difference TD at arrival", "hours", FieldKind::Figure,
     "hours", -12, 12, "east positive"},
    {"txtDist", "Distance", "Distance", "nautical miles", FieldKind::Figure, "miles", 0},
    {"txtSpeed", "Speed", "Speed", "knots", FieldKind::Figure, "knots", 0},
}};

} // namespace korvel
