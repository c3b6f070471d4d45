// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/fix/SightFix.h"

#include "app/reading/Format.h"
#include "forms/frmSunSight/fix/EqualAltitudeText.h"
#include "forms/frmSunSight/fix/FixTexts.h"
#include "forms/frmSunSight/fix/SightSeries.h"
#include "forms/frmSunSight/sight/SightFields.h"
#include "forms/frmSunSight/sight/SightInput.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

std::optional<ErrorModel> readErrors(const SightFixOptions& options, Remarks& remarks)
{
    const auto sigma = readBox(qualityFields[0], options.sigma, 1, remarks);
    const auto along = readBox(qualityFields[1], options.runAlong, 5, remarks);
    const auto course = readBox(qualityFields[2], options.runCourse, 2, remarks);
    if (!sigma || !along || !course) return std::nullopt;
    return ErrorModel{Miles(*sigma), *along / 100, Degrees(*course)};
}

/// The sights that are on, and the time of the last of them.
std::vector<Observation> takeSights(const SightList& list, SightFixResult& result, Remarks& remarks)
{
    std::vector<Observation> observations;
    for (std::size_t i = 0; i < list.sights().size(); ++i) {
        if (!list.sights()[i].on) continue;
        Remarks ofSight;
        const Observation observation = readObservation(list.sights()[i].texts, ofSight);
        if (!observation.complete()) continue;
        for (const std::string& warning : ofSight.warnings)
            remarks.warn("Sight of " + Format(*observation.UTC, "yyyy/mm/dd hh:mm:ss") +
                         " UTC: " + warning); // the paper looks for these words
        result.UTC = std::max(result.UTC.value_or(*observation.UTC), *observation.UTC);
        FixLine line;
        line.index = i;
        line.UTC = *observation.UTC;
        if (!observation.isSun()) line.body = almanac::entryOf(observation.body).name;
        result.lines.push_back(line);
        observations.push_back(observation);
    }
    return observations;
}

/// The lines of the sights, each from the DR position of its own time, as everywhere in the window.
bool makeLines(const std::vector<Observation>& observations, const Track& track,
               SightFixResult& result)
{
    result.DR = track.at(*result.UTC);
    if (!result.DR) return false;
    for (std::size_t i = 0; i < observations.size(); ++i) {
        FixLine& line = result.lines[i];
        const auto DR = track.at(line.UTC);
        if (!DR) return false;
        const Observation seen = observations[i].takenAt(*DR);
        line.DR = *DR;
        line.Ho = seen.corrections->Ho;
        line.sight = seen.sight(*result.UTC);
        line.line = LineAt(line.sight, line.DR, {});
        line.line.azimuth = azimuthOfSun(*seen.GHA, *seen.declination, line.DR);
        const DegMin Hc = DegToDegMin(line.line.computedAltitude);
        line.text = interceptText(seen.corrections->Ho, Hc) + "  Zn " +
                    courseText(line.line.azimuth, "000.0");
    }
    return true;
}

/// A round of stars is referred to the time of the DR position when that lies within the round, as
/// an officer plans it; every other fix to the last sight.
DateTime timeOfFix(const Track& track, const SightFixResult& result)
{
    const auto isOfOther = [](const FixLine& line) { return !line.body.empty(); };
    const DateTime last = *result.UTC;
    if (!track.UTC || std::ranges::none_of(result.lines, isOfOther)) return last;
    const DateTime first = std::ranges::min_element(result.lines, {}, &FixLine::UTC)->UTC;
    return *track.UTC > first && *track.UTC < last ? *track.UTC : last;
}

std::string whyNoFix(FixOutcome outcome)
{
    switch (outcome) {
    case FixOutcome::Found:
        return {};
    case FixOutcome::TooFewLines:
        return "No fix: two lines at least are needed";
    case FixOutcome::Parallel:
        return "No fix: the lines are parallel";
    case FixOutcome::NoConvergence:
        return "No fix: the lines do not meet near the DR position";
    }
    return {};
}

void takeFix(const ErrorModel& errors, const SightFixOptions& options, SightFixResult& result,
             Remarks& remarks)
{
    std::vector<Sight> sights;
    for (const FixLine& line : result.lines)
        sights.push_back(line.sight);
    const Fix fix = LeastSquaresFix(sights, *result.DR, result.motion, errors);
    if (fix.outcome != FixOutcome::Found) {
        remarks.fault(whyNoFix(fix.outcome));
        return;
    }
    const Agreement agreement = AgreementOfLines(sights, *result.DR, result.motion, errors);
    result.solution = fix;
    result.errors = errors;
    describeFix(fix, result);
    describeEllipse(fix, errors, options, agreement.agrees, result);
    describeAgreement(agreement, result, remarks);
    warnOfGeometry(fix, result, remarks);
    result.agreement = agreement;
}

} // namespace

SightFixResult CalculateFix(const SightList& list, const TrackTexts& trackTexts,
                            const SightFixOptions& options, std::optional<DateTime> now)
{
    SightFixResult result;
    Remarks remarks, ofTrack; // CalculateLOP names the faults of the track
    try {
        const std::vector<Observation> observations = takeSights(list, result, remarks);
        const Track track = readTrack(trackTexts, result.UTC, true, ofTrack);
        result.motion = track.motion.value_or(Motion{});
        if (result.UTC) result.UTC = timeOfFix(track, result);
        const auto errors = readErrors(options, remarks);
        if (!result.UTC) {
            // The chart is laid out before the first sight.
            if (track.timeUsable) result.DR = track.position;
        } else {
            warnOfTimes(now, result, remarks);
            if (track.motion && makeLines(observations, track, result)) {
                findEqualAltitudes(errors.value_or(ErrorModel{}), result);
                if (options.series && errors) fitSeries(observations, track, *errors, result);
                warnOfWildShots(result, remarks);
                result.seriesText = seriesText(result);
                if (errors) takeFix(*errors, options, result, remarks);
            } else {
                result.lines.clear();
                remarks.fault("No fix: the DR position or its run cannot be used");
            }
        }
    } catch (const ArithmeticError& error) {
        result = {};
        remarks.fault(std::string("Fix: ") + error.what());
    }
    result.notice = remarks.text();
    result.level = remarks.level();
    return result;
}

std::optional<ObservedFix> fixForRecord(const SightFixResult& fix)
{
    if (!fix.solution) return std::nullopt;
    const auto tenths = [](Degrees angle) {
        return DegToDegMin(Degrees(std::round(angle.value() * 600) / 600));
    };
    const bool isRunning = fix.time.starts_with("R FIX");
    std::string kind =
        (isRunning ? "Running fix, " : "Fix, ") + std::to_string(fix.lines.size()) + " lines: ";
    for (std::size_t i = 0; i < fix.lines.size(); ++i)
        kind += (i ? ", " : "") + (fix.lines[i].body.empty() ? "Sun" : fix.lines[i].body);
    return ObservedFix{tenths(fix.solution->position.latitude),
                       tenths(fix.solution->position.longitude), instantOf(NearestSecond(*fix.UTC)),
                       kind, fix.ellipseText};
}

TrackTexts trackFrom(const SightFixResult& fix, const TrackTexts& before)
{
    return {fix.memoLatitude, fix.memoLongitude, Format(*fix.UTC, "yyyy/mm/dd hh:mm:ss"),
            before.course, before.speed};
}

} // namespace korvel
