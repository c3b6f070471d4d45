// SPDX-License-Identifier: MIT
#include "tools/almanac/table_input.h"
#include "app/records/DelimitedText.h"

#include <algorithm>
#include <array>

namespace almanac
{
namespace
{

using korvel::DelimitedText;

/// @param line with its end
std::vector<std::string> cellsOf(const std::string& line)
{
    std::vector<std::string> cells;
    DelimitedText text(line);
    do {
        const DelimitedText::Item item = text.next();
        if (item.flaw != DelimitedText::Item::Flaw::None)
            throw RowFault("a quote is not closed, or text goes on behind it");
        cells.emplace_back(item.text);
    } while (text.lineGoesOn());
    return cells;
}

} // namespace

TableInput::TableInput(std::istream& stream, const std::vector<std::string_view>& columns)
    : m_stream(stream)
{
    const auto line = nextLine();
    if (!line) throw std::runtime_error("there is nothing: the first line names the columns");
    const std::string where = "line " + std::to_string(m_line) + ": ";
    std::vector<std::string> names;
    try {
        names = cellsOf(*line);
    } catch (const RowFault& fault) {
        throw std::runtime_error(where + fault.what());
    }
    for (const std::string_view column : columns) {
        const auto found = std::ranges::find(names, column);
        if (found == names.end())
            throw std::runtime_error(where + "there is no column " + std::string(column));
        m_positions.push_back(static_cast<std::size_t>(found - names.begin()));
    }
}

std::optional<std::string> TableInput::nextLine()
{
    std::array<char, longestLine + 1> buffer{};
    std::string line;
    do {
        ++m_line;
        m_stream.getline(buffer.data(), buffer.size());
        const auto count = static_cast<std::size_t>(m_stream.gcount());
        if (m_stream.bad()) throw std::runtime_error("the input cannot be read");
        if (count == 0) return std::nullopt;
        if (m_stream.fail())
            throw std::runtime_error("line " + std::to_string(m_line) + " has more than " +
                                     std::to_string(longestLine) + " letters: this is no table");
        // The line end is counted and not kept; the last line may be without.
        line.assign(buffer.data(), m_stream.eof() ? count : count - 1);
        if (line.find('\0') != std::string::npos)
            throw std::runtime_error("line " + std::to_string(m_line) + " is no text");
    } while (line.find_first_not_of(" \t\r") == std::string::npos);
    return line + '\n';
}

std::optional<std::vector<std::string>> TableInput::next()
{
    const auto line = nextLine();
    if (!line) return std::nullopt;
    const auto cells = cellsOf(*line);
    std::vector<std::string> wanted;
    for (const std::size_t position : m_positions) {
        if (position >= cells.size()) throw RowFault("there are too few cells");
        wanted.push_back(cells[position]);
    }
    return wanted;
}

std::string inQuotes(std::string_view text)
{
    constexpr std::size_t longest = 40;
    std::string shown(text.substr(0, longest));
    std::ranges::replace_if(
        shown, [](char letter) { return letter < ' ' || letter > '~'; }, '?');
    return "\"" + shown + (text.size() > longest ? "..\"" : "\"");
}

} // namespace almanac
