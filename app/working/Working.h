// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <string>
#include <vector>

/// How a figure came about, so that it can be followed by hand a year later.
namespace korvel
{

/// One step of a calculation.
struct WorkingStep {
    std::string name;    ///< "Meridional parts of the departure"
    std::string formula; ///< in the field's usual notation, "M1 = 7915.7 log tan(45° + φ1/2)"
    std::string figures; ///< the right side with its figures put in; empty when nothing is
    std::string value;   ///< of the last step of a result the text that the window shows
    std::string unit;
};

/// A long list: its heading is repeated on every page.
struct PaperTable {
    std::string title;
    std::vector<std::string> headings; ///< with units
    std::vector<std::vector<std::string>> rows;
};

/// The working of one calculation, in the order in which it was calculated.
struct Working {
    std::string title;
    std::vector<std::string> method; ///< method and constants, a sentence each
    std::vector<WorkingStep> steps;
    std::vector<PaperTable> tables = {}; ///< steps that are the same for many rows
    std::string whyNone = {};            ///< why there is no result, when there is none

    void step(std::string name, std::string formula, std::string figures, std::string value,
              std::string unit = {});
    /// A latitude or longitude turned into decimal degrees.
    /// @param symbol "φ1"
    void angleStep(const std::string& name, const std::string& symbol, NavFunc113::DegMin angle);
    /// The figures of such a step, "-(35 + 39.3 / 60)".
    static std::string angleFigures(NavFunc113::DegMin angle);
    /// The shown text of a result, with what it was rounded from.
    void resultStep(const std::string& name, const std::string& from, const std::string& shown,
                    std::string unit = {});
};

/// A number with that many decimals, "-122.50000".
std::string figure(double value, int decimals);
template <typename Unit>
std::string figure(NavFunc113::Measure<Unit> value, int decimals)
{
    return figure(value.value(), decimals);
}

/// A direction in degrees: what rounds to 360 is 0.
std::string directionFigure(NavFunc113::Degrees direction, int decimals);

/// The same as a term of a formula: a negative one stands in brackets.
template <typename Number>
std::string term(Number value, int decimals)
{
    const std::string digits = figure(value, decimals);
    return digits.starts_with('-') ? '(' + digits + ')' : digits;
}

/// The same of an angle in degrees: "(-97.9333°)". The sign of degrees stands within the brackets,
/// where a line does not end between the digits.
template <typename Number>
std::string angleTerm(Number degrees, int decimals)
{
    const std::string digits = figure(degrees, decimals) + "°";
    return digits.starts_with('-') ? '(' + digits + ')' : digits;
}

} // namespace korvel
