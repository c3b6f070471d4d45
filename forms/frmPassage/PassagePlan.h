// SPDX-License-Identifier: MIT
#pragma once

#include "routes/route/Route.h"

#include <string>
#include <vector>

/// The passage plan as it is typed. Calculations read it (PlanReckoning), edits change it
/// (PlanEdit), files bring and take it (PlanRoute).
namespace korvel
{

enum class StepUnit { Degrees, Miles };

/// A row of the plan: a waypoint and the leg that leads to it. Numbers are as they were typed.
struct PlanRow {
    std::string name;
    std::string latitude;  ///< packed
    std::string longitude; ///< packed
    LegKind leg = LegKind::Rhumb;
    std::string step; ///< between the points of a circle; empty: it has none
    StepUnit stepUnit = StepUnit::Degrees;
    std::string limit; ///< of a composite leg, packed; where no letter and no sign says otherwise,
                       ///< of the hemisphere in which both ends lie
    std::string speed; ///< knots on the leg; empty: as above
    std::string stop;  ///< hours
    std::string zone;  ///< time difference from here on, hours, east positive; empty: as above
    std::string remark;
    std::vector<KeptPart> kept; ///< of the file that it came from

    /// Nothing was typed into any box: the row is passed over.
    bool isEmpty() const;
    bool operator==(const PlanRow&) const = default;
};

/// When the passage begins, or is to end.
struct PlanTimes {
    enum class Given { Departure, WantedArrival };
    enum class Clock { UTC, ShipsTime }; ///< ship's time: that of the zone at the row

    Given given = Given::Departure;
    Clock clock = Clock::UTC;
    std::string time; ///< "2038/7/23 13:30"

    bool operator==(const PlanTimes&) const = default;
};

/// The speed that is asked for: from one row to another by a wanted time, on the plan's clock.
struct PlanWish {
    std::string from; ///< number of the row that is left; empty: the first
    std::string to;   ///< number of the row to be reached; empty: the last
    std::string time; ///< "2038/8/5 06:00"

    bool operator==(const PlanWish&) const = default;
};

struct PassagePlan {
    std::string name;
    PlanTimes times;
    std::vector<PlanRow> rows;
    std::vector<KeptPart> kept; ///< of the file that it came from
    PlanWish wish = {};

    bool operator==(const PassagePlan&) const = default;
};

/// As many rows as a plan may have.
inline constexpr std::size_t mostPlanRows = mostRoutePoints;

} // namespace korvel
