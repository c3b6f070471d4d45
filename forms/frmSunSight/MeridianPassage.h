// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/SightInput.h"

namespace korvel
{

struct MeridianResult {   ///< an empty text blanks the label
    std::string noon;     ///< local apparent noon of the moving ship, UTC and SMT
    std::string greatest; ///< when the greatest altitude comes
    std::string latitude; ///< by the altitude of the sight, taken on the meridian
    std::string note;     ///< how far from the meridian the sight was taken
};

/// Meridian passage nearest to the time of the sight, and the latitude by the sight when it was
/// taken within 20 minutes of it.
MeridianResult CalculateMeridian(const SightTexts& sight, const TrackTexts& track);

} // namespace korvel
