// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/stations/StationList.h"

#include "app/reading/Reading.h"

#include <algorithm>

namespace korvel
{
namespace
{

std::optional<NavFunc113::Degrees> degreesIn(const std::string& column)
{
    if (!isNumeric(column)) return std::nullopt;
    return NavFunc113::Degrees(readNumber(column));
}

constexpr std::string_view estimated = "estimated";

} // namespace

std::vector<std::string> columnsOf(std::string_view line, std::size_t count)
{
    std::vector<std::string> columns;
    for (std::size_t start = 0; start <= line.size();) {
        const std::size_t end = std::min(line.find('\t', start), line.size());
        columns.emplace_back(line.substr(start, end - start));
        start = end + 1;
    }
    columns.resize(count);
    return columns;
}

std::vector<std::string_view> linesOf(std::string_view list)
{
    std::vector<std::string_view> lines;
    for (std::size_t start = 0; start < list.size();) {
        const std::size_t end = std::min(list.find('\n', start), list.size());
        std::string_view line = list.substr(start, end - start);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (!line.empty() && line.front() != '#') lines.push_back(line);
        start = end + 1;
    }
    return lines;
}

StationList::StationList(FileStore& files)
{
    const std::string list = files.read("stations.txt").bytes;
    for (const std::string_view line : linesOf(list)) {
        std::vector<std::string> c = columnsOf(line, 9);
        m_notes.push_back({c[0], c[1], c[2], c[3], c[4], degreesIn(c[5]), degreesIn(c[6]),
                           c[7] == estimated, c[8] == estimated});
    }
    const std::string errors = files.read("accuracy.txt").bytes;
    for (const std::string_view line : linesOf(errors)) {
        const std::vector<std::string> c = columnsOf(line, 6);
        m_errors.push_back({c[0],
                            {readNumber(c[1]), readNumber(c[2]), readNumber(c[3]), readNumber(c[4]),
                             readNumber(c[5])}});
    }
}

const StationNotes* StationList::notesOf(std::string_view place) const
{
    const auto found = std::ranges::find(m_notes, place, &StationNotes::place);
    return found == m_notes.end() ? nullptr : &*found;
}

std::optional<MethodError> StationList::errorOf(std::string_view place) const
{
    const auto found = std::ranges::find(m_errors, place, &Measured::place);
    if (found == m_errors.end()) return std::nullopt;
    return found->error;
}

} // namespace korvel
