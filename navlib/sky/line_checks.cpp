// SPDX-License-Identifier: MIT
#include "navlib/sky/line_checks.h"

#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace NavFunc113
{
namespace
{

/// What a round of sights is reckoned with.
struct Round {
    std::span<const Sight> sights;
    const Position& atFix;
    const Motion& motion;
    const ErrorModel& errors;
};

/// Lines that are left out, and the fix from the rest.
struct Omission {
    std::vector<std::size_t> left;
    Fix rest;
};

std::vector<Sight> without(std::span<const Sight> sights, const std::vector<std::size_t>& left)
{
    std::vector<Sight> rest;
    for (std::size_t i = 0; i < sights.size(); ++i)
        if (std::ranges::find(left, i) == left.end()) rest.push_back(sights[i]);
    return rest;
}

/// Variance, in the direction of an azimuth, of a fix with this matrix.
double varianceAlong(const NormalMatrix& matrix, Degrees azimuth)
{
    const double north = cos(azimuth), east = sin(azimuth);
    return Quotient(matrix.C * north * north - 2 * matrix.B * north * east + matrix.A * east * east,
                    matrix.determinant());
}

LineCheck checkAgainst(const Fix& rest, std::size_t index, const Round& round)
{
    const Sight& sight = round.sights[index];
    const LineOfPosition line = LineAt(sight, rest.position, round.motion);
    const double variance = LineVariance(round.errors, round.motion, sight, line.azimuth) +
                            varianceAlong(rest.matrix, line.azimuth);
    return {index, line.intercept, line.intercept.value() / std::sqrt(variance), rest};
}

bool isWorse(const LineCheck& a, const LineCheck& b)
{
    return std::fabs(a.ratio) > std::fabs(b.ratio);
}

/// How often good lines would disagree as much as these do; more than 1 counts as 1.
double chanceOf(const std::vector<LineCheck>& checks, std::size_t sights)
{
    if (checks.empty()) return 1;
    const double worst = std::ranges::min(checks, isWorse).ratio;
    const double chance = std::erfc(std::fabs(worst) / std::sqrt(2.0));
    // Three lines have one misclosure between them, not three.
    return chance * (sights == 3 ? 1.0 : static_cast<double>(checks.size()));
}

bool agree(double chance)
{
    return chance >= 0.05;
}

std::vector<LineCheck> checksOf(const Round& round)
{
    return CheckLines(round.sights, round.atFix, round.motion, round.errors);
}

void omit(const Round& round, std::vector<std::size_t> left, std::vector<Omission>& omissions)
{
    Fix rest =
        LeastSquaresFix(without(round.sights, left), round.atFix, round.motion, round.errors);
    if (rest.outcome == FixOutcome::Found) omissions.push_back({std::move(left), std::move(rest)});
}

/// What can be left out of the round, one line or two at a time, the best explanation first and
/// none that is worse than it beyond doubt.
std::vector<Omission> bestOmissions(const Round& round, int lines)
{
    constexpr double chiSquared = 3.84;
    std::vector<Omission> omissions;
    for (std::size_t i = 0; i < round.sights.size(); ++i) {
        if (lines == 1) omit(round, {i}, omissions);
        for (std::size_t j = 0; lines == 2 && j < i; ++j)
            omit(round, {j, i}, omissions);
    }
    const auto squares = [](const Omission& each) { return each.rest.weightedSquares; };
    std::ranges::stable_sort(omissions, {}, squares);
    const auto isWorse = [&](const Omission& each) {
        return squares(each) - squares(omissions.front()) >= chiSquared;
    };
    omissions.erase(std::ranges::find_if(omissions, isWorse), omissions.end());
    return omissions;
}

} // namespace

std::vector<LineCheck> CheckLines(std::span<const Sight> sights, const Position& atFix,
                                  const Motion& motion, const ErrorModel& errors)
{
    const Round round{sights, atFix, motion, errors};
    std::vector<LineCheck> checks;
    for (std::size_t i = 0; i < sights.size(); ++i) {
        const Fix rest = LeastSquaresFix(without(sights, {i}), atFix, motion, errors);
        if (rest.outcome == FixOutcome::Found) checks.push_back(checkAgainst(rest, i, round));
    }
    return checks;
}

Agreement AgreementOfLines(std::span<const Sight> sights, const Position& atFix,
                           const Motion& motion, const ErrorModel& errors)
{
    const Round round{sights, atFix, motion, errors};
    Agreement agreement;
    agreement.checks = checksOf(round);
    agreement.chance = chanceOf(agreement.checks, sights.size());
    agreement.agrees = agree(agreement.chance);
    if (agreement.agrees) return agreement;
    for (const int lines : {1, 2}) {
        if (sights.size() < static_cast<std::size_t>(lines) + 2) break;
        const std::vector<Omission> best = bestOmissions(round, lines);
        if (best.empty()) continue;
        const std::vector<Sight> rest = without(sights, best[0].left);
        if (!agree(chanceOf(checksOf({rest, atFix, motion, errors}), rest.size()))) continue;
        std::vector<LineCheck> checks;
        for (const Omission& each : best)
            for (std::size_t index : each.left)
                checks.push_back(checkAgainst(each.rest, index, round));
        std::ranges::stable_sort(checks, isWorse);
        if (best.size() == 1)
            agreement.out = std::move(checks);
        else if (lines == 1)
            agreement.suspects = std::move(checks);
        break;
    }
    return agreement;
}

} // namespace NavFunc113
