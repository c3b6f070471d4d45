// SPDX-License-Identifier: MIT
#include "tests/golden/Golden.h"
#include "tests/SourceFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <charconv>
#include <fstream>
#include <ostream>
#include <stdexcept>

namespace korvel::testing
{

struct Golden::Table {
    std::string file;
    std::vector<std::string> columns;
};

namespace
{

std::string trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

char escaped(char letter)
{
    switch (letter) {
    case 'r':
        return '\r';
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'b':
        return '\b';
    case '0':
        return '\0';
    default:
        return letter;
    }
}

std::vector<std::string> cellsOf(const std::string& line)
{
    std::vector<std::string> cells;
    for (std::size_t pos = 0; pos <= line.size(); ++pos) {
        pos = std::min(line.find_first_not_of(" \t", pos), line.size());
        std::string cell;
        if (pos < line.size() && line[pos] == '"') cell = quotedText(line, ++pos);
        const std::size_t comma = std::min(line.find(',', pos), line.size());
        const std::string rest = trimmed(line.substr(pos, comma - pos));
        if (!cell.empty() && !rest.empty()) throw std::runtime_error("text after a quoted cell");
        cells.push_back(cell + rest);
        pos = comma;
    }
    return cells;
}

template <typename Number>
bool isRead(const std::string& text, Number& value)
{
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    return fault == std::errc() && end == text.data() + text.size();
}

} // namespace

std::string quotedText(const std::string& line, std::size_t& pos)
{
    std::string text;
    for (; pos < line.size() && line[pos] != '"'; ++pos)
        text += line[pos] == '\\' && pos + 1 < line.size() ? escaped(line[++pos]) : line[pos];
    if (pos == line.size()) throw std::runtime_error("a quote is not closed");
    ++pos;
    return text;
}

Golden::Golden(std::shared_ptr<const Table> table, int line, std::vector<std::string> cells)
    : m_table(std::move(table)), m_line(line), m_cells(std::move(cells))
{
}

void Golden::fail(std::string_view column, const char* why) const
{
    throw std::runtime_error(m_table->file + ":" + std::to_string(m_line) + ": column " +
                             std::string(column) + " " + why);
}

const std::string& Golden::text(std::string_view column) const
{
    const auto& columns = m_table->columns;
    const auto found = std::find(columns.begin(), columns.end(), column);
    if (found == columns.end()) fail(column, "is not there");
    return m_cells[static_cast<std::size_t>(found - columns.begin())];
}

double Golden::number(std::string_view column) const
{
    double value = 0;
    if (!isRead(text(column), value)) fail(column, "holds no number");
    return value;
}

std::int64_t Golden::integer(std::string_view column) const
{
    std::int64_t value = 0;
    if (!isRead(text(column), value)) fail(column, "holds no integer");
    return value;
}

bool Golden::tick(std::string_view column) const
{
    const std::string& cell = text(column);
    if (cell != "yes" && cell != "no") fail(column, "is neither yes nor no");
    return cell == "yes";
}

std::vector<GoldenPair> Golden::pairs(std::string_view column) const
{
    std::vector<GoldenPair> all;
    const std::string& cell = text(column);
    for (std::size_t at = 0; at < cell.size();) {
        const std::size_t end = std::min(cell.find("; ", at), cell.size());
        const std::string pair = cell.substr(at, end - at);
        const std::size_t sign = pair.find_first_of("=~!");
        if (sign == std::string::npos)
            all.push_back({pair, '=', ""});
        else
            all.push_back({pair.substr(0, sign), pair[sign], pair.substr(sign + 1)});
        at = end + 2;
    }
    return all;
}

NavFunc113::Earth Golden::earth() const
{
    const std::string& cell = text("earth");
    if (cell != "sphere" && cell != "spheroid") fail("earth", "is neither sphere nor spheroid");
    return cell == "sphere" ? NavFunc113::Earth::Sphere : NavFunc113::Earth::Spheroid;
}

std::ostream& operator<<(std::ostream& stream, const Golden& row)
{
    return stream << row.m_table->file << ":" << row.m_line << ": " << row.m_cells.front();
}

std::vector<Golden> golden(const std::string& name)
{
    auto table = std::make_shared<Golden::Table>();
    table->file = "tests/golden/" + name + ".csv";
    std::ifstream file(sourceFile(table->file));
    std::vector<Golden> rows;
    bool sourceNamed = false;
    int number = 0;
    const auto check = [&](bool good, const char* fault) {
        if (!good)
            throw std::runtime_error(table->file + ":" + std::to_string(number) + ": " + fault);
    };
    for (std::string line; std::getline(file, line);) {
        ++number;
        line = trimmed(line);
        if (line.starts_with('#')) sourceNamed |= line.find("source:") != std::string::npos;
        if (line.empty() || line.starts_with('#')) continue;
        std::vector<std::string> cells = cellsOf(line);
        if (table->columns.empty()) {
            table->columns = std::move(cells);
            continue;
        }
        check(cells.size() == table->columns.size(), "not one cell for each column");
        rows.emplace_back(table, number, std::move(cells));
    }
    check(sourceNamed, "no comment names the source of the figures");
    check(!rows.empty(), "there is no case");
    return rows;
}

void expectTexts(const Golden& row, std::string_view column,
                 const std::map<std::string, std::string>& texts)
{
    using namespace ::testing;
    for (const GoldenPair& pair : row.pairs(column)) {
        const auto found = texts.find(pair.name);
        if (found == texts.end()) {
            ADD_FAILURE() << row << ": nothing is called " << pair.name;
            continue;
        }
        Matcher<std::string> expected = pair.text;
        if (pair.sign == '~') expected = HasSubstr(pair.text);
        if (pair.sign == '!') expected = Not(HasSubstr(pair.text));
        EXPECT_THAT(found->second, expected) << row << ": " << pair.name;
    }
}

} // namespace korvel::testing
