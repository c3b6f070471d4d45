// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <array>
#include <optional>
#include <string>

namespace korvel
{

struct ETAInput {
    std::string departureDate;        ///< txtTime(0)
    std::string departureTime;        ///< txtTime(1)
    std::array<std::string, 2> txtTD; ///< at departure, at arrival
    std::string txtDist;
    std::string txtSpeed;
};

struct ETALabels { ///< an empty text blanks the label
    std::array<std::string, 5> lblSPD;
    std::array<std::string, 5> lblETA;
};

/// What the arrivals were calculated from.
struct Passage {
    NavFunc113::DateTime departure; ///< local
    std::array<double, 2> TD;       ///< hours, at departure and arrival
    double distance;                ///< nautical miles
    std::array<double, 5> hours;    ///< at the five speeds

    double TDChange() const { return TD[1] - TD[0]; } ///< hours
};

struct ETAResult {
    std::optional<ETALabels> labels;     ///< nothing: the labels stay as they were, shown dimmed
    std::string notice;                  ///< why they stay; empty when they do not
    std::optional<Passage> passage = {}; ///< nothing: there are no arrivals
};

/// Arrival times at the typed speed and the next four quarter knots. Input that cannot be used
/// keeps the labels, a speed of 0 blanks them.
ETAResult CalculateETA(const ETAInput& input);

} // namespace korvel
