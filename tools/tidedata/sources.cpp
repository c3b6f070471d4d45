// SPDX-License-Identifier: MIT
#include "tools/tidedata/sources.h"

#include <nlohmann/json.hpp>

#include <fstream>
#include <set>
#include <stdexcept>

namespace tidedata
{
namespace
{

using nlohmann::json;

std::string joined(const std::set<std::string>& texts)
{
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : ", ") + text;
    return all;
}

// The records in words: "Yokohama Shinko (ticon/...)" for a record taken over, the names alone for
// an interpolation or a model, which use several.
std::string sourceInWords(const json& station)
{
    const json& records = station.at("sources");
    const std::string verdict = station.at("verdict");
    if (records.size() == 1) {
        const json& record = records.front();
        return verdict + ": " + record.at("name").get<std::string>() + " (" +
               record.at("id").get<std::string>() + "), record " +
               record.at("record").get<std::string>();
    }
    std::string names;
    for (const json& record : records)
        names += (names.empty() ? "" : ", ") + record.at("name").get<std::string>();
    return verdict + (verdict == "modelled" ? " with: " : " from: ") + names;
}

std::string licenceOf(const json& station)
{
    std::set<std::string> licences;
    for (const json& record : station.at("sources")) {
        const std::string licence = record.at("license");
        licences.insert(licence == "cc-by-4.0" ? "CC BY 4.0" : licence);
    }
    return joined(licences);
}

void takePosition(Station& station, const json& entry)
{
    station.latitude = entry.at("lat");
    station.longitude = entry.at("lon");
}

// Without one of the four the station file cannot be made.
void requireCarriers(const Station& station)
{
    for (const char* name : {"M2", "S2", "K1", "O1"}) {
        if (!station.constants.contains(name))
            throw std::runtime_error(station.place + " has no constituent " + name);
    }
}

Station stationFrom(const json& entry)
{
    Station station;
    station.place = entry.at("place");
    station.grade = entry.at("grade");
    station.uncertainty = entry.value("uncertainty", "");
    station.source = sourceInWords(entry);
    station.licence = licenceOf(entry);
    station.zone = Hours(entry.at("zone_hours").get<double>());
    station.meanLevel = entry.at("z0_m");
    station.isLevelEstimated = entry.at("z0_basis").get<std::string>().starts_with("ESTIMATE");
    const std::string verdict = entry.at("verdict");
    station.areMonthsEstimated = verdict == "modelled" || verdict == "interpolated";
    takePosition(station, entry);
    for (const auto& [name, values] : entry.at("constituents").items())
        station.constants[name] = {values.at(0).get<double>(), Degrees(values.at(1).get<double>())};
    requireCarriers(station);
    return station;
}

Station missingFrom(const json& entry)
{
    Station station;
    station.place = entry.at("place");
    station.grade = "none";
    station.source = entry.at("reason");
    takePosition(station, entry);
    return station;
}

} // namespace

Sources readSources(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error(file.string() + " cannot be opened");
    try {
        const json all = json::parse(stream);
        Sources sources;
        for (const json& entry : all.at("stations"))
            sources.stations.push_back(stationFrom(entry));
        for (const json& entry : all.at("stations_without_data"))
            sources.withoutSource.push_back(missingFrom(entry));
        return sources;
    } catch (const std::exception& fault) {
        throw std::runtime_error(file.string() + ": " + fault.what());
    }
}

} // namespace tidedata
