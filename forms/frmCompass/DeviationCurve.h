// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmCompass/CompassBook.h"
#include "navlib/sailing/deviation.h"

#include <optional>
#include <string>
#include <vector>

/// Deviation of a compass as the book has it: points by head, the curve through them, its card.
namespace korvel
{

/// Why lines before an instant do not count: a refit, a dry dock, a new adjustment.
using CountsSince = std::optional<Instant>;

using CountsSinceByCompass = std::array<CountsSince, compassCount>;

struct DeviationCurve {
    struct Point {
        std::size_t line; ///< of the book
        NavFunc113::DeviationPoint at;
        bool isBlunder = false;                      ///< left out of the curve
        std::optional<NavFunc113::Degrees> residual; ///< point less curve; nothing without a curve
    };
    std::vector<Point> points;
    std::optional<NavFunc113::DeviationFit> fit;
    std::array<std::string, 5> coefficients; ///< "A 0.5 E", "B 4.0 E" ..; empty without a curve
    std::string scatter;                     ///< of one line about the curve, "0.4°"
    std::string notice;                      ///< what was left out, what is missing
};

/// Curve of a magnetic compass from the lines that have its head and deviation. A line that
/// contradicts the others is named and left out.
DeviationCurve deviationCurve(const CompassBook& book, CompassKind kind, CountsSince since = {});

/// What is to be said when a line is recorded that lies too far from the curves of the lines
/// before it; empty when nothing is.
std::string doubtAbout(const CompassLine& line, const CompassBook& before,
                       const CountsSinceByCompass& since = {});

/// A deviation beside the curve of the book: "Curve 0.5 W on 082: fits"; how far off it is where it
/// lies beyond the tolerance; empty without a deviation and a head.
std::string besideCurve(const NavFunc113::DeviationFit& fit, const CompassReading& reading);

/// The lines that the curve is about, by head: head, deviation, deviation of the curve, what is
/// between them, UTC, and whether it was left out.
std::vector<std::array<std::string, 6>> curveLines(const DeviationCurve& curve,
                                                   const CompassBook& book);

/// The deviation card: by the compass's own head, every 15 degrees, and the magnetic head.
/// @return rows of head, deviation, magnetic head; none without a curve
std::vector<std::array<std::string, 3>> deviationCard(const DeviationCurve& curve);

} // namespace korvel
