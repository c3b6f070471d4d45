// SPDX-License-Identifier: MIT
#pragma once

#include <istream>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace almanac
{

/// What is wrong with one line: the next may be right.
class RowFault : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Comma-separated values whose first line names the columns, read one line at a time, so that a
/// table of any length takes no more memory than a line.
class TableInput
{
public:
    static constexpr std::size_t longestLine = 4096;

    /// @param columns names of the columns wanted, in any order among others
    /// @throws std::runtime_error when one is missing or the text is none
    TableInput(std::istream& stream, const std::vector<std::string_view>& columns);

    /// Cells of the wanted columns in the order in which they were named; nothing at the end. Empty
    /// lines are passed over.
    /// @throws RowFault for a line with too few cells or a broken quote; std::runtime_error when
    ///         what comes is no text or the stream fails
    std::optional<std::vector<std::string>> next();

    int line() const { return m_line; } ///< of the row last read, 1 for the first

private:
    std::optional<std::string> nextLine();

    std::istream& m_stream;
    std::vector<std::size_t> m_positions;
    int m_line = 0;
};

/// A text for a message: short, and without what a terminal would obey.
std::string inQuotes(std::string_view text);

} // namespace almanac
