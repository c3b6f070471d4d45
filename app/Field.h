// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace korvel
{

/// What is typed into a field.
enum class FieldKind {
    Text,      ///< words
    Moment,    ///< a date, a time of day or both
    Number,    ///< a number; calculates at every change
    KeyUp,     ///< a number; calculates when a key is released
    Latitude,  ///< packed degrees.minutes, north positive
    Longitude, ///< packed degrees.minutes, east positive
};

/// A field of a window, declared once in the window's table. The place in the table is the slot in
/// the window's record and the place in the Enter order; a latitude and the longitude that follows
/// it are one position.
struct Field {
    const char* name;    ///< of the control: "txtCDDR(0)"
    const char* caption; ///< beside the box, with its mnemonic
    /// For assistive tools: what it is, then after a comma how it is written, unit included.
    const char* accessibleName;
    FieldKind kind;
    const char* unit = ""; ///< behind the box
    double low = 0;        ///< least value that the calculations accept
    double high = 0;       ///< greatest value; not above low: there is no range
};

} // namespace korvel
