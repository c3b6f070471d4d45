// SPDX-License-Identifier: MIT
#include "app/records/PlannedSights.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "app/records/KeyedLines.h"

#include <array>
#include <optional>
#include <sstream>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;

constexpr std::string_view plannedKind = "KORVEL2000 planned sights ";
constexpr std::string_view sightKey = "sight";

std::string figureIn(Degrees angle)
{
    return Format(angle, "0.#####");
}

std::optional<Degrees> angleOf(const std::string& text, double low, double high)
{
    const auto value = readLeadingNumber(text);
    if (!value || *value < low || *value > high) return std::nullopt;
    return Degrees(*value);
}

/// "time;altitude;azimuth;body": the body last, whatever letters its name has.
std::optional<PlannedSight> plannedSightOf(const std::string& text)
{
    std::array<std::string, 3> heads;
    std::istringstream cells(text);
    for (std::string& head : heads)
        std::getline(cells, head, ';');
    std::string body;
    std::getline(cells, body);
    const auto utc = readIso(heads[0]);
    const auto altitude = angleOf(heads[1], 0, 90);
    const auto azimuth = angleOf(heads[2], 0, 360);
    if (!utc || !altitude || !azimuth || body.empty()) return std::nullopt;
    return PlannedSight{body, *utc, *altitude, *azimuth};
}

} // namespace

std::string plannedSightsText(const PlannedSights& sights)
{
    std::string text = std::string(plannedKind) + "1\n";
    std::size_t written = 0;
    for (const PlannedSight& sight : sights) {
        if (++written > mostPlannedSights) break;
        std::string line = isoText(sight.utc);
        line += ';';
        line += figureIn(sight.sextantAltitude);
        line += ';';
        line += figureIn(sight.azimuth);
        line += ';';
        line += sight.body;
        addKeyedLine(text, sightKey, line);
    }
    return text;
}

ReadPlannedSights readPlannedSights(std::string_view bytes)
{
    ReadPlannedSights read;
    read.damage = readListedLines(
        bytes, plannedKind, "planned sights", sightKey, [&](const std::string& line) {
            const auto sight = plannedSightOf(line);
            const bool isKept = sight && read.sights.size() < mostPlannedSights;
            if (isKept) read.sights.push_back(*sight);
            return isKept;
        });
    return read;
}

} // namespace korvel
