// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Result.h"
#include "forms/frmSunSight/fix/DrawLOP.h"
#include "forms/frmSunSight/fix/SightFix.h"

#include <array>

namespace korvel
{

/// The fix, and how good it is.
inline constexpr std::array<Result<SightFixResult>, 8> fixResults = {{
    {"lblSunFix(0)", "Fix, latitude", "", Weight::Answer, &SightFixResult::latitude,
     "Latitude of the fix"},
    {"lblSunFix(1)", "Fix, longitude", "", Weight::Answer, &SightFixResult::longitude,
     "Longitude of the fix"},
    {"lblSunFix(2)", "", "", Weight::Remark, &SightFixResult::time, "Time of the fix"},
    {"lblSunFix(3)", "", "", Weight::Remark, &SightFixResult::ellipseText,
     "Error ellipse of the fix"},
    {"lblSunFix(4)", "", "", Weight::Remark, &SightFixResult::sigmaText,
     "Where its sigma comes from"},
    {"lblSunFix(5)", "", "", Weight::Remark, &SightFixResult::withoutText,
     "Fix without the sights that do not fit"},
    {"lblSunFix(6)", "", "", Weight::Remark, &SightFixResult::equalText,
     "Longitude by equal altitudes"},
    {"lblSunFix(7)", "", "", Weight::Remark, &SightFixResult::seriesText, "Series of shots"},
}};

/// What the plot tells of the place under the pointer.
inline constexpr std::array<Result<CursorTexts>, 2> cursorResults = {{
    {"lblSunCursor(0)", "", "", Weight::Figure, &CursorTexts::latitude, "Latitude at the pointer"},
    {"lblSunCursor(1)", "", "", Weight::Figure, &CursorTexts::longitude,
     "Longitude at the pointer"},
}};

} // namespace korvel
