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

bool ExMeridian::isWithinLimit() const
{
    return std::fabs(minutes) <= limit;
}

std::optional<ExMeridian> ReducedToMeridian(Degrees declination, Degrees observedAltitude,
                                            Degrees hourAngle, Degrees near)
{
    constexpr double longest = 30;
    const auto found = LatitudesByAltitude(declination, observedAltitude, hourAngle);
    if (!found) return std::nullopt;
    const bool isSouth = near > found->between;
    ExMeridian reduced;
    reduced.latitude = isSouth ? found->bodyToTheSouth : found->bodyToTheNorth;
    const Degrees t = WithinHalfTurn(hourAngle);
    reduced.isUpper = fabs(t) <= quarterTurn;
    const Degrees polarDistance = quarterTurn - fabs(declination);
    const double hemisphere = declination < Degrees(0) ? -1 : 1;
    const Degrees onMeridian = reduced.isUpper
                                   ? MeridianLatitude(declination, observedAltitude, isSouth)
                                   : hemisphere * (observedAltitude + polarDistance);
    reduced.reduction = MilesOfArc(reduced.latitude - onMeridian);
    reduced.minutes = (reduced.isUpper ? t : WithinHalfTurn(t - halfTurn)).value() * 4;
    reduced.limit = std::min(longest, (quarterTurn - observedAltitude).value());
    const HorizonPlace body = PlaceAboveHorizon(hourAngle, declination, {reduced.latitude, {}});
    reduced.ofLongitude = std::fabs(cos(reduced.latitude) * tan(body.azimuth));
    return reduced;
}

double PassageAfterMean(Degrees latitude, Degrees declination, double bodyNorthward,
                        double shipNorthward)
{
    return 15.28 * (tan(latitude) - tan(declination)) * (shipNorthward - bodyNorthward);
}

std::optional<EqualAltitudes> LongitudeByEqualAltitudes(const AltitudeOfPair& first,
                                                        const AltitudeOfPair& second,
                                                        const Position& atMean,
                                                        const Motion& motion)
{
    EqualAltitudes found{atMean, 0, 0};
    double east = 0;
    for (int pass = 0; pass < 8; ++pass) {
        const auto bodyOf = [&](const AltitudeOfPair& each) {
            return PlaceAboveHorizon(each.GHA, each.declination,
                                     Advanced(found.atMean, motion, each.sinceMean));
        };
        const HorizonPlace before = bodyOf(first), after = bodyOf(second);
        // Minutes of altitude for a minute of longitude to the east, of the first less the second.
        const double sides = sin(before.azimuth) - sin(after.azimuth);
        east = cos(found.atMean.latitude) * sides;
        const double nearest = 2 * std::sin(2 * Pi() / 180);
        if (sin(before.azimuth) * sin(after.azimuth) >= 0 || std::fabs(sides) < nearest)
            return std::nullopt;
        const Degrees off =
            first.observedAltitude - before.altitude - (second.observedAltitude - after.altitude);
        const Degrees change = off / east;
        found.atMean.longitude = WithinHalfTurn(found.atMean.longitude + change);
        if (fabs(change) < Degrees(1e-7)) {
            const double hours = (second.sinceMean - first.sinceMean).value();
            found.ofAltitudes = std::sqrt(2.0) / std::fabs(east);
            // A rate that is out by a minute an hour shifts the two apart by that in the span.
            found.ofNorthing =
                std::fabs(hours / 2 * (cos(before.azimuth) + cos(after.azimuth)) / east);
            return found;
        }
    }
    return std::nullopt;
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
