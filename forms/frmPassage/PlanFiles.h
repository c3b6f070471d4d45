// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanRoute.h"
#include "routes/files/RtzValues.h"
#include "routes/files/WrittenRoute.h"

namespace korvel
{

/// A plan from a file or from the clipboard, or why it was not taken.
struct OpenedPlan {
    PassagePlan plan;
    std::string fault;                ///< empty when it was taken
    std::vector<std::string> remarks; ///< what should be known of it
};

/// @param path in full, UTF-8
OpenedPlan openPlan(const std::string& path, const PlanConditions& conditions);

/// Rows as a spreadsheet gives them to the clipboard.
OpenedPlan rowsOfText(const std::string& text, const PlanConditions& conditions);

enum class PlanFormat { RTZ, RTZ1_0, RTZ1_2, GPX, CSV };

/// "rtz"
const char* endingOf(PlanFormat format);

/// The plan as the bytes of a file.
WrittenRoute writtenPlan(const PassagePlan& plan, const PlanReckoning& reckoning,
                         PlanFormat format);

} // namespace korvel
