// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/paper/SightTerms.h"
#include "forms/frmSunSight/paper/SightWorking.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

constexpr int sumDecimals = 8;
constexpr int tableDecimals = 6; // of sums and weights
constexpr int mileDecimals = 4;

/// A round of stars is referred to the DR position within it, every other fix to the last sight.
bool isOfLastSight(const SightFixResult& fix)
{
    return std::ranges::max(fix.lines, {}, &FixLine::UTC).UTC == *fix.UTC;
}

std::vector<std::string> fixMethod(const SightFixResult& fix)
{
    const std::string time = isOfLastSight(fix) ? "last" : "DR position";
    return {"Least squares of all sights that are on, at the time of the " + time +
                "; each is run from the fix to its own time with course " +
                figure(fix.motion.course, 1) + "° and speed " +
                Format(fix.motion.speed, "0.0####") +
                " kn made good, by middle latitude; repeated until it moves less than 0.01 miles",
            "σ² = σ0² + (k D cos(Zn - C))² + (D sin c sin(Zn - C))², D the run, σ0 = " +
                Format(fix.errors.sigma, "0.0#") +
                " miles, k = " + Format(fix.errors.runAlong, "0.0##") +
                ", c = " + Format(fix.errors.runCourse, "0.0#") + "°; weight w = 1 / σ²",
            "A = Σ w cos² Zn, B = Σ w cos Zn sin Zn, C = Σ w sin² Zn, D = Σ w p cos Zn, E = Σ w p "
            "sin Zn, G = A C - B²; north = (C D - B E) / G, east = (A E - B D) / G"};
}

/// The lines of the window: each from the DR position of its own time.
PaperTable linesTable(const SightFixResult& fix)
{
    PaperTable table{
        "Lines from the DR position of their times",
        {"UTC", "run h", "DR φ °", "DR λ °", "GHA °", "δ °", "Ho °", "Hc °", "Zn °", "p miles"},
        {}};
    for (const FixLine& line : fix.lines)
        table.rows.push_back({sightInstant(line.UTC), figure(line.sight.sinceFix, 4),
                              figure(line.DR.latitude, 5), figure(line.DR.longitude, 5),
                              figure(line.sight.GHA, 5), figure(line.sight.declination, 5),
                              figure(line.sight.observedAltitude, 5),
                              figure(line.line.computedAltitude, 5), figure(line.line.azimuth, 3),
                              figure(line.line.intercept, 3)});
    return table;
}

PaperTable passesTable(const Fix& solution)
{
    PaperTable table{"Passes of the least squares",
                     {"from φ °", "from λ °", "A", "B", "C", "D", "E", "north miles", "east miles"},
                     {}};
    for (const FixPass& pass : solution.steps)
        table.rows.push_back(
            {sightFigure(pass.from.latitude), sightFigure(pass.from.longitude),
             figure(pass.matrix.A, tableDecimals), figure(pass.matrix.B, tableDecimals),
             figure(pass.matrix.C, tableDecimals), figure(pass.D, 6), figure(pass.E, tableDecimals),
             figure(pass.north, mileDecimals), figure(pass.east, mileDecimals)});
    return table;
}

/// The lines of the last pass; behind them each against the fix from the others.
PaperTable residualsTable(const SightFixResult& fix)
{
    const Fix& solution = *fix.solution;
    PaperTable table{"Last pass: residual r = p - (north cos Zn + east sin Zn); misfit: how far "
                     "the line passes from the fix of all others, ratio: in its standard "
                     "deviations",
                     {"UTC", "p miles", "Zn °", "w", "r miles", "misfit miles", "ratio", ""},
                     {}};
    const auto isIn = [](const std::vector<LineCheck>& checks, std::size_t i) {
        return std::ranges::any_of(checks, [i](const LineCheck& each) { return each.index == i; });
    };
    for (std::size_t i = 0; i < solution.lines.size(); ++i) {
        const auto check = std::ranges::find_if(
            fix.agreement.checks, [i](const LineCheck& each) { return each.index == i; });
        const bool isChecked = check != fix.agreement.checks.end();
        table.rows.push_back(
            {sightInstant(fix.lines[i].UTC), figure(solution.lines[i].intercept, mileDecimals),
             figure(solution.lines[i].azimuth, 4), figure(solution.weights[i], tableDecimals),
             figure(solution.residuals[i], mileDecimals), isChecked ? figure(check->misfit, 3) : "",
             isChecked ? figure(check->ratio, 3) : "",
             isIn(fix.agreement.out, i)        ? "does not fit"
             : isIn(fix.agreement.suspects, i) ? "may be out"
                                               : ""});
    }
    return table;
}

