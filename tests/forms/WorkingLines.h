// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"

#include <string>
#include <vector>

namespace korvel::testing
{

/// The steps of a working as somebody reads them: "Miles: 345.0 + 12.5 = 357.5 nautical miles".
inline std::vector<std::string> linesOf(const Working& working)
{
    std::vector<std::string> lines;
    for (const WorkingStep& step : working.steps)
        lines.push_back(step.name + ": " + (step.figures.empty() ? step.formula : step.figures) +
                        " = " + step.value + (step.unit.empty() ? "" : " " + step.unit));
    return lines;
}

} // namespace korvel::testing
