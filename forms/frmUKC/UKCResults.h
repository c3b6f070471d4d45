// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Result.h"
#include "forms/frmUKC/CalculateUKC.h"

#include <array>

namespace korvel
{

namespace UKCShown
{
enum : std::size_t {
    Clearance,
    Over,
    GreatestSpeed,
    Draught,
    Deepest,
    Squat,
    Formula,
    List,
    Density,
    Heave,
    Dynamic,
    Charted,
    Tide,
    FromTide,
    Uncertainty,
    Depth,
    Minimum,
    LeastTide,
    Block,
    Others,
    Hours ///< seven of them
};
}

template <std::size_t Day>
const std::string& hoursOf(const UKCResult& result)
{
    return result.hours[Day];
}

using UKCRow = Result<UKCResult>;
inline constexpr const char* hoursKept = "Hours when the minimum is kept";
inline constexpr std::array UKCResults = {
    UKCRow{"lblKeel(0)", "Clearance", "m", Weight::Answer, &UKCResult::clearance,
           "Under-keel clearance"},
    UKCRow{"lblKeel(1)", "Over the minimum", "m", Weight::Answer, &UKCResult::over},
    UKCRow{"lblKeel(2)", "Greatest speed", "kn", Weight::Answer, &UKCResult::speed,
           "Greatest speed that keeps the minimum"},
    UKCRow{"lblKeel(3)", "Static draught", "m", Weight::Figure, &UKCResult::draught},
    UKCRow{"lblKeel(4)", "", "", Weight::Remark, &UKCResult::deepest, "Where she is the deepest"},
    UKCRow{"lblKeel(5)", "Squat", "m", Weight::Figure, &UKCResult::squat},
    UKCRow{"lblKeel(6)", "", "", Weight::Remark, &UKCResult::formula, "Formula of the squat"},
    UKCRow{"lblKeel(7)", "List", "m", Weight::Figure, &UKCResult::list, "Sinkage by the list"},
    UKCRow{"lblKeel(8)", "Density", "m", Weight::Figure, &UKCResult::density,
           "Sinkage by the density"},
    UKCRow{"lblKeel(9)", "Heave or swell", "m", Weight::Figure, &UKCResult::heave,
           "Heave taken off"},
    UKCRow{"lblKeel(10)", "Dynamic draught", "m", Weight::Figure, &UKCResult::dynamic},
    UKCRow{"lblKeel(11)", "Charted depth", "m", Weight::Figure, &UKCResult::charted,
           "Charted depth understood"},
    UKCRow{"lblKeel(12)", "Tide", "m", Weight::Figure, &UKCResult::tide, "Tide used"},
    UKCRow{"lblKeel(13)", "", "", Weight::Remark, &UKCResult::fromTide,
           "Where the tide comes from"},
    UKCRow{"lblKeel(14)", "Uncertainty", "m", Weight::Figure, &UKCResult::uncertainty,
           "Uncertainty of the survey"},
    UKCRow{"lblKeel(15)", "Depth to count on", "m", Weight::Figure, &UKCResult::depth},
    UKCRow{"lblKeel(16)", "Minimum", "m", Weight::Figure, &UKCResult::minimum,
           "Minimum to be kept"},
    UKCRow{"lblKeel(17)", "Least tide for it", "m", Weight::Figure, &UKCResult::leastTide,
           "Least tide that keeps the minimum at this speed"},
    UKCRow{"lblKeel(18)", "Block coefficient", "", Weight::Figure, &UKCResult::block,
           "Block coefficient used"},
    UKCRow{"lblKeel(19)", "Squat otherwise", "", Weight::Remark, &UKCResult::others,
           "Squat by the other formulas"},
    UKCRow{"lblHours(0)", "", "", Weight::Figure, hoursOf<0>, hoursKept},
    UKCRow{"lblHours(1)", "", "", Weight::Figure, hoursOf<1>, hoursKept},
    UKCRow{"lblHours(2)", "", "", Weight::Figure, hoursOf<2>, hoursKept},
    UKCRow{"lblHours(3)", "", "", Weight::Figure, hoursOf<3>, hoursKept},
    UKCRow{"lblHours(4)", "", "", Weight::Figure, hoursOf<4>, hoursKept},
    UKCRow{"lblHours(5)", "", "", Weight::Figure, hoursOf<5>, hoursKept},
    UKCRow{"lblHours(6)", "", "", Weight::Figure, hoursOf<6>, hoursKept},
};

} // namespace korvel