void addPosition(Working& working, const SightFixResult& fix)
{
    const FixPass& last = fix.solution->steps.back();
    const NormalMatrix& m = last.matrix;
    const auto sum = [](double value) { return term(value, sumDecimals); };
    working.step("Determinant of the last pass", "G = A C - B²",
                 sum(m.A) + " × " + sum(m.C) + " - " + sum(m.B) + "²", figure(m.determinant(), 7));
    working.step("Latitude of the fix", "φ = from φ + north / 60",
                 sightTerm(last.from.latitude) + " + " + term(last.north, mileDecimals) + " / 60",
                 sightFigure(fix.solution->position.latitude), "°");
    working.step("Longitude of the fix", "λ = from λ + east / (60 cos from φ)",
                 sightTerm(last.from.longitude) + " + " + term(last.east, mileDecimals) +
                     " / (60 × cos " + sightTerm(last.from.latitude) + ")",
                 sightFigure(fix.solution->position.longitude), "°");
    working.resultStep("Latitude of the fix", "degrees and minutes of φ", fix.latitude);
    working.resultStep("Longitude of the fix", "degrees and minutes of λ", fix.longitude);
    const std::string of = isOfLastSight(fix) ? "last sight" : "DR position, within the round";
    working.resultStep("Time of the fix",
                       "that of the " + of +
                           ", with the time from the first sight to the last; a running fix "
                           "beyond 20 minutes",
                       fix.time);
}

void addAgreement(Working& working, const SightFixResult& fix)
{
    const Agreement& agreement = fix.agreement;
    if (agreement.checks.empty()) return;
    double worst = 0;
    for (const LineCheck& check : agreement.checks)
        worst = std::max(worst, std::fabs(check.ratio));
    const std::size_t lines = fix.solution->lines.size();
    const std::size_t counted = lines == 3 ? 1 : agreement.checks.size();
    working.step("Chance that good lines disagree as much",
                 "erfc(|greatest ratio| / √2) × lines, three lines counting as one; a chance is no "
                 "more than 1",
                 "min(1, erfc(" + figure(worst, 4) + " / √2) × " + std::to_string(counted) + ")",
                 figure(std::min(agreement.chance, 1.0), 4),
                 agreement.agrees ? "0.05 or more: they agree" : "below 0.05: they do not agree");
    if (!fix.withoutText.empty())
        working.resultStep("Left out",
                           "the least squares without the one or two lines whose omission "
                           "leaves the least Σ w r²",
                           fix.withoutText);
}

void addEllipse(Working& working, const SightFixResult& fix)
{
    const Fix& solution = *fix.solution;
    const std::size_t lines = solution.lines.size();
    if (lines >= 3)
        working.step("Scale by the residuals", "s = √(Σ w r² / (n - 2))",
                     "√(" + figure(solution.weightedSquares, sumDecimals) + " / (" +
                         std::to_string(lines) + " - 2))",
                     figure(MeasuredScale(solution), 5));
    working.resultStep("Sigma", "assumed σ0, and s σ0 by the residuals", fix.sigmaText);
    if (const auto& found = fix.fix->ellipse) {
        const auto& [mean, spread, factor, scale, major, minor, axis, north, east] = *found;
        const std::string ks = figure(factor, 4) + " × " + figure(scale, 5);
        const NormalMatrix& m = solution.matrix;
        const auto sum = [](double value) { return term(value, sumDecimals); };
        working.step("Mean of the eigenvalues", "m = (A + C) / 2",
                     "(" + sum(m.A) + " + " + sum(m.C) + ") / 2", figure(mean, sumDecimals));
        working.step("Half their difference", "q = √(((A - C) / 2)² + B²)",
                     "√(((" + sum(m.A) + " - " + sum(m.C) + ") / 2)² + " + sum(m.B) + "²)",
                     figure(spread, sumDecimals));
        working.step("Long half axis", "k s √((m + q) / G), k = 2.4477 for 95 % of assumed sigmas",
                     ks + " × √((" + figure(mean, sumDecimals) + " + " +
                         figure(spread, sumDecimals) + ") / " + figure(m.determinant(), 7) + ")",
                     figure(major, mileDecimals), "miles");
        working.step("Short half axis", "k s / √(m + q)",
                     ks + " / √(" + figure(mean + spread, sumDecimals) + ")",
                     figure(minor, mileDecimals), "miles");
        working.step("Bearing of the long axis", "90° + arctan(2 B / (A - C)) / 2, by quadrants",
                     "90° + arctan(2 × " + sum(m.B) + " / (" + sum(m.A) + " - " + sum(m.C) +
                         ")) / 2",
                     figure(axis, 3), "°");
        const std::string G = figure(m.determinant(), 7);
        working.step("Sigma north - south", "s √(C / G)",
                     figure(scale, 5) + " × √(" + sum(m.C) + " / " + G + ")",
                     figure(north, mileDecimals), "miles");
        working.step("Sigma east - west", "s √(A / G)",
                     figure(scale, 5) + " × √(" + sum(m.A) + " / " + G + ")",
                     figure(east, mileDecimals), "miles");
    }
    working.resultStep("Error ellipse", "95 % of fixes with such sights lie in it",
                       fix.ellipseText);
}

} // namespace

Working fixWorking(const SightFixResult& fix)
{
    Working working{"Fix", {}, {}};
    if (fix.solution) {
        working.method = fixMethod(fix);
        addPosition(working, fix);
        addAgreement(working, fix);
        addEllipse(working, fix);
    } else {
        working.whyNone = "No fix: two sights at least are needed, or the remarks say why.";
    }
    if (!fix.lines.empty()) working.tables.push_back(linesTable(fix));
    if (!fix.solution) return working;
    working.tables.push_back(passesTable(*fix.solution));
    working.tables.push_back(residualsTable(fix));
    return working;
}

} // namespace korvel
