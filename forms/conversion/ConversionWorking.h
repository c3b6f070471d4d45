// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/conversion/CalculateConversion.h"

namespace korvel
{

/// What was typed into a conversion window, and what all boxes show of it.
struct Converted {
    NavFunc113::Quantity quantity;
    std::size_t typed; ///< index of the box
    std::string text;
    NavFunc113::UnitConditions conditions = {};
    std::vector<std::string> boxes = {};
};

/// The working of a conversion: factors with what defines them, and every unit's figure.
Working conversionWorking(const Converted& converted);

/// The unit that was typed in, and all others.
PaperFigure convertedFrom(const Converted& converted);
std::vector<PaperFigure> convertedInto(const Converted& converted);

} // namespace korvel
