// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/FieldKind.h"
#include "app/records/Value.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The delimited text of a settings file: one value a line, in a fixed order, no header.
namespace korvel
{

/// The text of a record: texts between double quotes, numbers as the shortest plain digits that
/// read back the same, #TRUE# and #FALSE#, an empty line for what was never set; CR LF after each.
/// A double quote inside a text becomes an apostrophe, a line end or tabulator a blank; other
/// control characters are left out, for a record that holds one cannot be read back.
std::string writeRecord(std::span<const Value> record);

/// What was found in a text that should be a record.
struct ReadRecord {
    Record record;                   ///< as many values as kinds, those not read never set
    std::vector<bool> wasRead;       ///< for each of them
    std::vector<std::string> damage; ///< in words; empty when the text is the record

    bool anythingRead() const;
    std::string damageText() const; ///< the first words of it, for a message
};

/// Reads a record of the given kinds, what is expected at each place, and what can be read of a
/// damaged one: a value that is of another kind, not closed or not UTF-8 is passed over and the
/// next one taken from the next line. A text that ends early, or goes on behind the last value, is
/// damaged too; when its values stand in each other's places, those that can be told are put right
/// and the others not read. LF alone ends a line, a comma parts two values on one line, empty lines
/// at the end are nothing. An empty item is accepted everywhere. What is typed (figures, positions,
/// moments) is a text too; what is usual there tells where the values of a record belong that has
/// lost a line.
/// @param text UTF-8, a leading byte-order mark is skipped
ReadRecord readRecord(std::string_view text, std::span<const FieldKind> kinds);

/// A text without control characters: line ends and tabulators become blanks, the others go.
/// @param text UTF-8
std::string withoutControls(std::string_view text);

} // namespace korvel
