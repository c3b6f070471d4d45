// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"

#include <array>

namespace korvel
{

/// The boxes above the rows of a plan.
enum PlanHeadField : std::size_t { PlanName, PlanTime, WishFrom, WishTo, WishTime };
inline constexpr std::array<Field, 5> PlanHeadFields = {{
    {"txtPlan", "P&lan", "Name of the plan", FieldKind::Text},
    {"txtPlanTime", "", "Time of the departure or the wanted arrival, year/month/day hh:mm",
     FieldKind::Moment},
    {"txtWish(0)", "Speed needed from row", "Row that is left, its number", FieldKind::Number, "",
     1, 500},
    {"txtWish(1)", "to row", "Row to be reached, its number", FieldKind::Number, "", 1, 500},
    {"txtWish(2)", "at the time", "Time wanted there, year/month/day hh:mm", FieldKind::Moment},
}};

/// The boxes of the row in hand, in their Enter order.
enum PlanRowField : std::size_t {
    RowName,
    RowLatitude,
    RowLongitude,
    RowSpeed,
    RowStop,
    RowZone,
    RowRemark,
    RowStep,
    RowLimit
};
inline constexpr std::array<Field, 9> PlanRowFields = {{
    {"txtWaypoint", "&Waypoint", "Waypoint", FieldKind::Text},
    {"txtWpLat", "Latitude", "Latitude, degrees.minutes, north positive", FieldKind::Latitude,
     "degrees", -90, 90},
    {"txtWpLong", "Longitude", "Longitude, degrees.minutes, east positive", FieldKind::Longitude,
     "degrees", -180, 180},
    {"txtLegSpeed", "&Speed", "Speed on the leg, knots", FieldKind::Number, "kn", 0, 100},
    {"txtStop", "Stop", "Stop, hours", FieldKind::Number, "h", 0, 10000},
    {"txtZone", "Zone", "Zone from here on, time difference in hours, east positive",
     FieldKind::Number, "h", -12, 14},
    {"txtRemark", "Remark", "Remark", FieldKind::Text},
    {"txtStep", "Step", "Step between the points of a circle, degrees or miles", FieldKind::Number,
     "", 1, 5400},
    {"txtLimit", "Limit", "Limiting latitude, degrees.minutes, north positive", FieldKind::Text,
     "degrees"},
}};

} // namespace korvel
