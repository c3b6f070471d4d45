// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Remarks.h"
#include "forms/frmUKC/KeelModel.h"
#include "forms/frmUKC/KeelTide.h"

#include <array>
#include <optional>
#include <string>

/// Under-keel clearance, as the column that a company's form has.
namespace korvel
{

/// How far the charted depth is trusted; in the order of the list.
enum class Survey { Own, A1, A2, B, C };

struct UKCInput {
    std::array<std::string, 24> boxes; ///< as typed, in the order of UKCFields
    Water water = Water::Open;
    Survey survey = Survey::Own;

    TideBoxes tide() const;
};

/// Where the tide of the column comes from.
struct TideUsed {
    NavFunc113::Metres height;
    std::string from;                           ///< "as typed"
    std::optional<NavFunc113::Hours> time = {}; ///< of the first day; of a station's tide
};

/// The parts that are known, for workings; a part that cannot be used is missing.
struct KeelFigures {
    std::array<std::optional<double>, 24> typed; ///< of the fields
    std::optional<NavFunc113::Metres> draught;
    const char* deepest = ""; ///< "forward"
    double readIn = 1.025;    ///< t/m3
    double waterDensity = 1.025;
    std::optional<NavFunc113::Metres> density, list, heave;
    std::optional<double> block;
    std::optional<NavFunc113::Metres> meanDraught; ///< of a block coefficient that was worked out
    std::optional<NavFunc113::Metres> charted, uncertainty, minimum;
    std::optional<NavFunc113::Metres> squat, dynamic, clearance;
    std::optional<NavFunc113::Knots> speed;
    std::optional<TideUsed> tide;
    std::optional<KeelModel> model; ///< all of ship and water
    std::optional<NavFunc113::Metres> leastTide;
    std::optional<NavFunc113::Knots> greatestSpeed;
};

/// What the window shows; an empty text blanks the label.
struct UKCResult {
    std::string clearance; ///< metres
    std::string over;      ///< the minimum, signed
    std::string speed;     ///< greatest, knots
    std::string draught, squat, list, density, heave, dynamic;
    std::string charted, tide, uncertainty, depth;
    std::string minimum;
    std::string block;
    std::string leastTide;
    std::string deepest;  ///< where the draught is the deepest
    std::string formula;  ///< of the squat, and where it is the greatest
    std::string others;   ///< the squat by the other formulas
    std::string fromTide; ///< where the tide comes from
    std::array<std::string, TideWeek::mostDays> days;  ///< "Sun 2026/11/22"
    std::array<std::string, TideWeek::mostDays> hours; ///< "Sun 11/22   04:12 to 09:51"
    std::array<std::vector<HoursSpan>, TideWeek::mostDays> spans;
    std::string notice;
    NoticeLevel level = NoticeLevel::Remark;
    KeelFigures figures;

    bool isWhole() const { return figures.clearance.has_value(); }
};

/// @param week of the station in the boxes; empty where none is wanted
UKCResult CalculateUKC(const UKCInput& input, const TideWeek& week);

/// The formula of a squat, "Cb V² / 100", and the name of a choice of one, "open water: ..".
std::string squatFormula(Water water);
std::string squatName(Water water);

} // namespace korvel
