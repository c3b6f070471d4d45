// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/fix/SightSeries.h"

#include "app/reading/Format.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

/// Places of the shots of a series in the lines of a fix.
using Shots = std::vector<std::size_t>;

/// The sights are in the order of their times; those of other bodies may lie between.
std::vector<Shots> seriesOf(const std::vector<Observation>& observations,
                            const std::vector<FixLine>& lines)
{
    constexpr double longest = 15.0 / 1440 + 1e-9;
    std::vector<Shots> all;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto goesOn = [&](const Shots& shots) {
            const Observation& first = observations[shots.front()];
            return first.body == observations[i].body &&
                   first.corrections->limb == observations[i].corrections->limb &&
                   lines[i].UTC - lines[shots.front()].UTC <= longest;
        };
        const auto at = std::ranges::find_if(all, goesOn);
        if (at == all.end())
            all.push_back({i});
        else
            at->push_back(i);
    }
    return all;
}

double meanOf(const std::vector<double>& values)
{
    double sum = 0;
    for (const double value : values)
        sum += value;
    return sum / static_cast<double>(values.size());
}

/// Standard deviation of one. @pre two values at least
double deviationOf(const std::vector<double>& values)
{
    const double mean = meanOf(values);
    double squares = 0;
    for (const double value : values)
        squares += (value - mean) * (value - mean);
    return std::sqrt(squares / static_cast<double>(values.size() - 1));
}

/// A shot is wild when it lies three standard deviations off the others, which themselves are held
/// to scatter by 0.3' at least: three that agree by chance do not make the fourth a wild one.
bool isWild(const std::vector<double>& intercepts, std::size_t shot)
{
    constexpr std::size_t fewest = 4;
    constexpr double leastScatter = 0.3, farthest = 3;
    if (intercepts.size() < fewest) return false;
    std::vector<double> others = intercepts;
    others.erase(others.begin() + std::ptrdiff_t(shot));
    const double scatter = std::max(leastScatter, deviationOf(others)) *
                           std::sqrt(1 + 1 / static_cast<double>(others.size()));
    return std::fabs(intercepts[shot] - meanOf(others)) > farthest * scatter;
}

/// The place of the body at the mean of the times.
std::pair<Degrees, Degrees> placeAt(const Observation& first, DateTime UTC)
{
    if (first.isSun()) {
        const SunFigures sun = FiguresOfSun(UTC);
        return {DegMinToDeg(sun.GHA), DegMinToDeg(sun.declination)};
    }
    const almanac::Place place = almanac::Sky(UTC).place(first.body);
    return {place.gha, place.declination};
}

std::vector<double> interceptsOf(const Shots& shots, const std::vector<FixLine>& lines)
{
    std::vector<double> intercepts;
    for (const std::size_t shot : shots)
        intercepts.push_back(lines[shot].line.intercept.value());
    return intercepts;
}

SightSeries fitOf(const Shots& shots, const std::vector<FixLine>& lines, const ErrorModel& errors)
{
    const std::vector<double> intercepts = interceptsOf(shots, lines);
    const double mean = meanOf(intercepts);
    std::vector<double> times;
    for (const std::size_t shot : shots)
        times.push_back(lines[shot].UTC);
    SightSeries fit;
    fit.body = lines[shots.front()].body;
    fit.UTC = meanOf(times);
    fit.intercept = Miles(mean);
    fit.scatter = Miles(deviationOf(intercepts));
    fit.sigma = std::max(fit.scatter, errors.sigma) / std::sqrt(static_cast<double>(shots.size()));
    for (std::size_t i = 0; i < shots.size(); ++i)
        fit.shots.push_back({lines[shots[i]].index, lines[shots[i]].UTC,
                             Miles(intercepts[i] - mean), isWild(intercepts, i)});
    return fit;
}

/// The line of a series, from the DR position of its time.
FixLine lineOf(SightSeries& fit, const Observation& first, const Position& DR,
               const ErrorModel& errors, DateTime timeOfFix)
{
    const auto [GHA, declination] = placeAt(first, fit.UTC);
    const HorizonPlace body = PlaceAboveHorizon(GHA, declination, DR);
    FixLine line;
    line.index = fit.shots.front().index;
    line.UTC = fit.UTC;
    line.body = fit.body;
    line.shots = static_cast<int>(fit.shots.size());
    line.DR = DR;
    line.sight = {GHA, declination, body.altitude + ArcOfMiles(fit.intercept),
                  Hours((fit.UTC - timeOfFix) * 24), fit.sigma / errors.sigma};
    line.line = {fit.intercept, body.azimuth, body.altitude};
    line.Ho = fit.Ho = DegToDegMin(line.sight.observedAltitude);
    line.text = interceptText(line.Ho, DegToDegMin(body.altitude)) + "  Zn " +
                courseText(body.azimuth, "000.0");
    return line;
}

} // namespace

void fitSeries(const std::vector<Observation>& observations, const Track& track,
               const ErrorModel& errors, SightFixResult& result)
{
    std::vector<FixLine> lines;
    for (const Shots& shots : seriesOf(observations, result.lines)) {
        if (shots.size() < 2) {
            lines.push_back(result.lines[shots.front()]);
            continue;
        }
        SightSeries fit = fitOf(shots, result.lines, errors);
        const Position DR = track.at(fit.UTC).value(); // between those of its shots
        lines.push_back(lineOf(fit, observations[shots.front()], DR, errors, *result.UTC));
        result.series.push_back(fit);
    }
    result.lines = lines;
}

void warnOfWildShots(const SightFixResult& result, Remarks& remarks)
{
    for (const SightSeries& fit : result.series)
        for (const SeriesShot& shot : fit.shots) {
            if (!shot.isWild) continue;
            const double others = static_cast<double>(fit.shots.size() - 1);
            remarks.warn("The shot of " + (fit.body.empty() ? "" : fit.body + " ") +
                         Format(shot.UTC, "hh:mm:ss") + " lies " +
                         Format(fabs(shot.residual) * (1 + 1 / others), "0.0'") +
                         (shot.residual < Miles(0) ? " below" : " above") +
                         " the others of its series, which without it is " +
                         Format(fabs(shot.residual) / others, "0.0'") +
                         (shot.residual < Miles(0) ? " more" : " less"));
        }
}

std::string seriesText(const SightFixResult& result)
{
    std::string text;
    for (const SightSeries& fit : result.series) {
        if (!text.empty()) text += "; ";
        text += (fit.body.empty() ? "Sun" : fit.body) + ", " + std::to_string(fit.shots.size()) +
                " shots: " + Format(fit.UTC, "hh:mm:ss") + " UTC, Ho " + angleText(fit.Ho) +
                ", a shot scatters by " + Format(fit.scatter, "0.0#'") + ", sigma of the line " +
                Format(fit.sigma, "0.0#'");
    }
    return text;
}

} // namespace korvel
