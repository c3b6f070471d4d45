// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/SightInput.h"

#include <string>

namespace korvel
{

struct MeridianResult {   ///< an empty text blanks the label
    std::string noon;     ///< local apparent noon of the moving ship, UTC and SMT
    std::string greatest; ///< when the greatest altitude comes
    std::string latitude; ///< by the sight, reduced to the meridian; two when the side is in doubt
    std::string note;     ///< how far from the meridian the sight was taken, or why no latitude
};

/// Meridian passage nearest to the time of the sight, and the latitude by the sight when it was
/// taken near enough to the meridian to be reduced to it.
MeridianResult CalculateMeridian(const SightTexts& sight, const TrackTexts& track,
                                 const SightContext& context);

} // namespace korvel
