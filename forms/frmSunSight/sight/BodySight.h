// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/sight/SightInput.h"

#include <optional>
#include <string>

/// What sights of the Moon, planets and stars have of their own.
namespace korvel
{

/// The corrections of a body other than the Sun made.
/// @param read  what the boxes say
/// @param place from where it was observed; nothing: a sphere
SightCorrections corrected(SightCorrections read, const Observation& observation,
                           const std::optional<NavFunc113::Position>& place);

/// Low down the refraction depends on more than temperature and pressure at the eye.
void warnOfLowBody(const SightCorrections& corrections, Remarks& remarks);

/// What speaks against a body having been the one that was observed; empty when nothing does.
struct BodyDoubt {
    std::string why;    ///< a sentence
    std::string likely; ///< the likeliest others, "Vega (0.1° off, bearing 045)"; may be empty

    /// Both in a sentence, for the notice line.
    std::string remark() const;
};
/// @param observation of any body; of the Sun only what else it may have been is told
/// @param DR          from where it was observed
/// @pre its UTC, GHA and declination are known
BodyDoubt doubtOf(const Observation& observation, const NavFunc113::Position& DR);

} // namespace korvel
