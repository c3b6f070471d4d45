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

/// An altitude taken near the upper or the lower meridian, reduced to it without approximation.
struct ExMeridian {
    Degrees latitude;
    Miles reduction;      ///< latitude less that of the same altitude on the meridian
    bool isUpper = true;  ///< else below the pole
    double minutes{};     ///< of time from that meridian, after it positive
    double limit{};       ///< of these: as many as the zenith distance has degrees, at most 30
    double ofLongitude{}; ///< minutes of latitude that a minute of longitude is worth
    bool isWithinLimit() const;
};
/// @param near latitude by dead reckoning: of the two possible ones the nearer comes back
/// @return nothing when the body stands that high nowhere on the meridian
std::optional<ExMeridian> ReducedToMeridian(Degrees declination, Degrees observedAltitude,
                                            Degrees hourAngle, Degrees near);

/// One of two altitudes of a body on both sides of the meridian.
struct AltitudeOfPair {
    Degrees GHA;
    Degrees declination;
    Degrees observedAltitude; ///< corrected
    Hours sinceMean;          ///< from the mean of the two times
};
/// Longitude from two altitudes of a body to the east and to the west of a moving ship. They need
/// not be equal: the longitude is the one at which the altitudes differ as they were observed to,
/// the ship on her track, so that the body's change of declination and the ship's of latitude are
/// taken in whole.
struct EqualAltitudes {
    Position atMean;      ///< at the mean of the times; the latitude is that given
    double ofAltitudes{}; ///< minutes of longitude for a minute in each altitude
    double ofNorthing{};  ///< minutes of longitude for a minute an hour in the rate of latitude
};
/// @return nothing when both lie on one side of the meridian, or nearer to it than two degrees
std::optional<EqualAltitudes> LongitudeByEqualAltitudes(const AltitudeOfPair& first,
                                                        const AltitudeOfPair& second,
                                                        const Position& atMean,
                                                        const Motion& motion);

/// Seconds by which the passage comes after the mean of two times of equal altitude, for hour
/// angles that are small: 15.28 (tan L - tan d) (ship's rate - body's rate). A ship that goes away
/// from the body has its greatest altitude before the passage.
/// @param bodyNorthward, shipNorthward rates in minutes of arc an hour
double PassageAfterMean(Degrees latitude, Degrees declination, double bodyNorthward,
                        double shipNorthward);

/// One step towards the passage over the meridian.
struct NoonStep {
    DateTime instant;
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
