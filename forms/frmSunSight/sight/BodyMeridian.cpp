// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/BodyMeridian.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmSunSight/sight/SightBody.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

/// A body that passes the meridian of a ship under way.
struct Passage {
    DateTime instant{};
    Position ship;
    Degrees declination;
    double turning{};       ///< of the hour angle, degrees an hour, the ship's easting in it
    double bodyNorthward{}; ///< minutes of arc an hour
    double shipNorthward{}; ///< minutes of arc an hour
    bool isUpper{};
};

Passage passageNear(const Observation& observation, const Position& ship, const Motion& motion,
                    bool isUpper)
{
    const DateTime near = *observation.UTC;
    const Degrees wanted = isUpper ? Degrees(0) : halfTurn;
    Passage passage;
    passage.isUpper = isUpper;
    passage.instant = near;
    for (int pass = 0; pass < 12; ++pass) {
        passage.ship = Advanced(ship, motion, Hours((passage.instant - near) * 24));
        const auto place = almanac::Sky(passage.instant).place(observation.body);
        passage.declination = place.declination;
        const Degrees toGo = WithinHalfTurn(wanted - passage.ship.longitude - place.gha);
        passage.instant += toGo / fullTurn;
        if (fabs(toGo) < Degrees(0.0005)) break;
    }
    constexpr double halfHour = 0.5 / 24;
    const auto earlier = almanac::Sky(passage.instant - halfHour).place(observation.body);
    const auto later = almanac::Sky(passage.instant + halfHour).place(observation.body);
    passage.bodyNorthward = 60 * (later.declination - earlier.declination).value();
    passage.shipNorthward = motion.speed.value() * cos(motion.course);
    const double eastward =
        motion.speed.value() * sin(motion.course) / (60 * cos(passage.ship.latitude));
    passage.turning = WithinHalfTurn(later.gha - earlier.gha).value() + eastward;
    return passage;
}

/// Seconds by which the altitude is greatest, or least, after the passage.
double delayOf(const Passage& passage)
{
    const double speed = 15 / passage.turning * (15 / passage.turning);
    if (passage.isUpper)
        return speed * GreatestAltitudeDelay(passage.ship.latitude, passage.declination,
                                             passage.bodyNorthward, passage.shipNorthward);
    return -15.28 * speed * (tan(passage.ship.latitude) + tan(passage.declination)) *
           (passage.bodyNorthward + passage.shipNorthward);
}

Degrees altitudeAt(const Passage& passage)
{
    return PlaceAboveHorizon(passage.isUpper ? Degrees(0) : halfTurn, passage.declination,
                             {passage.ship.latitude, {}})
        .altitude;
}

void showPassage(const Passage& passage, const SightTexts& sight, MeridianResult& result)
{
    result.caption = passage.isUpper ? "Upper passage" : "Lower passage";
    result.noon = Format(passage.instant, "yyyy/mm/dd hh:mm:ss") + " UTC";
    if (sight.SMT)
        result.noon +=
            ", " + Format(passage.instant + readNumber(sight.TD) / 24, "MM/dd hh:mm:ss") + " SMT";
    if (altitudeAt(passage) < Degrees(0)) {
        result.greatest = "below the horizon";
        return;
    }
    const double delay = delayOf(passage);
    result.greatest = std::string(passage.isUpper ? "greatest" : "least") + " altitude " +
                      Format(std::fabs(delay), "0") + " s " + (delay < 0 ? "earlier" : "later");
}

bool isPolaris(almanac::Body body)
{
    static const auto polaris = almanac::findBody("Polaris");
    return body == polaris;
}

void latitudeOfBody(const Observation& observation, const Position& ship, MeridianResult& result)
{
    const std::string name = sentenceOf(almanac::bodyInSentence(observation.body));
    const Degrees declination = DegMinToDeg(*observation.declination);
    const Degrees Ho = DegMinToDeg(observation.corrections->Ho);
    const Degrees hourAngle = WithinHalfTurn(DegMinToDeg(*observation.GHA) + ship.longitude);
    const auto reduced = ReducedToMeridian(declination, Ho, hourAngle, ship.latitude);
    if (!reduced) {
        result.note =
            "No latitude: " + name + " stands so high nowhere on the meridian of the DR position";
        return;
    }
    if (isPolaris(observation.body)) {
        const auto seen = PlaceAboveHorizon(DegMinToDeg(*observation.GHA), declination, ship);
        result.latitude = latitudeText(reduced->latitude);
        result.note = "By Polaris, at hour angle " + Format(hourAngle, "0.0°") + ", bearing " +
                      courseText(seen.azimuth, "000.0");
        return;
    }
    result.exMeridian = exMeridianText(*reduced);
    result.note = name + " " + Format(std::fabs(reduced->minutes), "0.0") + " min " +
                  (reduced->minutes < 0 ? "before" : "after") + " the " +
                  (reduced->isUpper ? "upper" : "lower") + " meridian at the sight";
    if (!reduced->isWithinLimit()) {
        result.note += ": no latitude";
        return;
    }
    result.latitude = latitudeText(reduced->latitude);
    const auto both = LatitudesByAltitude(declination, Ho, hourAngle);
    if (!reduced->isUpper || !isSideInDoubt(*both, ship.latitude)) return;
    result.latitude =
        latitudeText(both->bodyToTheSouth) + " or " + latitudeText(both->bodyToTheNorth);
    result.note += "; first with it to the south, then to the north";
}

} // namespace

std::string exMeridianText(const ExMeridian& reduced)
{
    const std::string limit = Format(reduced.limit, "0") + " min";
    if (!reduced.isWithinLimit())
        return "Ex-meridian: none, " + Format(std::fabs(reduced.minutes), "0.0") +
               " min is beyond " + limit;
    return "Ex-meridian " + latitudeText(reduced.latitude) + ", reduced by " +
           Format(fabs(reduced.reduction), "0.0'") + ", limit " + limit + "; 1' of longitude is " +
           Format(reduced.ofLongitude, "0.0#'") + " of latitude";
}

void passageOfBody(const SightTexts& sight, const Observation& observation, const Track& track,
                   const Position& ship, MeridianResult& result)
{
    if (!observation.place) return;
    if (track.motion) {
        const Degrees hourAngle = WithinHalfTurn(observation.place->gha + ship.longitude);
        const bool isNearUpper = fabs(hourAngle) <= quarterTurn;
        Passage passage = passageNear(observation, ship, *track.motion, isNearUpper);
        if (!isNearUpper && altitudeAt(passage) < Degrees(0))
            passage = passageNear(observation, ship, *track.motion, true);
        showPassage(passage, sight, result);
    }
    if (observation.corrections) latitudeOfBody(observation.takenAt(ship), ship, result);
}

} // namespace korvel
