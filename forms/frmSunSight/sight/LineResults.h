// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Result.h"
#include "forms/frmSunSight/sight/CalculateLOP.h"
#include "forms/frmSunSight/sight/MeridianPassage.h"

#include <array>

namespace korvel
{

/// What is said of its body.
inline constexpr std::array<Result<LOPResult>, 1> sightBodyResults = {{
    {"lblSunBody", "", "", Weight::Remark, &LOPResult::body, "Body of the sight"},
}};

/// What is said of the time of the sight being entered.
inline constexpr std::array<Result<LOPResult>, 3> sightTimeResults = {{
    {"lblSunTime(0)", "", "UTC", Weight::Remark, &LOPResult::UTC, "Time of the sight"},
    {"lblSunTime(1)", "", "ship's mean time", Weight::Remark, &LOPResult::SMT, "Time of the sight"},
    {"lblSunTime(2)", "", "", Weight::Remark, &LOPResult::watchError, "Watch error as applied"},
}};

/// Its line of position; the captions tell the units.
namespace LineShown
{
enum : std::size_t { declination, GHA, DR, Hc, intercept, Zn };
}
inline constexpr std::array<Result<LOPResult>, 6> lineResults = {{
    {"lblSunLine(0)", "Declination (south -)", "", Weight::Figure, &LOPResult::declination},
    {"lblSunLine(1)", "Greenwich hour angle", "", Weight::Figure, &LOPResult::GHA},
    {"lblSunLine(2)", "DR at the sight", "", Weight::Figure, &LOPResult::DR},
    {"lblSunLine(3)", "Computed altitude Hc", "", Weight::Figure, &LOPResult::Hc},
    {"lblSunLine(4)", "Intercept", "nm", Weight::Answer, &LOPResult::intercept},
    {"lblSunLine(5)", "Azimuth Zn", "true", Weight::Answer, &LOPResult::Zn},
}};

/// The meridian passage nearest to it.
namespace NoonShown
{
enum : std::size_t { passage, greatest, latitude, note, exMeridian };
}
inline constexpr std::array<Result<MeridianResult>, 5> noonResults = {{
    {"lblSunNoon(0)", "Local apparent noon", "", Weight::Remark, &MeridianResult::noon},
    {"lblSunNoon(1)", "", "", Weight::Remark, &MeridianResult::greatest, "Greatest altitude"},
    {"lblSunNoon(2)", "Latitude by the sight", "", Weight::Figure, &MeridianResult::latitude},
    {"lblSunNoon(3)", "", "", Weight::Remark, &MeridianResult::note, "The sight and the meridian"},
    {"lblSunNoon(4)", "", "", Weight::Remark, &MeridianResult::exMeridian,
     "Reduction to the meridian"},
}};

} // namespace korvel
