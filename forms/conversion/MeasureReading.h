// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/ship/unit_tables.h"

#include <optional>
#include <string>
#include <string_view>

namespace korvel
{

/// What is typed into the box of a unit.
struct MeasureReading {
    std::optional<double> value; ///< of the unit of the box
    bool isCompound = false;     ///< it names its units itself: "6 ft 3 in"
    bool isWhole = true;         ///< all of the text was read
    std::string fault;           ///< why there is no value, where it is not that no number is there
};

/// Reads a number; a sum of numbers with their units by symbol or name, of which only the first may
/// have a sign ("6 ft 3 in", "6'3\"", "3 cwt 2 qr": of 112 and 28 lb); in a box of hours, minutes
/// and seconds a time ("9:30:00", "9:30"). Of anything else the leading number is taken.
MeasureReading readMeasure(NavFunc113::Quantity quantity, const NavFunc113::Unit& unit,
                           std::string_view text);

/// "-9:30:00.5", to a tenth of a second.
std::string clockText(double hours);

/// A packed angle with its minutes to four decimals, never 60: "35.305".
std::string packedText(double packed);

} // namespace korvel
