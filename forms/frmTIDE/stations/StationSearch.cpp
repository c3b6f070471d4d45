// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/stations/StationSearch.h"

#include "forms/frmTIDE/stations/Stations.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

char lowerCase(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// Letters and digits in lower case; every run of anything else is one blank.
std::string plainWords(std::string_view text)
{
    std::string plain;
    for (const char letter : text) {
        const char lower = lowerCase(letter);
        if (letter == '\'') continue;
        if ((lower >= 'a' && lower <= 'z') || (lower >= '0' && lower <= '9'))
            plain += lower;
        else if (!plain.empty() && plain.back() != ' ')
            plain += ' ';
    }
    if (plain.ends_with(' ')) plain.pop_back();
    return plain;
}

/// Names that officers write, where the menus have another.
struct OtherName {
    std::string_view name, place;
};
constexpr OtherName otherNames[] = {
    {"Wellington", "Welington"},
    {"Los Angeles Harbour", "Los Angels Harbour"},
    {"Newcastle", "New Castle"},
    {"Port Hedland", "Port Headland"},
    {"Yeosu", "Yosu"},
    {"Incheon", "Inchon"},
    {"Busan", "Pusan"},
    {"Mumbai", "Bombay"},
    {"Chennai", "Madras"},
    {"Kochi", "Cochin"},
    {"Gqeberha", "Port Elizabeth"},
    {"Saint Johns", "St Johns"},
    {"St John NB", "Saint John NB"},
    {"Muscat", "Mina al Fahal"},
};

enum class Match { Name, Word, Inside, None };

Match matchOf(const std::string& name, const std::string& letters)
{
    const std::size_t at = (" " + name).find(" " + letters);
    if (at == 0) return Match::Name;
    if (at != std::string::npos) return Match::Word;
    return name.find(letters) != std::string::npos ? Match::Inside : Match::None;
}

// By the haversine, which is as good at no distance at all as at the far side of the earth.
NavFunc113::Miles distanceBetween(NavFunc113::Degrees lat1, NavFunc113::Degrees long1,
                                  NavFunc113::Degrees lat2, NavFunc113::Degrees long2)
{
    const double northing = sin(0.5 * (lat2 - lat1));
    const double easting = sin(0.5 * (long2 - long1));
    const double haversine = northing * northing + cos(lat1) * cos(lat2) * easting * easting;
    const NavFunc113::Radians arc(2 * std::asin(std::sqrt(std::min(haversine, 1.0))));
    return NavFunc113::MilesOfArc(NavFunc113::RadToDeg(arc));
}

void addStations(std::vector<FoundStation>& stations, std::span<const StationArea> areas,
                 bool TideMode)
{
    for (const StationArea& area : areas) {
        std::string caption(area.caption);
        std::erase(caption, '&');
        for (const std::string_view place : area.places)
            stations.push_back({TideMode, std::string(place), caption});
    }
}

} // namespace

std::vector<FoundStation> allStations()
{
    std::vector<FoundStation> stations;
    addStations(stations, tideAreas(), true);
    addStations(stations, streamAreas(), false);
    return stations;
}

std::vector<FoundStation> findStations(std::string_view typed)
{
    const std::string letters = plainWords(typed);
    std::vector<std::pair<Match, FoundStation>> found;
    for (FoundStation& station : allStations()) {
        const std::string name = plainWords(station.place);
        Match match = matchOf(name, letters);
        for (const OtherName& other : otherNames)
            if (other.place == station.place)
                match = std::min(match, matchOf(plainWords(other.name), letters));
        if (match == Match::None || (letters.size() < 3 && name != letters)) continue;
        found.emplace_back(match, std::move(station));
    }
    std::ranges::stable_sort(found, {}, [](const auto& entry) { return entry.first; });
    std::vector<FoundStation> stations;
    stations.reserve(found.size());
    for (auto& [match, station] : found)
        stations.push_back(std::move(station));
    return stations;
}

SearchAnswer answerSearch(std::string_view typed)
{
    const std::vector<FoundStation> found = findStations(typed);
    if (found.empty())
        return {{},
                typed.empty()
                    ? ""
                    : "No station has \"" + std::string(typed) + "\" (three letters at least)"};
    std::string others;
    for (std::size_t i = 1; i < found.size(); ++i)
        others += (i == 1 ? "Found too: " : ", ") + found[i].place +
                  (found[i].TideMode ? "" : " (stream)");
    return {found.front(), others};
}

std::vector<NearStation> nearestStations(const StationList& list, NavFunc113::DegMin latitude,
                                         NavFunc113::DegMin longitude, std::size_t count)
{
    std::vector<NearStation> near;
    for (const StationNotes& notes : list.all()) {
        if (!notes.latitude || !notes.longitude || !isTideStation(notes.place)) continue;
        near.push_back({notes.place, distanceBetween(NavFunc113::DegMinToDeg(latitude),
                                                     NavFunc113::DegMinToDeg(longitude),
                                                     *notes.latitude, *notes.longitude)});
    }
    std::ranges::stable_sort(near, {}, &NearStation::distance);
    if (near.size() > count) near.resize(count);
    return near;
}

} // namespace korvel
