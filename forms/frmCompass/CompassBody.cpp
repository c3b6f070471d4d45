// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CompassBody.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "app/reading/Reading.h"
#include "forms/frmCompass/CompassTexts.h"
#include "navlib/angles.h"
#include "navlib/sailing/compass.h"

#include <cmath>

namespace korvel
{
namespace
{

using almanac::Place;
using NavFunc113::Degrees;

Degrees changeOf(Degrees latitude, Degrees altitude, Degrees bearing)
{
    // In the zenith itself the bearing is none: it turns by as much as can be.
    if (NavFunc113::quarterTurn - fabs(altitude) < Degrees(1e-6)) return NavFunc113::halfTurn;
    return NavFunc113::BearingChangeOfMinute(latitude, altitude, bearing);
}

std::string sentence(std::string words)
{
    if (words.starts_with("the ")) words[0] = 'T';
    return words;
}

} // namespace

TrueBearing azimuthOf(const Place& body, const almanac::Observer& observer)
{
    const auto [altitude, azimuth] = almanac::computedDirection(body, observer);
    return {azimuth, altitude, changeOf(observer.latitude, altitude, azimuth)};
}

almanac::AltitudeWanted altitudeOn(AmplitudeHorizon horizon, Degrees dip)
{
    if (horizon == AmplitudeHorizon::Celestial) return [](const Place&) { return Degrees(0); };
    auto limb = almanac::upperLimbOnHorizon(dip);
    if (horizon == AmplitudeHorizon::VisibleUpperLimb) return limb;
    return [limb](const Place& body) { return limb(body) + body.semiDiameter; };
}

std::optional<TrueBearing> amplitudeOf(const Place& body, Degrees latitude, Degrees altitude,
                                       bool rising)
{
    try {
        const Degrees bearing =
            NavFunc113::BearingAtAltitude(latitude, body.declination, altitude, rising);
        return TrueBearing{bearing, altitude, changeOf(latitude, altitude, bearing)};
    } catch (const NavFunc113::ArithmeticError&) {
        return std::nullopt;
    }
}

std::optional<almanac::Crossing> crossingNear(almanac::Body body, NavFunc113::DateTime ut,
                                              const almanac::Observer& observer,
                                              const almanac::AltitudeWanted& wanted,
                                              AmplitudeSide side)
{
    constexpr double halfDay = 0.53; // a body may be 50 minutes late from one day to the next
    const almanac::HourlyPlaces places(body, ut - halfDay, ut + halfDay);
    std::optional<almanac::Crossing> nearest;
    for (const almanac::Crossing& crossing :
         crossings(places, almanac::standingAt(observer), wanted, ut - halfDay, ut + halfDay)) {
        if (side != AmplitudeSide::Nearest && crossing.rising != (side == AmplitudeSide::Rising))
            continue;
        if (!nearest || std::fabs(crossing.instant - ut) < std::fabs(nearest->instant - ut))
            nearest = crossing;
    }
    return nearest;
}

std::optional<almanac::Body> bodyOfBox(std::string_view box)
{
    std::string name = asciiForms(box);
    name.erase(name.find_last_not_of(" \t") + 1);
    name.erase(0, name.find_first_not_of(" \t"));
    if (name.empty()) return almanac::Body::Sun;
    return almanac::findBody(name);
}

void judgeBearing(almanac::Body body, const TrueBearing& seen, Remarks& remarks)
{
    constexpr Degrees highest(60), fastest(0.5), lowest(-1.5);
    const std::string name = sentence(bodyInSentence(body));
    if (seen.altitude > highest)
        remarks.warn(name + " stands at " + altitudeText(seen.altitude) +
                     ", above 60°: the bearing is worth little");
    if (fabs(seen.change) > fastest)
        remarks.warn("The bearing changes by " + Format(fabs(seen.change), "0.0") +
                     "° a minute: it is worth little");
    if (seen.altitude < lowest)
        remarks.warn(name + " is below the horizon, at " + altitudeText(seen.altitude));
}

} // namespace korvel
