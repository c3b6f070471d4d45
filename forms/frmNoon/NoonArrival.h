// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmNoon/NoonBoxes.h"
#include "forms/frmPassage/PlanReckoning.h"

namespace korvel
{

/// The fix from which the way to go is counted.
struct NoonFix {
    NavFunc113::GeoPoint position;
    Instant utc;
};

/// The way from the last fix to the end of the passage.
struct NoonWay {
    NavFunc113::Miles distance;
    /// By the plan: the leg from the fix to the row that comes next, the rest of the plan from
    /// there, and its stops on the way. Nothing when the distance was typed.
    struct ByPlan {
        std::size_t row;
        PlanLeg leg;
        NavFunc113::Miles rest;
        Span stops{};
    };
    std::optional<ByPlan> byPlan;

    Span stops() const { return byPlan ? byPlan->stops : Span{}; }
    /// "as typed"; "great circle to row 5, then by the plan; stops 6 h 00 m".
    std::string inWords() const;
};

/// The distance that was typed, else that of the plan.
/// @param fix nothing: there is none to start from
/// @return nothing while neither is there; the remarks of the boxes say when a plan cannot be used
std::optional<NoonWay> noonWay(NoonReader& boxes, const std::optional<NoonFix>& fix,
                               const PassagePlan& plan, const PlanReckoning& reckoning);

/// When she arrives.
struct NoonArrivals {
    Span zone{}; ///< of the port
    struct Arrival {
        NavFunc113::Knots speed;
        Instant utc;
    };
    std::array<std::optional<Arrival>, 3> at; ///< by the speeds
    std::optional<Instant> wanted;            ///< UTC
    std::optional<NavFunc113::Knots> needed;  ///< to be there at that time
};

/// Arrivals from the fix on, the stops of the plan among their hours.
/// @param average of the day, for the first speed; nothing: there is none
/// @param shipsTD of the port where neither box nor plan has one
NoonArrivals noonArrivals(NoonReader& boxes, const NoonFix& fix, const NoonWay& way,
                          const std::optional<NavFunc113::Knots>& average,
                          const PlanReckoning& reckoning, NavFunc113::Hours shipsTD);

/// "14.50 kn: Thu 2026/12/03 06:00 TD -8; UTC Thu 14:00".
std::string arrivalText(const NoonArrivals::Arrival& arrival, Span zone);

} // namespace korvel
