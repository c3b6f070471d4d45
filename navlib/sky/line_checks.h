// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/sky/sight_fix.h"

#include <cstddef>
#include <span>
#include <vector>

/// Whether the lines of a fix agree with each other as well as their sigmas say they should. Least
/// squares spread a blunder over all residuals; each line is therefore held against the fix from
/// the others.
///
/// Source: data snooping with known variances as in the adjustment of geodetic networks (Baarda,
/// A Testing Procedure for Use in Geodetic Networks).
namespace NavFunc113
{

/// A line against the fix from others.
struct LineCheck {
    std::size_t index{}; ///< in the sights
    Miles misfit;        ///< how far it passes from that fix; positive towards the body
    double ratio{};      ///< misfit in its standard deviations, that of the fix included
    Fix without;         ///< the fix from the others
};

/// The check of every line against all others, in the order of the sights. A line without which
/// there is no fix is not among them.
std::vector<LineCheck> CheckLines(std::span<const Sight> sights, const Position& atFix,
                                  const Motion& motion, const ErrorModel& errors);

struct Agreement {
    bool agrees = true;
    std::vector<LineCheck> checks;   ///< of every line against all others
    double chance = 1;               ///< of as much disagreement in good lines; below 0.05: none
    std::vector<LineCheck> out;      ///< one or two lines without which the rest agree, against
                                     ///< the fix from the rest; the worst first
    std::vector<LineCheck> suspects; ///< one of these is out and the lines cannot tell which; each
                                     ///< against the others. With neither, more than two are out,
                                     ///< or two that cannot be told
};

/// Whether lines agree: they do not when lines as good as their sigmas would disagree as much in
/// less than 5 of 100 rounds. Then one line is taken out, or two, so that the sum of squares of the
/// rest is the least; when leaving out other lines explains it as well (the difference stays below
/// the 95 per cent point of chi squared), as always with three, they are suspects.
/// @param sights  fewer than three always agree
Agreement AgreementOfLines(std::span<const Sight> sights, const Position& atFix,
                           const Motion& motion, const ErrorModel& errors);

} // namespace NavFunc113
