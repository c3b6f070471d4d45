// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/sight/SightInput.h"
#include "navlib/sky/meridian_passage.h"

#include <string>
#include <vector>

namespace korvel
{

/// What the meridian passage was calculated from; absent where there is none.
struct MeridianFigures {
    std::optional<NavFunc113::DateTime> noon;
    std::vector<NavFunc113::NoonStep> steps;
    NavFunc113::Position atNoon;
    NavFunc113::Degrees declinationAtNoon;
    NavFunc113::Degrees declinationEarlier; ///< half an hour before noon
    NavFunc113::Degrees declinationLater;   ///< half an hour after it
    std::optional<NavFunc113::Motion> motion;
    double sunNorthward{};  ///< minutes of arc an hour
    double shipNorthward{}; ///< minutes of arc an hour
    double delay{};         ///< seconds, of the greatest altitude

    NavFunc113::Degrees Ho; ///< of the sight, as are those below
    NavFunc113::Degrees declination;
    NavFunc113::Degrees GHA;
    NavFunc113::Degrees longitude; ///< of the DR position
    NavFunc113::Degrees hourAngle;
    std::optional<NavFunc113::MeridianLatitudes> latitudes;
    bool isSouth = false; ///< the Sun, seen from the DR position
    NavFunc113::Miles reduction;
};

struct MeridianResult {   ///< an empty text blanks the label
    std::string caption;  ///< of the passage, where it is not the Sun's: "Lower passage"
    std::string noon;     ///< local apparent noon of the moving ship, UTC and SMT
    std::string greatest; ///< when the greatest altitude comes
    std::string latitude; ///< by the sight, reduced to the meridian; two when the side is in doubt
    /// The reduction to the meridian, its limit and what it is worth; of the Sun where the latitude
    /// above is not given any more.
    std::string exMeridian;
    MeridianFigures figures;
    std::string note; ///< how far from the meridian the sight was taken, or why no latitude
};

/// Whether a body stands so near the zenith that the latitude on its other side is possible too.
bool isSideInDoubt(const NavFunc113::MeridianLatitudes& latitudes,
                   NavFunc113::Degrees shipLatitude);

/// Meridian passage nearest to the time of the sight, and the latitude by the sight when it was
/// taken near enough to the meridian to be reduced to it.
MeridianResult CalculateMeridian(const SightTexts& sight, const TrackTexts& track,
                                 const SightContext& context);

} // namespace korvel
