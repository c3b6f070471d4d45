// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/CalculateLOP.h"

#include "app/Format.h"
#include "app/reading.h"
#include "navlib/angles.h"

#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

constexpr const char* angle = "0.-00'0";

std::string minutes(double value)
{
    return Format(value, "+0.0';-0.0'");
}

std::string watchErrorText(const SightTexts& sight)
{
    const double seconds = readNumber(sight.watchError);
    if (seconds == 0) return "no watch error";
    return "watch " + Format(std::fabs(seconds), "0.#") + " s " +
           (seconds > 0 ? "fast, taken off" : "slow, added");
}

std::vector<WorksheetLine> worksheetOf(const SightCorrections& sight)
{
    const AltitudeCorrectionTerms& terms = sight.terms;
    std::vector<WorksheetLine> lines = {
        {"Hs", Format(sight.Hs, angle)},
        {"Index error", minutes(-sight.indexError)},
        {"Dip", minutes(terms.dip)},
        {"Refraction", minutes(-terms.refraction)},
        {"Semi-diameter", minutes(terms.semiDiameter)},
        {"Semi-diameter of the month", minutes(terms.semiDiameterOfMonth)},
        {"Parallax", minutes(terms.parallax)},
        {"Air temperature", minutes(terms.temperature)},
        {"Pressure", minutes(terms.pressure)},
        {"Air - sea", minutes(terms.airSea)},
    };
    if (sight.upperLimb != 0)
        lines.push_back({"Upper limb: less the diameter", minutes(sight.upperLimb)});
    lines.push_back({"Ho", Format(sight.Ho, angle)});
    return lines;
}

DegMin withinCircle(DegMin GHA)
{
    const Degrees degrees = DegMinToDeg(GHA);
    return DegToDegMin(degrees < Degrees(0) ? degrees + fullTurn : degrees);
}

} // namespace

Degrees azimuthOfSun(DegMin GHA, DegMin declination, const Position& position)
{
    try {
        return ComputedAzimuth(GHA, declination, DegToDegMin(position.latitude),
                               DegToDegMin(position.longitude));
    } catch (const ArithmeticError&) {
        return PlaceAboveHorizon(DegMinToDeg(GHA), DegMinToDeg(declination), position).azimuth;
    }
}

std::string positionText(const Position& position)
{
    return Format(DegToDegMin(position.latitude), "00-.00'0N;00-.00'0S") + " " +
           Format(DegToDegMin(position.longitude), "000-.00'0E;000-.00'0W");
}

std::string interceptText(Miles intercept)
{
    return Format(fabs(intercept), "0'.0") + (intercept < Miles(0) ? " A" : " T");
}

LOPResult CalculateLOP(const SightTexts& sight, const TrackTexts& trackTexts)
{
    LOPResult result;
    Remarks remarks;
    const Observation observation = readObservation(sight, remarks);
    const Track track = readTrack(trackTexts, remarks);
    if (observation.UTC) {
        result.UTC = Format(*observation.UTC, "yyyy/mm/dd hh:mm:ss") + " UTC";
        result.watchError = watchErrorText(sight);
        if (sight.SMT) {
            const Hours TD(readNumber(sight.TD));
            result.SMT = Format(*observation.UTC + DaysOfHours(TD), "yyyy/mm/dd hh:mm:ss") +
                         " SMT, TD " + Format(TD, "0.0hE;0.0hW");
        }
    }
    if (observation.corrections) {
        result.worksheet = worksheetOf(*observation.corrections);
        result.Ho = Format(observation.corrections->Ho, angle);
    }
    std::optional<Position> DR;
    if (observation.GHA && observation.declination) {
        result.GHA = Format(withinCircle(*observation.GHA), angle);
        result.declination = Format(*observation.declination, angle);
        DR = track.at(*observation.UTC);
    }
    if (DR) {
        result.DR = positionText(*DR);
        const HorizonPlace sun = PlaceAboveHorizon(DegMinToDeg(*observation.GHA),
                                                   DegMinToDeg(*observation.declination), *DR);
        result.Hc = Format(DegToDegMin(sun.altitude), angle);
        const Degrees Zn = azimuthOfSun(*observation.GHA, *observation.declination, *DR);
        result.azimuth = Zn;
        result.Zn = courseText(Zn, "000.0");
        if (sun.altitude < Degrees(0))
            remarks.warnings.push_back("The Sun is below the horizon of the DR position: check "
                                       "date, time and position");
        if (observation.corrections) {
            const Miles intercept =
                Intercept(DegMinToDeg(observation.corrections->Ho), sun.altitude);
            result.intercept = interceptText(intercept);
            if (fabs(intercept) > Miles(60))
                remarks.warnings.push_back("Intercept of more than 60 miles: check date, time, "
                                           "altitude and position");
        }
    } else if (track.position && track.timeUsable && track.motion && observation.UTC) {
        remarks.faults.push_back("DR position: the run from its time ends beyond latitude 89");
    }
    result.notice = remarks.text();
    return result;
}

} // namespace korvel
