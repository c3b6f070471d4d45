// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/fix/FixTexts.h"

#include "app/reading/Format.h"
#include "app/records/KORVEL2000Actions.h"
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

std::string axesText(const ErrorEllipse& ellipse)
{
    return Format(ellipse.semiMajor, "0.0") + " x " + Format(ellipse.semiMinor, "0.0") + " nm";
}

std::string ellipseText(const ErrorEllipse& ellipse)
{
    return "95 %: " + axesText(ellipse) + ", long axis " + Format(ellipse.majorAxis, "000") +
           " - " + Format(ellipse.majorAxis + halfTurn, "000") + "; sigma N-S " +
           Format(ellipse.sigmaNorth, "0.0") + " nm, E-W " + Format(ellipse.sigmaEast, "0.0") +
           " nm";
}

/// Body and time of day of a sight, with its date when it was not on the day of the fix.
std::string timeOf(const FixLine& line, const SightFixResult& result)
{
    const bool sameDay = std::floor(line.UTC) == std::floor(*result.UTC);
    return (line.body.empty() ? "" : line.body + " ") +
           Format(line.UTC, sameDay ? "hh:mm:ss" : "yyyy/mm/dd hh:mm:ss");
}

/// In the plot: its body, of a sight of the Sun its time.
std::string shortName(const FixLine& line)
{
    return line.body.empty() ? Format(line.UTC, "hhmm") : line.body;
}

/// "11:45:11 by 12.3 miles away".
std::string misfitText(const LineCheck& check, const SightFixResult& result)
{
    return timeOf(result.lines[check.index], result) + " by " + Format(fabs(check.misfit), "0.0") +
           " miles " + (check.misfit < Miles(0) ? "away" : "towards");
}

/// The fix without these sights, which the checks share.
void addWithout(const std::vector<LineCheck>& checks, const std::string& times,
                SightFixResult& result)
{
    const Fix& rest = checks.front().without;
    const ErrorEllipse ellipse = EllipseOf(rest.matrix, AssumedSigmaFactor());
    std::string label = "without";
    for (const LineCheck& check : checks)
        label += " " + shortName(result.lines[check.index]);
    result.without.push_back({rest.position, ellipse, label});
    result.withoutText += (result.withoutText.empty() ? "Without " : "; without ") + times + ": " +
                          positionText(rest.position) + ", 95 %: " + axesText(ellipse);
}

/// "2020/12/17 11:45:11 UTC", of several the first and how many more there are.
std::string firstOf(const std::vector<const FixLine*>& lines)
{
    const std::string first = Format(lines.front()->UTC, "yyyy/mm/dd hh:mm:ss") + " UTC";
    if (lines.size() == 1) return "The sight of " + first + " lies ";
    return "The sight of " + first + " and " + std::to_string(lines.size() - 1) + " more lie ";
}

} // namespace

void describeFix(const Fix& fix, SightFixResult& result)
{
    const DegMin latitude = DegToDegMin(fix.position.latitude);
    const DegMin longitude = DegToDegMin(fix.position.longitude);
    result.latitude = latitudeText(fix.position.latitude);
    result.longitude = longitudeText(fix.position.longitude);
    result.memoLatitude = memoText(latitude);
    result.memoLongitude = memoText(longitude);
    const auto earliest = std::ranges::min_element(result.lines, {}, &FixLine::UTC);
    // Twenty minutes: up to that nobody calls it a running fix.
    const double elapsed = *result.UTC - earliest->UTC;
    const std::string kind = NavFunc113::NearestSecond(elapsed) > 20.0 / 1440 ? "R FIX " : "FIX ";
    result.time = kind + Format(*result.UTC, "yyyy/mm/dd hh:mm:ss") + " UTC, run " +
                  Format(elapsed, "d-hh:mm:ss");
    result.fix = FixPoint{fix.position, std::nullopt, kind + Format(*result.UTC, "hhmm")};
    for (std::size_t i = 0; i < result.lines.size(); ++i)
        result.lines[i].text += "  residual " + Format(fix.residuals[i], "+0.0;-0.0") + " nm";
}

