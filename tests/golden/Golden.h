// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/sailing/sailing.h"

#include <cstdint>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace korvel::testing
{

/// "latitude=35.30" or "notice~no number": what a cell says of a name.
struct GoldenPair {
    std::string name;
    char sign = '='; ///< '=' the whole text, '~' a part of it, '!' no part of it
    std::string text;
};

/// A row of a table of cases. Cells are asked for by the name of their column; a cell that is not
/// there or not what it is taken for throws std::runtime_error with file and line.
class Golden
{
public:
    struct Table;

    Golden(std::shared_ptr<const Table> table, int line, std::vector<std::string> cells);

    const std::string& text(std::string_view column) const;
    double number(std::string_view column) const;
    std::int64_t integer(std::string_view column) const;
    /// "yes" or "no".
    bool tick(std::string_view column) const;
    NavFunc113::DegMin degMin(std::string_view column) const
    {
        return NavFunc113::DegMin(number(column));
    }
    NavFunc113::Degrees degrees(std::string_view column) const
    {
        return NavFunc113::Degrees(number(column));
    }
    NavFunc113::Miles miles(std::string_view column) const
    {
        return NavFunc113::Miles(number(column));
    }
    NavFunc113::Knots knots(std::string_view column) const
    {
        return NavFunc113::Knots(number(column));
    }
    NavFunc113::Hours hours(std::string_view column) const
    {
        return NavFunc113::Hours(number(column));
    }
    /// "volume=10000; density=870.0; metric": a name alone has an empty text.
    std::vector<GoldenPair> pairs(std::string_view column) const;
    /// Column "earth": "sphere" or "spheroid".
    NavFunc113::Earth earth() const;

    /// True when the cell holds anything; cells that a case has no figure for stay empty.
    bool has(std::string_view column) const { return !text(column).empty(); }

    /// "tests/golden/dr_latitude.csv:4: sign lost across the equator": what a failed case prints.
    friend std::ostream& operator<<(std::ostream& stream, const Golden& row);

private:
    [[noreturn]] void fail(std::string_view column, const char* why) const;

    std::shared_ptr<const Table> m_table;
    int m_line;
    std::vector<std::string> m_cells;
};

/// Reads a quoted text with its escapes \r \n \t \b \0 \" \\.
/// @param pos stands behind the opening quote and ends behind the closing one
/// @throws std::runtime_error when the quote is not closed
std::string quotedText(const std::string& line, std::size_t& pos);

/// Reads tests/golden/<table>.csv. Lines that begin with # are comments, and one of them names the
/// source of the figures ("source: .."). The first other line names the columns; in the rest, one
/// case a line, the first column says which fault the case would catch.
///
/// Cells are trimmed. A cell in double quotes keeps its blanks and commas and may hold \r \n \t \"
/// \\. @throws std::runtime_error when the file is missing, names no source or has no case
std::vector<Golden> golden(const std::string& table);

/// Expects of the texts by their names what the pairs of a column say of them. A name that is not
/// among the texts fails.
void expectTexts(const Golden& row, std::string_view column,
                 const std::map<std::string, std::string>& texts);

} // namespace korvel::testing
