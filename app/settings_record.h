// SPDX-License-Identifier: MIT
#pragma once

#include "app/Value.h"

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// The delimited text of a settings file: one value a line, in a fixed order, no header.
namespace korvel
{

/// What a window expects at a place of its record. An empty item is accepted everywhere.
enum class Kind { Text, Number, Tick, Any };

/// A text that is not the record it should be; what() says which value and why, in words.
class RecordError : public std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// The text of a record: texts between double quotes, numbers as the shortest plain digits that
/// read back the same, #TRUE# and #FALSE#, an empty line for what was never set; CR LF after each.
/// A double quote inside a text becomes an apostrophe, a line end a blank.
std::string writeRecord(std::span<const Value> record);

/// Reads a record of the given kinds. Values beyond them are ignored, LF alone ends a line too.
/// @param text UTF-8, a leading byte-order mark is skipped
/// @return as many values as kinds
/// @throws RecordError when values are missing, of another kind, not closed, or not UTF-8
Record readRecord(std::string_view text, std::span<const Kind> kinds);

} // namespace korvel
