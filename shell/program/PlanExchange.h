// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Instant.h"
#include "navlib/units.h"

#include <optional>
#include <string>

namespace korvel
{

/// What the window of the passage plan and the other windows hand each other.
struct PlanExchange {
    /// The leg to the row in hand, as far as it is known. It lasts while the plan's window is open.
    struct Leg {
        std::string name;                ///< "Uraga pilot to Nojima Saki"
        NavFunc113::DegMin latitudes[2]; ///< left and reached
        NavFunc113::DegMin longitudes[2];
        NavFunc113::Miles distance;
        std::optional<NavFunc113::Knots> speed;
        std::optional<Instant> leaves;  ///< UTC
        std::optional<Instant> arrives; ///< UTC
        Span zones[2]{};                ///< time differences
    };
    std::optional<Leg> legInHand;

    /// A great circle that waits to be taken into the plan.
    struct Circle {
        NavFunc113::DegMin latitudes[2];
        NavFunc113::DegMin longitudes[2];
        NavFunc113::Degrees step; ///< between the meridians of its points
    };
    std::optional<Circle> circleForPlan;
};

} // namespace korvel
