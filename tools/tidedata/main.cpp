// SPDX-License-Identifier: MIT
#include "tidedata/factors.h"
#include "tools/tidedata/station_file.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string_view>
#include <vector>

/// Writes the tide data files.
namespace
{

constexpr std::string_view usage =
    "usage: tidedata factors LASTYEAR FILE      the astronomical factors to the end of a year\n"
    "                                           (2005 to 2060)\n"
    "       tidedata stations SOURCES FOLDER    one file a tide station, stations.txt,\n"
    "                                           constituents.txt\n";

void writeFile(const std::filesystem::path& file, const std::string& content)
{
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    stream.close();
    if (!stream) throw std::runtime_error(file.string() + " cannot be written");
}

int yearOf(std::string_view text)
{
    int year = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), year);
    if (fault != std::errc{} || end != text.data() + text.size())
        throw std::invalid_argument("\"" + std::string(text) + "\" is not a year");
    return year;
}

void writeStations(const std::filesystem::path& sourcesFile, const std::filesystem::path& folder)
{
    const tidedata::Sources sources = tidedata::readSources(sourcesFile);
    const std::filesystem::path constants = folder / "Harmonic Constants";
    std::filesystem::create_directories(constants);
    for (const tidedata::Station& station : sources.stations)
        writeFile(constants / ("HC_" + station.place + ".txt"), tidedata::stationFile(station));
    writeFile(folder / "stations.txt", tidedata::stationsList(sources));
    writeFile(folder / "constituents.txt", tidedata::constituentsList(sources));
}

} // namespace

int main(int argc, char** argv)
try {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    if (arguments.size() == 3 && arguments[0] == "factors") {
        writeFile(arguments[2], tidedata::factorsFile(yearOf(arguments[1])));
        return 0;
    }
    if (arguments.size() == 3 && arguments[0] == "stations") {
        writeStations(arguments[1], arguments[2]);
        return 0;
    }
    std::cerr << usage;
    return 2;
} catch (const std::exception& fault) {
    std::cerr << "tidedata: " << fault.what() << "\n";
    return 1;
}
