// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korvel
{

/// A line of a list in its fields, blanks around them taken off.
struct DelimitedLine {
    int number{}; ///< of the line in the text, 1 for the first
    std::vector<std::string> fields;
    bool isClosed = true; ///< false: a double quote was never closed
};

/// What parts the fields of a list: tab, semicolon or comma, the first of them that stands in its
/// first line, quoted fields aside.
char separatorOf(std::string_view text);

/// The lines of a list that hold anything. A field between double quotes may hold separators, line
/// ends and quotes written twice.
/// @param most as many lines at most, so that an endless text ends
std::vector<DelimitedLine> delimitedLines(std::string_view text, char separator, std::size_t most);

} // namespace korvel
