// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <variant>

namespace korvel
{

/// How much a result matters to whoever asked.
enum class Weight {
    Answer, ///< what the calculation is for
    Figure, ///< what comes with it
    Remark, ///< words about it
};

template <typename Member>
struct MemberOf;
template <typename Source, typename Text>
struct MemberOf<Text Source::*> {
    using Class = Source;
};

/// A text that stands in an array of the source: `textAt<&WindResult::lblWind, 0>`.
template <auto Array, std::size_t Index>
const std::string& textAt(const typename MemberOf<decltype(Array)>::Class& source)
{
    return (source.*Array)[Index];
}

/// A result of a calculation, declared once in the window's table, beside the fields. Label,
/// blanking, text, accessible name, row of the paper and copy come from it.
template <typename Source>
struct Result {
    using Text = std::variant<std::string Source::*, const std::string& (*)(const Source&)>;

    const char* name;    ///< of the label: "lblCDDR(0)"
    const char* caption; ///< beside the label
    const char* unit;    ///< behind the label and of the paper's figure; empty: the text says it
    Weight weight;
    Text text;                   ///< an empty text blanks the label
    const char* words = nullptr; ///< for assistive tools and papers, where the caption is too short

    const char* inWords() const { return words ? words : caption; }
    const std::string& textIn(const Source& source) const
    {
        return std::visit(
            [&](auto from) -> const std::string& { return std::invoke(from, source); }, text);
    }
};

} // namespace korvel
