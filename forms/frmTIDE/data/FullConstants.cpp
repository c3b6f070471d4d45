// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/data/FullConstants.h"

#include "app/reading/Reading.h"
#include "forms/frmTIDE/stations/StationList.h"
#include "tidedata/astronomy.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace korvel
{
namespace
{

struct Entry {
    double zone{};
    double meanLevel{};
    std::vector<tidedata::HarmonicConstant> constants;
};

// "place, zone, mean level, M2 0.4490 284.6, ..", with tabs between.
std::optional<Entry> entryIn(std::string_view line)
{
    const auto count = static_cast<std::size_t>(std::ranges::count(line, '\t')) + 1;
    const std::vector<std::string> columns = columnsOf(line, count);
    if (count < 8) return std::nullopt;
    Entry entry{readNumber(columns[1]), readNumber(columns[2]), {}};
    for (std::size_t i = 3; i < count; ++i) {
        const std::size_t first = columns[i].find(' ');
        const std::size_t second = columns[i].find(' ', first + 1);
        if (second == std::string::npos) return std::nullopt;
        const std::string amplitude = columns[i].substr(first + 1, second - first - 1);
        const std::string lag = columns[i].substr(second + 1);
        if (!isNumeric(amplitude) || !isNumeric(lag)) return std::nullopt;
        entry.constants.push_back(
            {columns[i].substr(0, first), readNumber(amplitude), readNumber(lag)});
    }
    return entry;
}

// As close as the decimals of a station file allow.
bool isSameRecord(const Entry& entry, const TideStation& station)
{
    if (std::fabs(entry.zone - station.zone.value()) > 0.051 ||
        std::fabs(entry.meanLevel - station.meanLevel) > 0.0051)
        return false;
    constexpr std::string_view carriers[] = {"M2", "S2", "K1", "O1"};
    for (std::size_t j = 0; j < station.constituents.size(); ++j) {
        const auto constant =
            std::ranges::find(entry.constants, carriers[j], &tidedata::HarmonicConstant::name);
        if (constant == entry.constants.end()) return false;
        const double kappa =
            constant->greenwichLag + tidedata::constituentOf(carriers[j]).speed * entry.zone;
        const double turn = std::remainder(kappa - station.constituents[j].phase.value(), 360);
        if (std::fabs(turn) > 0.051 ||
            std::fabs(constant->amplitude - station.constituents[j].amplitude) > 0.00051)
            return false;
    }
    return true;
}

} // namespace

FullConstants::FullConstants(FileStore& files) : m_list(files.read("constituents.txt").bytes) {}

std::optional<tidedata::AllConstituents> FullConstants::of(std::string_view place,
                                                           const TideStation& station) const
{
    const std::optional<Entry> entry = entryIn(lineOf(place));
    if (!entry || !isSameRecord(*entry, station)) return std::nullopt;
    try {
        return tidedata::AllConstituents(entry->constants, station.zone, entry->meanLevel);
    } catch (const std::out_of_range&) {
        return std::nullopt; // a constituent of a later list
    }
}

std::string_view FullConstants::lineOf(std::string_view place) const
{
    for (const std::string_view line : linesOf(m_list))
        if (line.substr(0, line.find('\t')) == place) return line;
    return {};
}

} // namespace korvel
