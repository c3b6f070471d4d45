// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanReading.h"
#include "navlib/sailing/composite_sailing.h"

#include <optional>
#include <string>

namespace korvel
{

/// Miles of a plan are shown to a tenth.
inline constexpr const char* milesFormat = "0.0";

/// A leg of the plan, as sailed on the program's earth.
struct PlanLeg {
    LegKind kind = LegKind::Rhumb;
    std::optional<NavFunc113::Degrees> course;      ///< initial, true; nothing on a leg of 0 miles
    std::optional<NavFunc113::Degrees> finalCourse; ///< of a circle
    NavFunc113::Miles distance;
    NavFunc113::Miles rhumbLine;   ///< the same by rhumb line
    NavFunc113::Miles greatCircle; ///< and by great circle, whatever limits there are
    std::optional<NavFunc113::CompositeTrack> composite;
    std::string remark; ///< what the officer should know of it

    /// Miles by which it is shorter than the rhumb line.
    NavFunc113::Miles saving() const;
    /// Miles by which a great circle would be shorter.
    NavFunc113::Miles couldSave() const;
};

/// A leg, or why there is none.
struct PlannedLeg {
    std::optional<PlanLeg> leg;
    std::string fault; ///< empty when there is a leg, and while a position is not there yet
};

/// The leg between two rows. @param to says what kind of leg it is
PlannedLeg legBetween(const ReadPlanRow& from, const ReadPlanRow& to, LegKind kind,
                      NavFunc113::Earth earth);

/// The limit of a composite leg: where the officer named no side, that of the hemisphere in which
/// both ends lie, else the northern one.
NavFunc113::DegMin limitOfLeg(const ReadPlanRow& from, const ReadPlanRow& to);

} // namespace korvel
