// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Instant.h"
#include "navlib/units.h"

#include <string>
#include <string_view>
#include <vector>

namespace korvel
{

/// A fix by observation as the position record takes it, with what its rows have no place for.
struct ObservedFix {
    NavFunc113::DegMin latitude;  ///< north positive, rounded to a tenth of a minute
    NavFunc113::DegMin longitude; ///< east positive, as rounded
    Instant utc;
    std::string kind;    ///< "Running fix, 3 lines: Sun, Sun, Moon"
    std::string ellipse; ///< "95 %: 2.0 x 1.5 nm, long axis 052 - 232"; empty where there is none

    bool operator==(const ObservedFix&) const = default;
};

using ObservedFixes = std::vector<ObservedFix>;

constexpr const char* observedFixesFile = "KV_PositionFixes.ini";
/// The newest that are kept; a record has 29 rows.
constexpr std::size_t mostObservedFixes = 100;

/// The bytes of the file: a first line that tells kind and version, then a line a fix.
std::string observedFixesText(const ObservedFixes& fixes);

struct ReadObservedFixes {
    ObservedFixes fixes; ///< what could be read
    std::string damage;  ///< what could not, in words; empty when all was
};
ReadObservedFixes readObservedFixes(std::string_view bytes);

/// Kind and ellipse in a sentence.
std::string observedFixText(const ObservedFix& fix);

} // namespace korvel
