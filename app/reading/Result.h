// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
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
    /// Where the text stands in the source. An empty text blanks the label; an optional one that is
    /// not there leaves the label as it was.
    using Text = std::variant<std::string Source::*, std::optional<std::string> Source::*,
                              const std::string& (*)(const Source&)>;

    const char* name;    ///< of the label: "lblCDDR(0)"
    const char* caption; ///< beside the label
    const char* unit;    ///< behind the label and of the paper's figure; empty: the text says it
    Weight weight;
    Text text;
    const char* words = nullptr; ///< for assistive tools and papers, where the caption is too short

    const char* inWords() const { return words ? words : caption; }
    /// @return nullptr where the label stays as it was
    const std::string* textIn(const Source& source) const { return textOf(text, source); }

    static const std::string* textOf(const Text& text, const Source& source)
    {
        return std::visit(
            [&](auto from) -> const std::string* {
                const auto& found = std::invoke(from, source);
                if constexpr (std::is_same_v<decltype(found), const std::string&>)
                    return &found;
                else
                    return found ? &*found : nullptr;
            },
            text);
    }
};

} // namespace korvel
