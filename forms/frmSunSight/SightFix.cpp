// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/SightFix.h"

#include "app/Format.h"
#include "app/KORVEL2000Actions.h"
#include "forms/frmSunSight/CalculateLOP.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

std::optional<ErrorModel> readErrors(const SightFixOptions& options, Remarks& remarks)
{
    const auto sigma = readBox("Sigma of a line", options.sigma, 0.1, 20, 1, remarks);
    const auto along = readBox("Error of the run", options.runAlong, 0, 100, 5, remarks);
    const auto course = readBox("Error of the course", options.runCourse, 0, 45, 2, remarks);
    if (!sigma || !along || !course) return std::nullopt;
    return ErrorModel{Miles(*sigma), *along / 100, Degrees(*course)};
}

/// The lines of all sights that are on, referred to the track.
void makeLines(const SightList& list, const Track& track, SightFixResult& result, Remarks& remarks)
{
    Remarks ofSights;
    for (std::size_t i = 0; i < list.sights().size(); ++i) {
        const RecordedSight& recorded = list.sights()[i];
        if (!recorded.on) continue;
        const Observation observation = readObservation(recorded.texts, ofSights);
        if (!observation.complete()) continue;
        result.UTC = std::max(result.UTC.value_or(*observation.UTC), *observation.UTC);
        // Where it stands to the fix is known when all have been looked at.
        result.lines.push_back({i, *observation.UTC, observation.sight(0), {}, {}, {}});
    }
    for (const std::string& warning : ofSights.warnings)
        if (std::find(remarks.warnings.begin(), remarks.warnings.end(), warning) ==
            remarks.warnings.end())
            remarks.warnings.push_back(warning);
    if (!result.UTC) {
        // The chart is laid out before the first sight.
        if (track.timeUsable) result.DR = track.position;
        return;
    }
    result.DR = track.at(*result.UTC);
    if (!result.DR) return;
    for (FixLine& line : result.lines) {
        line.sight.sinceFix = Hours((line.UTC - *result.UTC) * 24);
        line.DR = Advanced(*result.DR, result.motion, line.sight.sinceFix);
        line.line = LineAt(line.sight, *result.DR, result.motion);
        line.text = "Hc " + Format(DegToDegMin(line.line.computedAltitude), "0.-00'0") + "  " +
                    interceptText(line.line.intercept) + "  Zn " +
                    courseText(line.line.azimuth, "000.0");
    }
}

const char* whyNoFix(FixOutcome outcome)
{
    switch (outcome) {
    case FixOutcome::Found:
        return "";
    case FixOutcome::TooFewLines:
        return "No fix: two lines at least are needed";
    case FixOutcome::Parallel:
        return "No fix: the lines are parallel";
    case FixOutcome::NoConvergence:
        return "No fix: the lines do not meet near the DR position";
    }
    return "";
}

void describeEllipse(const Fix& fix, const ErrorModel& errors, bool measured,
                     SightFixResult& result)
{
    const int lines = static_cast<int>(fix.residuals.size());
    const bool canMeasure = lines >= 3;
    const double scale = canMeasure ? MeasuredScale(fix) : 1;
    const bool scaled = measured && canMeasure;
    result.ellipse = scaled ? EllipseOf(fix.matrix, MeasuredSigmaFactor(lines), scale)
                            : EllipseOf(fix.matrix, AssumedSigmaFactor());
    const ErrorEllipse& ellipse = result.ellipse;
    result.ellipseText =
        "95 %: " + Format(ellipse.semiMajor, "0.0") + " x " + Format(ellipse.semiMinor, "0.0") +
        " nm, long axis " + Format(ellipse.majorAxis, "000") + " - " +
        Format(ellipse.majorAxis + halfTurn, "000") + "; sigma N-S " +
        Format(ellipse.sigmaNorth, "0.0") + " nm, E-W " + Format(ellipse.sigmaEast, "0.0") + " nm";
    const std::string assumed = Format(errors.sigma, "0.0#") + " nm";
    const std::string fromResiduals = Format(scale * errors.sigma, "0.0#") + " nm";
    if (scaled)
        result.sigmaText = "Sigma measured from the residuals of " + std::to_string(lines) +
                           " lines: " + fromResiduals + " (assumed was " + assumed + ")";
    else
        result.sigmaText = "Sigma assumed, not measured: " + assumed + " a line" +
                           (canMeasure ? "; the residuals say " + fromResiduals
                                       : "; two lines cannot tell how good they are");
    if (measured && !canMeasure)
        result.sigmaText += "; three lines at least are needed to measure it";
}

