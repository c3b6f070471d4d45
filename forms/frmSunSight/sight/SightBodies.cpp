// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/SightBodies.h"

#include "app/records/KeyedLines.h"
#include "forms/frmSunSight/sight/SightBody.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace korvel
{
namespace
{

constexpr std::string_view bodiesKind = "KORVEL2000 bodies of sights ";

/// Bodies by the sights that they belong to, of sights that read alike in their order.
using BodiesOfSights = std::map<std::string, std::vector<std::string>>;

BodiesOfSights bodiesOf(const SightList& list)
{
    BodiesOfSights bodies;
    for (const RecordedSight& sight : list.sights())
        bodies[SightList::textWithoutBody(sight.texts)].push_back(sight.texts.body);
    return bodies;
}

bool isOfSunAlone(const std::vector<std::string>& bodies)
{
    return std::ranges::all_of(bodies, [](const std::string& body) { return body.empty(); });
}

/// "body;sight"; no name has a semicolon. @return nothing for a body that is none
std::optional<std::pair<std::string, std::string>> pairOf(const std::string& value)
{
    const std::size_t sign = value.find(';');
    if (sign == std::string::npos) return std::nullopt;
    Remarks unheard;
    if (!readBody(value.substr(0, sign), unheard)) return std::nullopt;
    return std::pair(value.substr(sign + 1), bodyForRecord(value.substr(0, sign)));
}

} // namespace

std::string sightBodiesText(const SightSettings& settings)
{
    std::string text = std::string(bodiesKind) + "1\n";
    addKeyedLine(text, "entry", settings.sight.body);
    addKeyedLine(text, "series", settings.options.series ? "yes" : "");
    for (const auto& [sight, bodies] : bodiesOf(settings.list)) {
        if (isOfSunAlone(bodies)) continue;
        for (const std::string& body : bodies)
            addKeyedLine(text, "sight", (body.empty() ? "Sun" : body) + ";" + sight);
    }
    return text;
}

std::string takeSightBodies(std::string_view bytes, SightSettings& settings)
{
    if (!bytes.starts_with(bodiesKind)) return "line 1: these are no bodies of sights";
    BodiesOfSights bodies;
    std::string damage;
    int line = 0;
    for (const std::string_view each : recordLines(bytes)) {
        if (++line == 1 || each.empty()) continue;
        const std::size_t sign = each.find('=');
        const std::string_view key = each.substr(0, sign);
        const std::string value =
            sign == std::string_view::npos ? std::string() : unescapedLine(each.substr(sign + 1));
        if (key == "entry") settings.sight.body = value;
        if (key == "series") settings.options.series = value == "yes";
        if (key != "sight") continue; // others are of a later version
        if (const auto pair = pairOf(value))
            bodies[pair->first].push_back(pair->second);
        else if (damage.empty())
            damage = "line " + std::to_string(line);
    }
    for (std::size_t i = 0; i < settings.list.sights().size(); ++i) {
        auto& waiting = bodies[SightList::textWithoutBody(settings.list.sights()[i].texts)];
        if (waiting.empty()) continue;
        settings.list.setBody(i, waiting.front());
        waiting.erase(waiting.begin());
    }
    return damage;
}

} // namespace korvel
