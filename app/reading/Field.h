// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/FieldKind.h"
#include "app/reading/Remarks.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace korvel
{

/// A field of a window, declared once in the window's table. The place in the table is the slot in
/// the window's record and the place in the Enter order; a latitude and the longitude that follows
/// it are one position.
struct Field {
    const char* name;    ///< of the control: "txtCDDR(0)"
    const char* caption; ///< beside the box, with its mnemonic
    const char* words;   ///< what it is, for assistive tools, remarks and papers
    const char* measure; ///< how it is written, for assistive tools: its unit in words
    FieldKind kind;
    const char* unit = "";  ///< behind the box, and of the limits
    double low = -HUGE_VAL; ///< the calculations accept low <= value <= high
    double high = HUGE_VAL;
    const char* note = "";     ///< behind the measure, for assistive tools: "north positive"
    bool onKeyRelease = false; ///< calculates when a key is released, not at every change
};

/// How a field is written, for assistive tools: measure and note.
std::string writingOf(const Field& field);

/// Reads a field that a calculation needs, as readField() of a NumberField does; remarks speak of
/// it by its words. That only the beginning of a position was read is
/// said beside its box already.
/// @return nothing when the field cannot be used
std::optional<double> readField(std::string_view text, const Field& field, Remarks& remarks);

/// The same for a field that may stay empty: while it is empty or half typed it gives nothing and
/// no word.
std::optional<double> readIfTyped(std::string_view text, const Field& field, Remarks& remarks);

/// Reads all fields of a calculation.
/// @return nothing when one of them cannot be used; the remarks name each that cannot
template <std::size_t N>
std::optional<std::array<double, N>> readFields(const std::array<std::string, N>& texts,
                                                std::span<const Field, N> fields, Remarks& remarks)
{
    std::array<double, N> values{};
    bool isWhole = true;
    for (std::size_t i = 0; i < N; ++i) {
        const auto value = readField(texts[i], fields[i], remarks);
        isWhole = isWhole && value;
        values[i] = value.value_or(0);
    }
    if (!isWhole) return std::nullopt;
    return values;
}

} // namespace korvel