void takeFix(const Fix& fix, SightFixResult& result)
{
    result.fix = fix.position;
    const DegMin latitude = DegToDegMin(fix.position.latitude);
    const DegMin longitude = DegToDegMin(fix.position.longitude);
    result.latitude = Format(latitude, "00-.00'0N;00-.00'0S");
    result.longitude = Format(longitude, "000-.00'0E;000-.00'0W");
    result.memoLatitude = memoText(latitude);
    result.memoLongitude = memoText(longitude);
    const auto earliest =
        std::min_element(result.lines.begin(), result.lines.end(),
                         [](const FixLine& a, const FixLine& b) { return a.UTC < b.UTC; });
    // Twenty minutes: below that nobody calls it a running fix.
    const double elapsed = *result.UTC - earliest->UTC;
    result.time = std::string(elapsed > 20.0 / 1440 ? "R FIX " : "FIX ") +
                  Format(*result.UTC, "yyyy/mm/dd hh:mm:ss") + " UTC, run " +
                  Format(elapsed, "d-hh:mm:ss");
    for (std::size_t i = 0; i < result.lines.size(); ++i)
        result.lines[i].text += "  residual " + Format(fix.residuals[i], "+0.0;-0.0") + " nm";
}

void warnOfGeometry(const Fix& fix, const SightFixResult& result, Remarks& remarks)
{
    std::vector<Degrees> azimuths;
    for (const FixLine& line : result.lines)
        azimuths.push_back(
            PlaceAboveHorizon(line.sight.GHA, line.sight.declination,
                              Advanced(fix.position, result.motion, line.sight.sinceFix))
                .azimuth);
    const Degrees cut = CutAngle(azimuths);
    if (cut < Degrees(30))
        remarks.warnings.push_back("Small cut angle of " + Format(cut, "0") +
                                   " degrees: the fix is weak along the lines");
    const Degrees north = fix.position.latitude - result.DR->latitude;
    const Degrees east =
        WithinHalfTurn(fix.position.longitude - result.DR->longitude) * cos(fix.position.latitude);
    const Miles fromDR = MilesOfArc(Degrees(std::hypot(north.value(), east.value())));
    if (fromDR > Miles(40))
        remarks.warnings.push_back("The fix is " + Format(fromDR, "0") +
                                   " miles from the DR position");
}

} // namespace

SightFixResult CalculateFix(const SightList& list, const TrackTexts& trackTexts,
                            const SightFixOptions& options)
{
    SightFixResult result;
    Remarks remarks, ofTrack; // CalculateLOP names the faults of the track
    const Track track = readTrack(trackTexts, ofTrack);
    result.motion = track.motion.value_or(Motion{});
    try {
        makeLines(list, track, result, remarks);
        const auto errors = readErrors(options, remarks);
        if (!result.lines.empty() && !(result.DR && track.motion))
            remarks.warnings.push_back("No fix: the DR position or its run cannot be used");
        else if (!result.lines.empty() && errors) {
            std::vector<Sight> sights;
            for (const FixLine& line : result.lines)
                sights.push_back(line.sight);
            const Fix fix = LeastSquaresFix(sights, *result.DR, result.motion, *errors);
            if (fix.outcome == FixOutcome::Found) {
                takeFix(fix, result);
                describeEllipse(fix, *errors, options.measured, result);
                warnOfGeometry(fix, result, remarks);
            } else {
                remarks.warnings.insert(remarks.warnings.begin(), whyNoFix(fix.outcome));
            }
        }
    } catch (const ArithmeticError& error) {
        result = {};
        remarks.faults.push_back(std::string("Fix: ") + error.what());
    }
    result.notice = remarks.text();
    return result;
}

} // namespace korvel
