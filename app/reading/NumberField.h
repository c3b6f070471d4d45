// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/FieldKind.h"
#include "app/reading/Remarks.h"
#include "navlib/units.h"

#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Reading the number in a box together with what the officer should be told about it. A number is
/// taken as far as it goes ("35,305" is 35): whoever is not told so sails on it.
namespace korvel
{

/// A number that a box takes, declared once for reading, limits and remarks.
struct NumberField {
    std::string_view name; ///< in front of its remarks: "Latitude of departure"
    double low = -HUGE_VAL;
    double high = HUGE_VAL;     ///< both limits belong to the range
    std::string_view unit = {}; ///< in words: "degrees", "knots"; empty for a bare number
    /// What else than a number it may have been meant as: an angle, a latitude, a longitude.
    FieldKind kind = FieldKind::Figure;
    std::optional<double> ifEmpty = 0; ///< what an empty box stands for; nothing: it must be filled
};

/// What a box says.
struct NumberReading {
    enum class Kind {
        Empty,      ///< value is what an empty box stands for
        HalfTyped,  ///< a sign or a point alone
        NoNumber,   ///< begins with something else
        OutOfRange, ///< a number beyond the field's limits, or too large for any
        Beginning,  ///< only its beginning is a number, and that is the value
        Whole
    };
    Kind kind;
    std::optional<double> value; ///< nothing when it cannot be used
    std::string remark;          ///< without the field's name; empty when there is nothing to say
    /// Of a beginning with a remark: what the whole text may have been meant as, each written so
    /// that it is read whole; several when it cannot be told which.
    std::vector<std::string> meant = {};
};

/// Reads a box: the leading number, as readNumber() does. The remark says at once when only the
/// beginning was read and how the rest can be written ("only 35 was read, write 35.305"), or why
/// there is no value ("not within -90 to 90 degrees").
NumberReading readField(std::string_view text, const NumberField& field);

/// The same, its remark added under the field's name: a fault without a value, a warning with one.
/// @return the value; nothing when the box cannot be used
std::optional<double> readField(std::string_view text, const NumberField& field, Remarks& remarks);

/// The same for a box that may stay empty: while it is empty or half typed it gives nothing and no
/// word.
std::optional<double> readIfTyped(std::string_view text, const NumberField& field,
                                  Remarks& remarks);

/// The same for a packed angle, whose minutes must be below 60: 35.75 gives a fault.
std::optional<NavFunc113::DegMin> readAngleIfTyped(std::string_view text, const NumberField& field,
                                                   Remarks& remarks);

} // namespace korvel
