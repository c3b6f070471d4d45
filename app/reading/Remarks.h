// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korvel
{

/// What is to be said of a window's inputs: each a sentence without its full stop, as a rule with
/// the name of its box in front. A sentence that is there already, or empty, is not added.
struct Remarks {
    std::vector<std::string> faults;   ///< inputs that cannot be used: why a result is blank
    std::vector<std::string> warnings; ///< used, but the officer should know

    void fault(const std::string& sentence);
    void warn(const std::string& sentence);

    /// All of them in one line, faults first, parted by "; ".
    std::string text() const;
};

/// Sentences in one line, parted by "; "; empty ones are passed over.
std::string joined(const std::vector<std::string>& sentences);

/// A typed text as a remark quotes it: between double quotes, a long one cut off with "…".
std::string quotation(std::string_view typed);

} // namespace korvel
