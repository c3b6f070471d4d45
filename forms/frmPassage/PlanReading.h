// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/NumberField.h"
#include "app/reading/Remarks.h"
#include "forms/frmPassage/PassagePlan.h"
#include "navlib/sailing/great_circle_arc.h"

namespace korvel
{

/// A row as it was understood; nothing where a box is empty or makes no sense.
struct ReadPlanRow {
    bool isEmpty = true;
    std::optional<NavFunc113::GeoPoint> position;
    std::optional<NavFunc113::DegMin> limit; ///< of a composite leg
    bool limitNamesItsSide = false;          ///< by a letter or a sign
    CircleStep step;
    std::optional<NavFunc113::Knots> speed; ///< nothing: as above
    bool hasUsableSpeed = true;             ///< false: what is typed is no speed
    Span stop{};
    std::optional<Span> zone; ///< nothing: as above
    Remarks remarks;
};

/// Reads the boxes of a row.
///
/// Latitude and longitude are packed degrees, both needed in a row that is not empty; the minutes
/// are below 60. Speed: more than 0 up to 100 knots. Stop: 0 to 10000 hours. Zone: -12 to 14 hours,
/// whole quarters as a rule. Step: 1 to 90 degrees or 30 to 5400 miles. Limit of a composite leg:
/// more than 0 and less than 90 degrees, "44", "44N", "-44".
ReadPlanRow readPlanRow(const PlanRow& row);

/// What the step between the points of a circle may be.
NumberField stepField(StepUnit unit);

/// The time of the plan as typed. @param remarks says why there is none
std::optional<Instant> readPlanTime(const PlanTimes& times, Remarks& remarks);

} // namespace korvel
