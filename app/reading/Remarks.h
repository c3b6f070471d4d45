// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korvel
{

/// How grave it is what a window says, from the lightest.
enum class NoticeLevel {
    Done,   ///< something was carried out
    Remark, ///< the figures stand, but the officer should know
    Fault   ///< something could not be used or calculated, or not as it was typed
};

/// How grave a notice is beside results that are there, or are not because of it.
constexpr NoticeLevel levelBeside(bool hasResults)
{
    return hasResults ? NoticeLevel::Remark : NoticeLevel::Fault;
}

/// What is to be said of a window's inputs: each a sentence without its full stop, as a rule with
/// the name of its box in front. A sentence that is there already, or empty, is not added.
struct Remarks {
    std::vector<std::string> faults;   ///< inputs that cannot be used: why a result is blank
    std::vector<std::string> warnings; ///< used, but the officer should know

    void fault(const std::string& sentence);
    void warn(const std::string& sentence);

    /// How grave all of it is.
    NoticeLevel level() const { return faults.empty() ? NoticeLevel::Remark : NoticeLevel::Fault; }

    /// All of them in one line, faults first, parted by "; ".
    std::string text() const;
};

/// Sentences in one line, parted by "; "; empty ones are passed over.
std::string joined(const std::vector<std::string>& sentences);

/// A typed text as a remark quotes it: between double quotes, a long one cut off with "…".
std::string quotation(std::string_view typed);

} // namespace korvel
