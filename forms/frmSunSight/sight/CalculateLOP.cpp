// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/CalculateLOP.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmSunSight/sight/SightBody.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

std::string minutesText(double value)
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

using Applied = std::vector<std::pair<const char*, double>>;

Applied appliedToSun(const SightCorrections& sight)
{
    const AltitudeCorrectionTerms& terms = sight.terms;
    Applied applied = {
        {"Index error", -sight.indexError},
        {"Dip", terms.dip},
        {"Refraction", -terms.refraction},
        {"Semi-diameter", terms.semiDiameter},
        {"Semi-diameter of the month", terms.semiDiameterOfMonth},
        {"Parallax", terms.parallax},
        {"Air temperature", terms.temperature},
        {"Pressure", terms.pressure},
        {"Air - sea", terms.airSea},
    };
    if (sight.upperLimb != 0)
        applied.emplace_back("Upper limb: less the diameter", sight.upperLimb);
    return applied;
}

Applied appliedToOther(const SightCorrections& sight)
{
    const almanac::SextantTerms& terms = *sight.ofBody;
    Applied applied = {
        {"Index error", -sight.indexError},
        {"Dip", terms.dip},
        {"Air - sea", terms.airSea},
        {"Refraction", terms.refraction},
        {"Air temperature", terms.temperature},
        {"Pressure", terms.pressure},
    };
    if (terms.semiDiameter != 0) {
        applied.emplace_back(terms.semiDiameter < 0 ? "Semi-diameter, upper limb" : "Semi-diameter",
                             terms.semiDiameter);
        applied.emplace_back("Augmentation", terms.augmentation);
    }
    if (terms.parallax != 0) applied.emplace_back("Parallax", terms.parallax);
    if (terms.semiDiameter != 0) applied.emplace_back("Shape of the earth", terms.oblateness);
    return applied;
}

std::vector<WorksheetLine> worksheetOf(const SightCorrections& sight)
{
    const Applied applied = sight.ofBody ? appliedToOther(sight) : appliedToSun(sight);
    std::vector<WorksheetLine> lines = {{"Hs", angleText(sight.Hs)}};
    int sum = tenthsShown(sight.Hs);
    for (const auto& [caption, minutes] : applied) {
        lines.push_back({caption, minutesText(minutes)});
        sum += tenthsShown(minutes);
    }
    // Whoever adds up what is shown must come to what is shown.
    if (const int left = tenthsShown(sight.Ho) - sum; left != 0)
        lines.push_back({"Rounding of the above", minutesText(left / 10.0)});
    lines.push_back({"Ho", angleText(sight.Ho)});
    return lines;
}

void showTimes(const SightTexts& sight, DateTime UTC, LOPResult& result)
{
    result.UTC = Format(UTC, "yyyy/mm/dd hh:mm:ss") + " UTC";
    result.watchError = watchErrorText(sight);
    if (!sight.SMT) return;
    const Hours TD(readNumber(sight.TD));
    result.SMT = Format(UTC + DaysOfHours(TD), "yyyy/mm/dd hh:mm:ss") + " SMT, TD " +
                 Format(TD, "0.0hE;0.0hW");
}

void showLine(const Observation& observation, const Position& DR, LOPResult& result,
              Remarks& remarks)
{
    result.DR = positionText(DR);
    const HorizonPlace sun =
        PlaceAboveHorizon(DegMinToDeg(*observation.GHA), DegMinToDeg(*observation.declination), DR);
    const DegMin Hc = DegToDegMin(sun.altitude);
    result.Hc = angleText(Hc);
    const auto quotient = azimuthByQuotient(*observation.GHA, *observation.declination, DR);
    result.azimuth = quotient.value_or(sun.azimuth);
    result.figures.sun = sun;
    result.figures.isByQuotient = quotient.has_value();
    result.Zn = courseText(*result.azimuth, "000.0");
    result.doubt = doubtOf(observation, DR);
    if (!observation.isSun()) remarks.warn(result.doubt.remark());
    if (observation.isSun() && sun.altitude < Degrees(0))
        remarks.warn("The Sun is below the horizon of the DR position: check date, time and "
                     "position");
    if (!observation.corrections) return;
    const DegMin Ho = observation.corrections->Ho;
    result.intercept = interceptText(Ho, Hc);
    if (observation.isSun() && MilesOfArc(fabs(DegMinToDeg(Ho) - sun.altitude)) > Miles(60))
        remarks.warn("Intercept of more than 60 miles: check date, time, altitude and position");
}

/// Beside its box: what the body is, or what it may have been instead.
std::string bodyShown(almanac::Body body, const BodyDoubt& doubt)
{
    if (doubt.likely.empty()) return bodyFacts(body);
    return doubt.likely.substr(0, doubt.likely.find(" (")) + "?";
}

} // namespace

LOPResult CalculateLOP(const SightTexts& sight, const TrackTexts& trackTexts,
                       const SightContext& context)
{
    LOPResult result;
    Remarks remarks;
    Observation observation = readObservation(sight, remarks);
    const Track track = readTrack(trackTexts, std::max(context.lastSight, observation.UTC),
                                  sight.isBegun(), remarks);
    if (observation.UTC) {
        showTimes(sight, *observation.UTC, result);
        if (const auto ahead = aheadText(*observation.UTC, context.now); !ahead.empty())
            remarks.warn("The sight lies " + ahead + " in the future: check date, watch and TD");
    }
    const auto shipsTD = context.shipsTD;
    if (sight.SMT && sight.isBegun() && shipsTD && Hours(readNumber(sight.TD)) != *shipsTD)
        remarks.warn("TD is not the ship's, which is " + Format(*shipsTD, "0.##"));
    std::optional<Position> DR;
    if (observation.GHA && observation.declination) {
        result.GHA = angleText(*observation.GHA);
        result.declination = angleText(*observation.declination);
        DR = track.at(*observation.UTC);
        if (DR) observation = observation.takenAt(*DR);
    }
    if (observation.corrections) {
        result.worksheet = worksheetOf(*observation.corrections);
        result.Ho = angleText(observation.corrections->Ho);
    }
    if (DR)
        showLine(observation, *DR, result, remarks);
    else if (track.position && track.timeUsable && track.motion && observation.UTC &&
             (sight.body.empty() || observation.GHA))
        remarks.fault("DR position: the run from its time ends beyond latitude 89");
    result.body = bodyShown(observation.body, result.doubt);
    result.figures.observation = observation;
    result.figures.track = track;
    result.figures.DR = DR;
    result.notice = remarks.text();
    result.level = remarks.level();
    return result;
}

} // namespace korvel
