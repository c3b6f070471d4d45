// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "app/reading/Result.h"
#include "forms/frmNoon/CalculateNoon.h"

#include <array>

namespace korvel
{

/// A box of the noon report and where its text goes; in this order in the record.
struct NoonField {
    std::string& (*text)(NoonBoxes& boxes);
};

template <auto Member>
std::string& noonText(NoonBoxes& boxes)
{
    return boxes.*Member;
}
template <auto Array, std::size_t Index>
std::string& noonTextAt(NoonBoxes& boxes)
{
    return (boxes.*Array)[Index];
}

/// The boxes, group by group, in their Enter order.
inline constexpr std::array<Field, 24> NoonFields = {{
    {"txtNoonFix(0)", "First fix, row", "First fix", "row of the record", FieldKind::Figure, "", 1,
     29},
    {"txtNoonFix(1)", "Last fix, row", "Last fix", "row of the record", FieldKind::Figure, "", 1,
     29},
    {"txtFullAway", "Full away, row", "Full away", "row of the record", FieldKind::Figure, "", 1,
     29},
    {"txtStopped", "Stopped", "Stopped", "hours", FieldKind::Figure, "h", 0, 1000},
    {"txtNext", "Next waypoint, row", "Next waypoint", "row of the plan", FieldKind::Figure, "", 1,
     500},
    {"txtToGo", "To go", "To go without a plan", "nautical miles", FieldKind::Figure, "nm", 0,
     30000},
    {"txtPortTD", "TD of the port", "TD of the port", "hours", FieldKind::Figure, "h", -12, 14,
     "east positive"},
    {"txtNoonSpeed(0)", "Speed", "First speed", "knots", FieldKind::Figure, "kn", 0, 100},
    {"txtNoonSpeed(1)", "Speed", "Second speed", "knots", FieldKind::Figure, "kn", 0, 100},
    {"txtNoonSpeed(2)", "Speed", "Third speed", "knots", FieldKind::Figure, "kn", 0, 100},
    {"txtNoonWanted", "Wanted arrival", "Wanted arrival", "port time, year/month/day hh:mm",
     FieldKind::Moment},
    {"txtPitch", "Pitch", "Pitch", "metres", FieldKind::Figure, "m", 0, 20},
    {"txtCounter(0)", "Counter, first fix", "Counter at the first fix", "revolutions",
     FieldKind::Figure},
    {"txtCounter(1)", "Counter, last fix", "Counter at the last fix", "revolutions",
     FieldKind::Figure},
    {"txtWake", "Wake fraction", "Wake fraction", "part of 1", FieldKind::Figure, "", 0, 0.99},
    {"txtFuel(0)", "Fuel 1 the day before", "Fuel 1 the day before", "tons", FieldKind::Figure,
     "t"},
    {"txtROB(0)", "Fuel 1 on board", "Fuel 1 on board", "tons", FieldKind::Figure, "t"},
    {"txtFuel(1)", "Fuel 2 the day before", "Fuel 2 the day before", "tons", FieldKind::Figure,
     "t"},
    {"txtROB(1)", "Fuel 2 on board", "Fuel 2 on board", "tons", FieldKind::Figure, "t"},
    {"txtFuel(2)", "Fuel 3 the day before", "Fuel 3 the day before", "tons", FieldKind::Figure,
     "t"},
    {"txtROB(2)", "Fuel 3 on board", "Fuel 3 on board", "tons", FieldKind::Figure, "t"},
    {"txtNoonWeather", "Weather", "Weather", "words", FieldKind::Text},
    {"txtNoonRemark", "Remark", "Remark", "words", FieldKind::Text},
    {"txtOrder", "Fields of the mail", "Fields of the mail", "in their order", FieldKind::Text},
}};

inline constexpr std::array<NoonField, NoonFields.size()> NoonTexts = {{
    {noonTextAt<&NoonBoxes::fixes, 0>},   {noonTextAt<&NoonBoxes::fixes, 1>},
    {noonText<&NoonBoxes::fullAway>},     {noonText<&NoonBoxes::stopped>},
    {noonText<&NoonBoxes::next>},         {noonText<&NoonBoxes::toGo>},
    {noonText<&NoonBoxes::portTD>},       {noonTextAt<&NoonBoxes::speeds, 0>},
    {noonTextAt<&NoonBoxes::speeds, 1>},  {noonTextAt<&NoonBoxes::speeds, 2>},
    {noonText<&NoonBoxes::wanted>},       {noonText<&NoonBoxes::pitch>},
    {noonTextAt<&NoonBoxes::counter, 0>}, {noonTextAt<&NoonBoxes::counter, 1>},
    {noonText<&NoonBoxes::wake>},         {noonTextAt<&NoonBoxes::before, 0>},
    {noonTextAt<&NoonBoxes::onBoard, 0>}, {noonTextAt<&NoonBoxes::before, 1>},
    {noonTextAt<&NoonBoxes::onBoard, 1>}, {noonTextAt<&NoonBoxes::before, 2>},
    {noonTextAt<&NoonBoxes::onBoard, 2>}, {noonText<&NoonBoxes::weather>},
    {noonText<&NoonBoxes::remark>},       {noonText<&NoonBoxes::order>},
}};

using NoonRow = Result<NoonResult>;
inline constexpr std::size_t noonAnswers = 3;
inline constexpr std::array NoonResults = {
    NoonRow{"lblNoon(0)", "Day's run", "nautical miles", Weight::Answer, &NoonResult::run},
    NoonRow{"lblNoon(1)", "Steaming time", "", Weight::Answer, &NoonResult::hours},
    NoonRow{"lblNoon(2)", "Average speed", "knots", Weight::Answer, &NoonResult::average},
    // Eight in a column.
    NoonRow{"lblNoon(3)", "Between", "", Weight::Figure, &NoonResult::between, "Between the fixes"},
    NoonRow{"lblNoon(4)", "Position", "", Weight::Figure, &NoonResult::position},
    NoonRow{"lblNoon(5)", "Since full away", "", Weight::Figure, &NoonResult::sinceAway},
    NoonRow{"lblNoon(6)", "To go", "nm", Weight::Figure, &NoonResult::toGo, "Distance to go"},
    NoonRow{"lblNoon(7)", "By", "", Weight::Remark, &NoonResult::by,
            "How the distance to go is known"},
    NoonRow{"lblNoon(8)", "ETA", "", Weight::Figure, textAt<&NoonResult::eta, 0>,
            "ETA at the first speed"},
    NoonRow{"lblNoon(9)", "ETA", "", Weight::Figure, textAt<&NoonResult::eta, 1>,
            "ETA at the second speed"},
    NoonRow{"lblNoon(10)", "ETA", "", Weight::Figure, textAt<&NoonResult::eta, 2>,
            "ETA at the third speed"},
    NoonRow{"lblNoon(11)", "Wanted arrival", "kn", Weight::Figure, &NoonResult::speedNeeded,
            "Speed for the wanted arrival"},
    NoonRow{"lblNoon(12)", "Set and drift", "", Weight::Figure, &NoonResult::setAndDrift},
    NoonRow{"lblNoon(13)", "Engine, 1852 m", "nm", Weight::Figure, &NoonResult::engine,
            "Engine miles"},
    NoonRow{"lblNoon(14)", "Slip, apparent", "%", Weight::Figure, &NoonResult::apparentSlip,
            "Apparent slip"},
    NoonRow{"lblNoon(15)", "Slip, real", "%", Weight::Figure, &NoonResult::realSlip, "Real slip"},
    NoonRow{"lblNoon(16)", "Fuel 1", "", Weight::Figure, textAt<&NoonResult::fuel, 0>,
            "Consumption of fuel 1"},
    NoonRow{"lblNoon(17)", "Fuel 2", "", Weight::Figure, textAt<&NoonResult::fuel, 1>,
            "Consumption of fuel 2"},
    NoonRow{"lblNoon(18)", "Fuel 3", "", Weight::Figure, textAt<&NoonResult::fuel, 2>,
            "Consumption of fuel 3"},
    NoonRow{"lblNoon(19)", "Fuel by", "", Weight::Remark, &NoonResult::fuelBy,
            "Where the fuel on board comes from"},
};

inline constexpr std::array<const char*, NoonResults.size()> NoonRooms = {
    "00000.0",
    "000 d 00 h 00 m",
    "00.00",
    "row 00 to 00, TD +00 to +00: clocks 01 h 00 m forward",
    "00°00.0'N 000°00.0'E",
    "00000.0 nm in 00 d 00 h 00 m, 00.00 kn",
    "00000.0",
    "rhumb line to row 000 of the plan, then by it",
    "00.00 kn: Wed 2038/08/04 20:38 TD -10; UTC Wed 20:38",
    "00.00 kn: Wed 2038/08/04 20:38 TD -10; UTC Wed 20:38",
    "00.00 kn: Wed 2038/08/04 20:38 TD -10; UTC Wed 20:38",
    "00.00",
    "000°, 000.0 nm = 00.00 kn",
    "00000.0",
    "-000.00",
    "-000.00",
    "00000.0 t, 0.0000 t per nm",
    "00000.0 t, 0.0000 t per nm",
    "00000.0 t, 0.0000 t per nm",
    "tank list, 2038/08/04 20:38"};

} // namespace korvel
