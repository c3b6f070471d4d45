// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PassagePlan.h"

#include <string>
#include <string_view>

namespace korvel
{

/// The plan as the bytes of its own file: a first line that tells kind and version, then a line for
/// every box that holds something, "latitude=35.305", those of a row behind a line "row". Whatever
/// is typed or kept, quotes and line ends too, comes back as it was.
std::string planRecordText(const PassagePlan& plan);

/// What was found in a text that should be a plan's.
struct ReadPlanRecord {
    PassagePlan plan;   ///< as far as it could be read
    std::string damage; ///< line and what is wrong, the first of it; empty when the text is a plan
    bool isPlan = true; ///< false: the first line is not that of a plan, nothing was read
};

/// Reads that. Boxes that a later version may have are passed over without a word; a line that is
/// none, text that is not UTF-8 and rows beyond the most are named, and the rest is read.
ReadPlanRecord readPlanRecord(std::string_view text);

} // namespace korvel
