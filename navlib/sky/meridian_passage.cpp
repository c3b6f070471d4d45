// SPDX-License-Identifier: MIT
#include "navlib/sky/meridian_passage.h"

#include "navlib/angles.h"
#include "navlib/sky/ephemeris.h"

#include <algorithm>
#include <cmath>

namespace NavFunc113
{

Degrees MeridianLatitude(Degrees declination, Degrees observedAltitude, bool bearsSouth)
{
    const Degrees zenithDistance = quarterTurn - observedAltitude;
    return bearsSouth ? declination + zenithDistance : declination - zenithDistance;
}

std::optional<MeridianLatitudes> LatitudesByAltitude(Degrees declination, Degrees observedAltitude,
                                                     Degrees hourAngle)
{
    // sin H = sin L sin d + cos L cos d cos t is a cosine of the distance from one latitude.
    const double y = sin(declination);
    const double x = cos(declination) * cos(hourAngle);
    const double greatest = std::hypot(x, y);
    const double altitude = sin(observedAltitude);
    if (!(std::fabs(altitude) <= greatest)) return std::nullopt;
    const Degrees between = RadToDeg(Radians(std::atan2(y, x)));
    const double across = std::sqrt(greatest * greatest - altitude * altitude);
    const Degrees distance = RadToDeg(Radians(std::atan2(across, altitude)));
    return MeridianLatitudes{between + distance, between - distance, between};
}

bool IsNearMeridian(Degrees hourAngle, Degrees observedAltitude)
{
    constexpr double longest = 20;
    const double minutes = fabs(WithinHalfTurn(hourAngle)).value() * 4;
    return minutes <= std::min(longest, (quarterTurn - observedAltitude).value());
}

DateTime LocalApparentNoon(DateTime near, const Position& position, const Motion& motion)
{
    std::vector<NoonStep> unheard;
    return LocalApparentNoon(near, position, motion, unheard);
}

DateTime LocalApparentNoon(DateTime near, const Position& position, const Motion& motion,
                           std::vector<NoonStep>& steps)
{
    DateTime passage = near;
    for (int pass = 0; pass < 8; ++pass) {
        const Position ship = Advanced(position, motion, Hours((passage - near) * 24));
        const Degrees GHA = DegMinToDeg(SunGHA(passage));
        const Degrees toGo = WithinHalfTurn(-ship.longitude - GHA);
        steps.push_back({passage, ship.longitude, GHA, toGo});
        passage += toGo / fullTurn;
        if (fabs(toGo) < Degrees(0.001)) break;
    }
    return passage;
}

double GreatestAltitudeDelay(Degrees latitude, Degrees declination, double sunNorthward,
                             double shipNorthward)
{
    return 15.28 * (tan(latitude) - tan(declination)) * (sunNorthward - shipNorthward);
}

} // namespace NavFunc113
