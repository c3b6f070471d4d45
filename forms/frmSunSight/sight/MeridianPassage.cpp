// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/MeridianPassage.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmSunSight/sight/BodyMeridian.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"
#include "navlib/sky/ephemeris.h"
#include "navlib/sky/meridian_passage.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

/// Change of the Sun's declination, minutes of arc an hour to the north.
double sunNorthward(DateTime UTC, MeridianFigures& figures)
{
    constexpr double halfHour = 0.5 / 24;
    figures.declinationLater = DegMinToDeg(SunDeclination(UTC + halfHour));
    figures.declinationEarlier = DegMinToDeg(SunDeclination(UTC - halfHour));
    return 60 * (figures.declinationLater - figures.declinationEarlier).value();
}

std::string noonText(DateTime noon, const SightTexts& sight)
{
    std::string text = Format(noon, "yyyy/mm/dd hh:mm:ss") + " UTC";
    if (sight.SMT)
        text += ", " + Format(noon + readNumber(sight.TD) / 24, "MM/dd hh:mm:ss") + " SMT";
    return text;
}

std::string greatestText(DateTime noon, const Position& ship, const Motion& motion,
                         MeridianFigures& figures)
{
    figures.atNoon = ship;
    figures.declinationAtNoon = DegMinToDeg(SunDeclination(noon));
    figures.sunNorthward = sunNorthward(noon, figures);
    figures.motion = motion;
    figures.shipNorthward = motion.speed.value() * cos(motion.course);
    figures.delay = GreatestAltitudeDelay(ship.latitude, figures.declinationAtNoon,
                                          figures.sunNorthward, figures.shipNorthward);
    return "greatest altitude " + Format(std::fabs(figures.delay), "0") + " s " +
           (figures.delay < 0 ? "earlier" : "later");
}

std::string meridianNote(Degrees hourAngle, Miles reduction)
{
    const double minutes = hourAngle.value() * 4;
    std::string note = "Sun " + Format(std::fabs(minutes), "0.0") + " min " +
                       (minutes < 0 ? "before" : "after") + " the meridian at the sight";
    const std::string reduced = Format(fabs(reduction), "0.0'");
    if (reduced != "0.0'") note += ", latitude reduced by " + reduced;
    return note;
}

void latitudeBySight(const Observation& observation, const Position& ship, MeridianResult& result)
{
    const Degrees declination = DegMinToDeg(*observation.declination);
    const Degrees Ho = DegMinToDeg(observation.corrections->Ho);
    const Degrees hourAngle = WithinHalfTurn(DegMinToDeg(*observation.GHA) + ship.longitude);
    MeridianFigures& figures = result.figures;
    figures.Ho = Ho;
    figures.declination = declination;
    figures.GHA = DegMinToDeg(*observation.GHA);
    figures.longitude = ship.longitude;
    figures.hourAngle = hourAngle;
    const auto latitudes = LatitudesByAltitude(declination, Ho, hourAngle);
    if (!latitudes || !IsNearMeridian(hourAngle, Ho)) {
        // Further off than the window reduces by itself: the officer weighs what it is worth.
        if (const auto reduced = ReducedToMeridian(declination, Ho, hourAngle, ship.latitude);
            reduced && reduced->isUpper && reduced->isWithinLimit())
            result.exMeridian = exMeridianText(*reduced);
        result.note = "No latitude: the sight is not near the meridian, " +
                      Format(fabs(hourAngle).value() * 4, "0.0") + " min from it";
        return;
    }
    const bool isSouth = ship.latitude > latitudes->between;
    const Degrees reduced = isSouth ? latitudes->bodyToTheSouth : latitudes->bodyToTheNorth;
    result.latitude = latitudeText(reduced);
    figures.latitudes = latitudes;
    figures.isSouth = isSouth;
    figures.reduction = MilesOfArc(reduced - MeridianLatitude(declination, Ho, isSouth));
    result.note = meridianNote(hourAngle, figures.reduction);
    if (!isSideInDoubt(*latitudes, ship.latitude)) return;
    result.latitude =
        latitudeText(latitudes->bodyToTheSouth) + " or " + latitudeText(latitudes->bodyToTheNorth);
    result.note += "; first with the Sun to the south, then to the north";
}

} // namespace

/// A DR position is trusted as far as the plot reaches, forty miles each way: the other latitude is
/// possible too unless it lies further from it by more than that span.
bool isSideInDoubt(const MeridianLatitudes& latitudes, Degrees shipLatitude)
{
    const Degrees ofSouth = fabs(latitudes.bodyToTheSouth - shipLatitude);
    const Degrees ofNorth = fabs(latitudes.bodyToTheNorth - shipLatitude);
    return MilesOfArc(fabs(ofSouth - ofNorth)) < Miles(80);
}

MeridianResult CalculateMeridian(const SightTexts& sight, const TrackTexts& trackTexts,
                                 const SightContext& context)
{
    MeridianResult result;
    Remarks unheard; // CalculateLOP names them
    const Observation observation = readObservation(sight, unheard);
    const Track track =
        readTrack(trackTexts, std::max(context.lastSight, observation.UTC), true, unheard);
    if (!observation.UTC) return result;
    const auto ship = track.at(*observation.UTC);
    if (!ship) return result;
    try {
        if (!observation.isSun()) {
            passageOfBody(sight, observation, track, *ship, result);
            return result;
        }
        if (track.motion) {
            const DateTime noon =
                LocalApparentNoon(*observation.UTC, *ship, *track.motion, result.figures.steps);
            result.figures.noon = noon;
            const Position then =
                Advanced(*ship, *track.motion, Hours((noon - *observation.UTC) * 24));
            result.noon = noonText(noon, sight);
            result.greatest = greatestText(noon, then, *track.motion, result.figures);
        }
        if (observation.complete()) latitudeBySight(observation, *ship, result);
    } catch (const ArithmeticError& error) {
        result = {};
        result.note = std::string("Meridian passage: ") + error.what();
    } catch (const almanac::OutOfRange&) {
        // The passage lies beyond the last year of the almanac: none is shown.
    }
    return result;
}

} // namespace korvel
