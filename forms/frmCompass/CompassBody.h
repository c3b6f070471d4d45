// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/events.h"
#include "almanac/sky.h"
#include "app/reading/Remarks.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace korvel
{

/// On which horizon a body stands when its amplitude is taken. The Sun's centre is on the celestial
/// horizon when its lower limb is two thirds of its diameter above the visible one.
enum class AmplitudeHorizon { Celestial, VisibleCentre, VisibleUpperLimb };
inline constexpr std::array<const char*, 3> amplitudeHorizonNames{
    "centre on the celestial horizon", "centre on the visible horizon",
    "upper limb on the visible horizon"};

/// Which of its two horizons a body is at. Nearest: the event nearest to the time.
enum class AmplitudeSide { Nearest, Rising, Setting };

/// True bearing of a body and what it is worth.
struct TrueBearing {
    NavFunc113::Degrees bearing;  ///< 0 <= bearing < 360
    NavFunc113::Degrees altitude; ///< of the centre; computed, without refraction and dip
    NavFunc113::Degrees change;   ///< of the bearing in a minute, clockwise positive
};

/// By azimuth: from where the body stands at the time.
TrueBearing azimuthOf(const almanac::Place& body, const almanac::Observer& observer);

/// Computed altitude of the centre of a body that stands on a horizon: refraction 34', the body's
/// own semi-diameter and parallax.
almanac::AltitudeWanted altitudeOn(AmplitudeHorizon horizon, NavFunc113::Degrees dip);

/// By amplitude.
/// @return nothing when the body does not come to that horizon in this latitude
std::optional<TrueBearing> amplitudeOf(const almanac::Place& body, NavFunc113::Degrees latitude,
                                       NavFunc113::Degrees altitude, bool rising);

/// When the body comes to a horizon: the nearest time within half a day.
/// @param side Nearest: whichever of rise and set is nearer
/// @return nothing when there is none
std::optional<almanac::Crossing> crossingNear(almanac::Body body, NavFunc113::DateTime ut,
                                              const almanac::Observer& observer,
                                              const almanac::AltitudeWanted& wanted,
                                              AmplitudeSide side);

/// Body that a box names: its name in any letters, or the number of a star; the Sun when the box is
/// empty. Full-width forms are read like plain ones.
/// @return nothing for what is not in the almanac
std::optional<almanac::Body> bodyOfBox(std::string_view box);

/// Why a bearing is worth little: above 60 degrees, faster than 0.5 degrees a minute, below the
/// horizon.
void judgeBearing(almanac::Body body, const TrueBearing& seen, Remarks& remarks);

} // namespace korvel