void describeEllipse(const Fix& fix, const ErrorModel& errors, const SightFixOptions& options,
                     bool agrees, SightFixResult& result)
{
    const int lines = static_cast<int>(fix.residuals.size());
    const bool canMeasure = lines >= 3;
    const double scale = canMeasure ? MeasuredScale(fix) : 1;
    const bool scaled = options.measured && canMeasure;
    if (scaled)
        result.fix->ellipse = EllipseOf(fix.matrix, MeasuredSigmaFactor(lines), scale);
    else if (agrees)
        result.fix->ellipse = EllipseOf(fix.matrix, AssumedSigmaFactor());
    result.ellipseText = result.fix->ellipse ? ellipseText(*result.fix->ellipse)
                                             : "No ellipse: the lines do not agree with each other";
    const std::string assumed = Format(errors.sigma, "0.0#") + " nm";
    const std::string fromResiduals = Format(scale * errors.sigma, "0.0#") + " nm";
    if (scaled)
        result.sigmaText = "Sigma measured from the residuals of " + std::to_string(lines) +
                           " lines: " + fromResiduals + " (assumed was " + assumed + ")";
    else
        result.sigmaText = "Sigma assumed, not measured: " + assumed + " a line" +
                           (canMeasure ? "; the residuals say " + fromResiduals
                                       : "; two lines cannot tell how good they are");
    if (options.measured && !canMeasure)
        result.sigmaText += "; three lines at least are needed to measure it";
}

void describeAgreement(const Agreement& agreement, SightFixResult& result, Remarks& remarks)
{
    std::string out, which;
    for (const LineCheck& check : agreement.out) {
        out += (out.empty() ? "" : " and ") + timeOf(result.lines[check.index], result);
        remarks.warn("The sight of " + misfitText(check, result) + " does not fit the others (" +
                     Format(std::fabs(check.ratio), "0.0") + " standard deviations)");
        // In the place of its residual: the list has room for one of them.
        std::string& line = result.lines[check.index].text;
        line.erase(std::min(line.find("  residual"), line.size()));
        line += "  does not fit: " + Format(check.misfit, "+0.0;-0.0") + " nm";
    }
    if (!agreement.out.empty()) addWithout(agreement.out, out, result);
    for (const LineCheck& check : agreement.suspects) {
        which += (which.empty() ? "" : ", or ") + misfitText(check, result);
        addWithout({check}, timeOf(result.lines[check.index], result), result);
    }
    if (!which.empty())
        remarks.warn("The lines do not agree, and they cannot tell which sight is out: " + which);
    else if (!agreement.agrees && out.empty())
        remarks.warn("The lines do not agree: more than one sight is out");
}

void warnOfTimes(std::optional<DateTime> now, const SightFixResult& result, Remarks& remarks)
{
    std::vector<const FixLine*> ahead, old;
    for (const FixLine& line : result.lines) {
        if (!aheadText(line.UTC, now).empty()) ahead.push_back(&line);
        if (line.UTC < *result.UTC - 1) old.push_back(&line);
    }
    if (!ahead.empty())
        remarks.warn(firstOf(ahead) + aheadText(ahead.front()->UTC, now) +
                     " in the future: check the date");
    if (!old.empty())
        remarks.warn(firstOf(old) + spanText(Hours((*result.UTC - old.front()->UTC) * 24)) +
                     " before the fix: check the date");
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
        remarks.warn("Small cut angle of " + Format(cut, "0") +
                     " degrees: the fix is weak along the lines");
    const Degrees north = fix.position.latitude - result.DR->latitude;
    const Degrees east =
        WithinHalfTurn(fix.position.longitude - result.DR->longitude) * cos(fix.position.latitude);
    const Miles fromDR = MilesOfArc(Degrees(std::hypot(north.value(), east.value())));
    if (fromDR > Miles(40))
        remarks.warn("The fix is " + Format(fromDR, "0") + " miles from the DR position");
}

} // namespace korvel
