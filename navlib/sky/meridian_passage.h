// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/sky/sight_fix.h"

#include <optional>

/// Latitude by a body on the meridian or near it, and when the Sun passes a ship's meridian. In
/// decimal degrees; north and east are positive.
///
/// Source: Bowditch, American Practical Navigator (meridian passage, reduction to the meridian).
namespace NavFunc113
{

/// Latitude from the altitude on the meridian.
/// @param bearsSouth the body is seen to the south
Degrees MeridianLatitude(Degrees declination, Degrees observedAltitude, bool bearsSouth);

/// The two latitudes on one meridian from which a body stands at an altitude.
struct MeridianLatitudes {
    Degrees bodyToTheSouth;
    Degrees bodyToTheNorth; ///< either may lie beyond 90: there is no such place
    Degrees between;        ///< where it would stand highest
};
/// The exact reduction to the meridian: from an altitude taken near it.
/// @param hourAngle  local, of the body, west positive; 0 on the meridian
/// @return nothing when the body stands that high nowhere on the meridian
std::optional<MeridianLatitudes> LatitudesByAltitude(Degrees declination, Degrees observedAltitude,
                                                     Degrees hourAngle);

/// Whether an altitude may be reduced to the meridian: up to as many minutes of time from it as
/// the zenith distance has degrees, and no more than 20. Beyond, an error in longitude weighs too
/// much.
bool IsNearMeridian(Degrees hourAngle, Degrees observedAltitude);

/// One step towards the passage over the meridian.
struct NoonStep {
    DateTime instant = 0;
    Degrees longitude; ///< of the ship then
    Degrees GHA;       ///< of the Sun then
    Degrees toGo;      ///< to the meridian; the next instant lies toGo / 360 days later
};

/// UTC of the Sun's passage over the meridian of a moving ship, the one nearest to an instant.
/// @param near    instant at which the ship stands at position
DateTime LocalApparentNoon(DateTime near, const Position& position, const Motion& motion);
/// The same, its steps added to a list.
DateTime LocalApparentNoon(DateTime near, const Position& position, const Motion& motion,
                           std::vector<NoonStep>& steps);

/// Seconds by which the greatest altitude comes after the passage over the ship's meridian.
/// @param sunNorthward, shipNorthward rates in minutes of arc an hour
double GreatestAltitudeDelay(Degrees latitude, Degrees declination, double sunNorthward,
                             double shipNorthward);

} // namespace NavFunc113
