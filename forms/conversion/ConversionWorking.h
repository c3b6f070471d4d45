// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/conversion/CalculateConversion.h"

namespace korvel
{

/// The working of a conversion: factors with what defines them, and every unit's figure.
/// @param boxes what all boxes show
Working conversionWorking(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text,
                          const std::vector<std::string>& boxes);

/// The unit that was typed in, and all others.
PaperFigure convertedFrom(NavFunc113::Quantity quantity, std::size_t typed, std::string_view text);
std::vector<PaperFigure> convertedInto(NavFunc113::Quantity quantity, std::size_t typed,
                                       const std::vector<std::string>& boxes);

} // namespace korvel
