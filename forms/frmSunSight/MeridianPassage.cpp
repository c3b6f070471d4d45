// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/MeridianPassage.h"

#include "app/Format.h"
#include "app/reading.h"
#include "navlib/angles.h"
#include "navlib/ephemeris.h"

#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

/// Change of the Sun's declination, minutes of arc an hour to the north.
double sunNorthward(DateTime UTC)
{
    constexpr double halfHour = 0.5 / 24;
    const Degrees change =
        DegMinToDeg(SunDeclination(UTC + halfHour)) - DegMinToDeg(SunDeclination(UTC - halfHour));
    return 60 * change.value();
}

std::string noonText(DateTime noon, const SightTexts& sight)
{
    std::string text = Format(noon, "yyyy/mm/dd hh:mm:ss") + " UTC";
    if (sight.SMT)
        text += ", " + Format(noon + readNumber(sight.TD) / 24, "MM/dd hh:mm:ss") + " SMT";
    return text;
}

std::string greatestText(DateTime noon, const Position& ship, const Motion& motion)
{
    const double delay =
        GreatestAltitudeDelay(ship.latitude, DegMinToDeg(SunDeclination(noon)), sunNorthward(noon),
                              motion.speed.value() * cos(motion.course));
    return "greatest altitude " + Format(std::fabs(delay), "0") + " s " +
           (delay < 0 ? "earlier" : "later");
}

void latitudeBySight(const Observation& observation, const Position& ship, MeridianResult& result)
{
    const Degrees hourAngle = WithinHalfTurn(DegMinToDeg(*observation.GHA) + ship.longitude);
    const double minutes = hourAngle.value() * 4;
    if (std::fabs(minutes) > 20) {
        result.note = "No latitude: the sight is not near the meridian";
        return;
    }
    const Degrees declination = DegMinToDeg(*observation.declination);
    const Degrees latitude = MeridianLatitude(declination, DegMinToDeg(observation.corrections->Ho),
                                              ship.latitude > declination);
    result.latitude = Format(DegToDegMin(latitude), "00-.00'0N;00-.00'0S");
    result.note = "Sun " + Format(std::fabs(minutes), "0.0") + " min " +
                  (minutes < 0 ? "before" : "after") + " the meridian at the sight";
    if (std::fabs(minutes) > 1)
        result.note += ": not yet or no longer at its greatest, the latitude is out";
}

} // namespace

MeridianResult CalculateMeridian(const SightTexts& sight, const TrackTexts& trackTexts)
{
    MeridianResult result;
    Remarks unheard; // CalculateLOP names them
    const Observation observation = readObservation(sight, unheard);
    const Track track = readTrack(trackTexts, unheard);
    if (!observation.UTC) return result;
    const auto ship = track.at(*observation.UTC);
    if (!ship) return result;
    try {
        if (track.motion) {
            const DateTime noon = LocalApparentNoon(*observation.UTC, *ship, *track.motion);
            const Position then =
                Advanced(*ship, *track.motion, Hours((noon - *observation.UTC) * 24));
            result.noon = noonText(noon, sight);
            result.greatest = greatestText(noon, then, *track.motion);
        }
        if (observation.complete()) latitudeBySight(observation, *ship, result);
    } catch (const ArithmeticError& error) {
        result = {};
        result.note = std::string("Meridian passage: ") + error.what();
    }
    return result;
}

} // namespace korvel
