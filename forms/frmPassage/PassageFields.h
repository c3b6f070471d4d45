// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "app/reading/Result.h"
#include "forms/frmPassage/PassageShown.h"

#include <array>

namespace korvel
{

/// The boxes above the rows of a plan.
enum PlanHeadField : std::size_t { PlanName, PlanTime, WishFrom, WishTo, WishTime };
inline constexpr std::array<Field, 5> PlanHeadFields = {{
    {"txtPlan", "Plan", "Name of the plan", "", FieldKind::Text},
    {"txtPlanTime", "", "Time of the departure or the wanted arrival", "year/month/day hh:mm",
     FieldKind::Moment},
    {"txtWish(0)", "Speed needed from row", "Row that is left", "its number", FieldKind::Figure, "",
     1, 500},
    {"txtWish(1)", "to row", "Row to be reached", "its number", FieldKind::Figure, "", 1, 500},
    {"txtWish(2)", "at the time", "Time wanted there", "year/month/day hh:mm", FieldKind::Moment},
}};

/// The boxes of the row in hand; up to the remark in their Enter order.
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
    {"txtWaypoint", "Waypoint", "Waypoint", "", FieldKind::Text},
    {"txtWpLat", "Latitude", "Latitude", "degrees.minutes", FieldKind::Latitude, "degrees", -90, 90,
     "north positive"},
    {"txtWpLong", "Longitude", "Longitude", "degrees.minutes", FieldKind::Longitude, "degrees",
     -180, 180, "east positive"},
    {"txtLegSpeed", "Speed", "Speed on the leg", "knots", FieldKind::Figure, "kn", 0, 100},
    {"txtStop", "Stop", "Stop", "hours", FieldKind::Figure, "h", 0, 10000},
    {"txtZone", "Zone, TD", "Zone from here on", "time difference in hours", FieldKind::Figure, "h",
     -12, 14, "east positive"},
    {"txtRemark", "Remark", "Remark", "", FieldKind::Text},
    {"txtStep", "Step", "Step between the points of a circle", "degrees or miles",
     FieldKind::Figure, "", 1, 5400},
    // "44S" is no number to a box.
    {.name = "txtLimit",
     .caption = "Limit",
     .words = "Limiting latitude",
     .measure = "degrees.minutes",
     .kind = FieldKind::Text,
     .unit = "degrees",
     .note = "north positive"},
}};

/// What the window shows beside the rows: the answers, then three in a column.
enum PassageLabel : std::size_t {
    LabelToGo,
    LabelArrival,
    LabelArrivalUTC,
    LabelSpeed,
    LabelSpeedFor,
    PassageAnswers,
    LabelTide = PassageAnswers + 5
};
inline constexpr std::array PassageResults = {
    Result<PassageShown>{"lblToGo", "To go from the row in hand", "nautical miles", Weight::Answer,
                         &PassageShown::toGo},
    Result<PassageShown>{"lblArrival", "Arrival, ship's time", "", Weight::Answer,
                         &PassageShown::arrival, "Arrival"},
    Result<PassageShown>{"lblArrivalUTC", "", "", Weight::Remark, &PassageShown::arrivalUTC,
                         "Arrival in UTC"},
    Result<PassageShown>{"lblSpeedNeeded", "Speed needed", "knots", Weight::Answer,
                         &PassageShown::speed},
    Result<PassageShown>{"lblSpeedFor", "", "", Weight::Remark, &PassageShown::speedFor,
                         "What the speed leads to"},
    Result<PassageShown>{"lblRow(0)", "Run", "nm", Weight::Figure, &PassageShown::run,
                         "Run to the row in hand"},
    Result<PassageShown>{"lblRow(1)", "Leaves", "", Weight::Figure, &PassageShown::leaves,
                         "Leaving the row in hand"},
    Result<PassageShown>{"lblRow(2)", "Sun", "", Weight::Figure, &PassageShown::sun,
                         "Sun at the row in hand"},
    Result<PassageShown>{"lblRow(3)", "Twilight", "", Weight::Figure, &PassageShown::twilight,
                         "Twilight at the row in hand"},
    Result<PassageShown>{"lblRow(4)", "Circle", "", Weight::Figure, &PassageShown::circle,
                         "Circle to the row in hand"},
    Result<PassageShown>{"lblRow(5)", "Tide", "", Weight::Figure, &PassageShown::tide,
                         "Tide near the row in hand"},
    Result<PassageShown>{"lblPlan(0)", "Departure", "", Weight::Figure, &PassageShown::departure,
                         "Departure of the whole plan"},
    Result<PassageShown>{"lblPlan(1)", "Distance", "nm", Weight::Figure, &PassageShown::distance,
                         "Distance of the whole plan"},
    Result<PassageShown>{"lblPlan(2)", "Under way", "", Weight::Figure, &PassageShown::underWay,
                         "Time under way of the whole plan"},
    Result<PassageShown>{"lblPlan(3)", "Stops", "", Weight::Figure, &PassageShown::stopped,
                         "Stops of the whole plan"},
    Result<PassageShown>{"lblPlan(4)", "In all", "", Weight::Figure, &PassageShown::elapsed,
                         "Time in all of the whole plan"},
    Result<PassageShown>{"lblPlan(5)", "Circles save", "nm", Weight::Figure, &PassageShown::saving,
                         "Saving by circles of the whole plan"},
    Result<PassageShown>{"lblPlan(6)", "Clocks", "", Weight::Figure, &PassageShown::clocks,
                         "Changes of clocks of the whole plan"},
};

/// The widest text of each.
inline constexpr std::array<const char*, PassageResults.size()> PassageRooms = {
    "00000.0",
    "Wed 2038/08/04 20:38",
    "TD +10.5 (ZD -10.5); UTC Wed 2038/08/04 20:38",
    "00.00",
    "row 000 to 000, Wed 2038",
    "00000.0",
    "Wed 2038/08/04 20:38",
    "rises 00:00, sets 00:00",
    "civil 00:00 to 00:00, nautical 00:00 to 00:00",
    "a great circle would save 0000.0 nm",
    "Saint Petersburg, 000 nm: no tide of 2038/08/04; the",
    "Wed 2038/08/04 20:38; UTC Wed 20:38",
    "00000.0",
    "000 d 00 h 00 m",
    "000 d 00 h 00 m",
    "000 d 00 h 00 m",
    "0000.0",
    "17 h 00 m forward"};

} // namespace korvel
