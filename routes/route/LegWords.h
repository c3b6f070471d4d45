// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"
#include "routes/route/Route.h"

#include <optional>
#include <string>
#include <string_view>

namespace korvel
{

/// The kind of a leg in words, as lists have it.
struct LegWords {
    LegKind kind = LegKind::Rhumb;
    NavFunc113::Degrees limit; ///< of a composite leg; north positive
    CircleStep step;
};

/// "rhumb", "great circle", "great circle 10 deg", "composite -44.5 300 nm": the limit in decimal
/// degrees, north positive, then the step between the points.
std::string legWords(LegKind kind, const CircleStep& step, NavFunc113::DegMin limit);

/// Reads that, and the usual short names: RL, loxodrome, GC, orthodrome. Capitals do not matter.
/// @return nothing for anything else, and for a limit that is none
std::optional<LegWords> readLegWords(std::string_view text);

} // namespace korvel
