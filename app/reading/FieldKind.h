// SPDX-License-Identifier: MIT
#pragma once

namespace korvel
{

/// What is typed into a box, stands in a column or is kept at a place of a record.
enum class FieldKind {
    Text,      ///< words
    Figure,    ///< a number as somebody typed it
    Angle,     ///< packed degrees.minutes of no hemisphere
    Latitude,  ///< packed degrees.minutes, north positive
    Longitude, ///< packed degrees.minutes, east positive
    Moment,    ///< a date, a time of day or both
    Number,    ///< in records alone: digits without quotes
    Tick,      ///< in records alone: #TRUE# or #FALSE#
    Any,       ///< in records alone: whatever stands there
};

} // namespace korvel
