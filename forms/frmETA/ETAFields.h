// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "app/reading/Result.h"
#include "forms/frmETA/CalculateETA.h"
#include "forms/frmETA/CalculateReqSpd.h"

#include <array>
#include <cstddef>

namespace korvel
{

namespace ETAField
{
enum : std::size_t { departureDate, arrivalDate = 2, departureTD = 4, arrivalTD, distance, speed };
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

/// The five speeds, the first of them as typed, then the arrivals at them.
inline constexpr std::array<Result<ETALabels>, 10> arrivalResults = {{
    {"lblSPD(0)", "", "knots", Weight::Figure, textAt<&ETALabels::lblSPD, 0>, "Speed 1"},
    {"lblSPD(1)", "", "knots", Weight::Figure, textAt<&ETALabels::lblSPD, 1>, "Speed 2"},
    {"lblSPD(2)", "", "knots", Weight::Figure, textAt<&ETALabels::lblSPD, 2>, "Speed 3"},
    {"lblSPD(3)", "", "knots", Weight::Figure, textAt<&ETALabels::lblSPD, 3>, "Speed 4"},
    {"lblSPD(4)", "", "knots", Weight::Figure, textAt<&ETALabels::lblSPD, 4>, "Speed 5"},
    {"lblETA(0)", "", "local time", Weight::Answer, textAt<&ETALabels::lblETA, 0>, "Arrival 1"},
    {"lblETA(1)", "", "local time", Weight::Figure, textAt<&ETALabels::lblETA, 1>, "Arrival 2"},
    {"lblETA(2)", "", "local time", Weight::Figure, textAt<&ETALabels::lblETA, 2>, "Arrival 3"},
    {"lblETA(3)", "", "local time", Weight::Figure, textAt<&ETALabels::lblETA, 3>, "Arrival 4"},
    {"lblETA(4)", "", "local time", Weight::Figure, textAt<&ETALabels::lblETA, 4>, "Arrival 5"},
}};
inline constexpr std::size_t firstArrival = 5;

inline constexpr std::array<Result<ReqSpdResult>, 1> requiredResults = {{
    {"lblReqSpd", "Speed", "knots", Weight::Answer, &ReqSpdResult::speed, "Required speed"},
}};

} // namespace korvel
