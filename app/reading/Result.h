// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace korvel
{

/// How much a result matters to whoever asked.
enum class Weight {
    Answer, ///< what the calculation is for
    Figure, ///< what comes with it
    Remark, ///< words about it
};

/// A result of a calculation, declared once in the window's table, beside the fields. Label,
/// blanking, text, accessible name, row of the paper and copy come from it.
template <typename Source>
struct Result {
    const char* name;    ///< of the label: "lblCDDR(0)"
    const char* caption; ///< beside the label
    const char* unit;    ///< behind the label and of the paper's figure; empty: the text says it
    Weight weight;
    std::string Source::*text;   ///< an empty text blanks the label
    const char* words = nullptr; ///< for assistive tools and papers, where the caption is too short

    const char* inWords() const { return words ? words : caption; }
};

} // namespace korvel
