// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "forms/frmUKC/CalculateUKC.h"

#include <array>

namespace korvel
{

namespace UKCField
{
enum : std::size_t {
    Forward,
    Midships,
    Aft,
    ReadIn,
    Block,
    Length,
    Breadth,
    Displacement,
    Speed,
    List,
    Heave,
    WaterDensity,
    Allowance,
    Charted,
    Margin,
    Minimum,
    MinimumShare,
    Bottom,
    Slope,
    Section,
    Tide,
    Station,
    Day,
    Time,
};
}

/// The boxes, group by group, in their Enter order.
inline constexpr std::array<Field, 24> UKCFields = {{
    {"txtDraught(0)", "Forward", "Draught forward", "metres", FieldKind::Figure, "m", 0, 40},
    {"txtDraught(1)", "Midships", "Draught midships", "metres", FieldKind::Figure, "m", 0, 40},
    {"txtDraught(2)", "Aft", "Draught aft", "metres", FieldKind::Figure, "m", 0, 40},
    {"txtReadIn", "Read in density", "Density where the draughts were read", "tons per cubic metre",
     FieldKind::Figure, "t/m³", 0.99, 1.05, "empty for 1.025"},
    {"txtBlock", "Block coefficient", "Block coefficient", "part of 1", FieldKind::Figure, "", 0.3,
     1},
    {"txtShip(0)", "Length", "Length between perpendiculars", "metres", FieldKind::Figure, "m", 5,
     500},
    {"txtShip(1)", "Breadth", "Breadth", "metres", FieldKind::Figure, "m", 1, 100},
    {"txtShip(2)", "Displacement", "Displacement", "tons", FieldKind::Figure, "t", 1, 1000000},
    {"txtKeelSpeed", "Speed, water", "Speed through the water", "knots", FieldKind::Figure, "kn", 0,
     40},
    {"txtList", "List", "List", "degrees", FieldKind::Figure, "°", -30, 30,
     "either side; empty for none"},
    {"txtHeave", "Heave or swell", "Allowance for heave or swell", "metres", FieldKind::Figure, "m",
     0, 20, "empty for none"},
    {"txtWater", "Density there", "Density of the water", "tons per cubic metre", FieldKind::Figure,
     "t/m³", 0.99, 1.05, "empty for 1.025"},
    {"txtFWA", "Fresh water allowance", "Fresh water allowance", "millimetres", FieldKind::Figure,
     "mm", 0, 1000, "empty for that of a box"},
    {"txtCharted", "Charted depth", "Charted depth", "metres", FieldKind::Figure, "m", -20, 1000,
     "a drying height negative"},
    {"txtMargin", "Own margin", "Own margin for the survey", "metres", FieldKind::Figure, "m", 0,
     50},
    {"txtMinimum(0)", "Minimum", "Company's minimum", "metres", FieldKind::Figure, "m", 0, 50},
    {"txtMinimum(1)", "or of the draught", "Company's minimum of the static draught", "per cent",
     FieldKind::Figure, "%", 0, 100, "the greater of both holds"},
    {"txtChannel(0)", "Width at the bottom", "Width of the channel at its bottom", "metres",
     FieldKind::Figure, "m", 1, 5000},
    {"txtChannel(1)", "Slope of the banks", "Slope of the banks", "run to a rise of 1",
     FieldKind::Figure, "to 1", 0, 50, "empty for upright walls"},
    {"txtChannel(2)", "or its section", "Section of the channel", "square metres",
     FieldKind::Figure, "m²", 1, 1000000},
    {"txtTide", "Tide", "Height of tide", "metres", FieldKind::Figure, "m", -20, 20,
     "empty for that of the station"},
    {"txtStation", "Station", "Tide station", "three letters of its name", FieldKind::Text},
    {.name = "txtTideDay",
     .caption = "Day",
     .words = "Day of the station",
     .measure = "year/month/day",
     .kind = FieldKind::Moment,
     .note = "empty for today"},
    {.name = "txtTideTime",
     .caption = "Time",
     .words = "Zone time of the station",
     .measure = "hours:minutes",
     .kind = FieldKind::Moment,
     .note = "empty for the lowest water of the day"},
}};

} // namespace korvel
