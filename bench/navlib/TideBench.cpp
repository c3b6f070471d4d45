// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/data/TideData.h"
#include "forms/frmTIDE/data/TideExtension.h"
#include "forms/frmTIDE/day/TideTables.h"
#include "shell/machine/ProgramFolder.h"
#include "tools/tidedata/sources.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <vector>

// A day's 49 heights. The baseline is the plain way: a sum of 37 constituents, their arguments and
// node factors for the day given.
namespace
{

constexpr std::int64_t serial = 37817; // 2003-07-15
const std::filesystem::path root = KORVEL_SOURCE_DIR;

korvel::FileStore& data()
{
    static korvel::ProgramFolder folder(QStringLiteral(KORVEL_SOURCE_DIR "/data"));
    return folder;
}

// The 37 largest constituents of the station.
tidedata::AllConstituents plainStation()
{
    const auto sources = tidedata::readSources(root / "tools/tidedata/sources.json");
    const auto station = std::ranges::find(sources.stations, "Yokohama", &tidedata::Station::place);
    std::vector<tidedata::HarmonicConstant> constants;
    for (const auto& [name, constant] : station->constants)
        constants.push_back({name, constant.amplitude, constant.greenwichLag.value()});
    std::ranges::sort(constants, std::greater{}, &tidedata::HarmonicConstant::amplitude);
    constants.resize(37);
    return {constants, station->zone, station->meanLevel};
}

NavFunc113::TideValues valuesOf(const tidedata::DayOfAllConstituents& day)
{
    NavFunc113::TideValues values;
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = day.at(NavFunc113::Hours(static_cast<double>(i) / 2));
    return values;
}

void plainSumOf37Constituents(benchmark::State& state)
{
    const auto day = plainStation().ofDay(serial);
    for (auto _ : state)
        benchmark::DoNotOptimize(valuesOf(day));
}
BENCHMARK(plainSumOf37Constituents)->Name("peer/tide_day");

// A folder with the record of the station alone, as a plain program would read it.
struct PlainFolder {
    QTemporaryDir folder;
    korvel::ProgramFolder files{folder.path()};

    PlainFolder()
    {
        const std::string list = data().read("constituents.txt").bytes;
        const std::size_t line = list.find("\nYokohama\t") + 1;
        files.save("constituents.txt", list.substr(line, list.find('\n', line) - line));
    }
};

// The record from the disk, the day's arguments and node factors worked out: what the daily file
// saves.
void plainDayFromDisk(benchmark::State& state)
{
    PlainFolder plain;
    const auto station = korvel::readTideStation(data(), "Yokohama");
    for (auto _ : state) {
        const auto full = korvel::FullConstants(plain.files).of("Yokohama", station);
        benchmark::DoNotOptimize(valuesOf(full.value().ofDay(serial)));
    }
}
BENCHMARK(plainDayFromDisk)->Name("peer/tide_from_disk");

void dayOfValues(benchmark::State& state)
{
    const auto factors = korvel::readDaysFactors(data(), serial - 37530);
    const auto station = korvel::readTideStation(data(), "Yokohama");
    for (auto _ : state) {
        const NavFunc113::TideDay day(station.constituents, factors.thisDay, factors.nextDay,
                                      station.shallowWater);
        NavFunc113::TideValues values = day.halfHourly(station.meanLevel);
        benchmark::DoNotOptimize(values);
    }
}
BENCHMARK(dayOfValues)->Name("ours/tide_day");

void dayOfValuesFromDisk(benchmark::State& state)
{
    for (auto _ : state) {
        const auto factors = korvel::readDaysFactors(data(), serial - 37530);
        const auto station = korvel::readTideStation(data(), "Yokohama");
        const NavFunc113::TideDay day(station.constituents, factors.thisDay, factors.nextDay,
                                      station.shallowWater);
        NavFunc113::TideValues values = day.halfHourly(station.meanLevel);
        benchmark::DoNotOptimize(values);
    }
}
BENCHMARK(dayOfValuesFromDisk)->Name("ours/tide_from_disk");

// A month as a table file against a day of it from the disk to the texts that the window shows.
void aMonth(benchmark::State& state)
{
    const korvel::StationList list(data());
    const korvel::FullConstants constants(data());
    const korvel::TideDates dates;
    for (auto _ : state) {
        const korvel::StationDays days(data(), korvel::TideKind::Tide, "Yokohama", list, constants);
        benchmark::DoNotOptimize(korvel::monthTable(days, "Yokohama", serial, dates));
    }
}
BENCHMARK(aMonth)->Name("ours/tide_month");

void aDay(benchmark::State& state)
{
    const korvel::StationList list(data());
    const korvel::FullConstants constants(data());
    for (auto _ : state) {
        const korvel::StationDays days(data(), korvel::TideKind::Tide, "Yokohama", list, constants);
        const korvel::TideDayShown day = days.day(serial);
        benchmark::DoNotOptimize(korvel::waterLines(day));
        benchmark::DoNotOptimize(korvel::rangeText(day));
    }
}
BENCHMARK(aDay)->Name("peer/tide_month");

// The longer factors file, made and saved, against saving a copy of one as long.
void extension(benchmark::State& state)
{
    QTemporaryDir folder;
    korvel::ProgramFolder files(folder.path());
    for (auto _ : state)
        if (!korvel::extendFactors(files, 2050, {}).isDone) state.SkipWithError("not made");
}
BENCHMARK(extension)->Name("ours/tide_extension")->Unit(benchmark::kMillisecond);

void copyOfTheFile(benchmark::State& state)
{
    QTemporaryDir folder;
    korvel::ProgramFolder files(folder.path());
    korvel::extendFactors(files, 2050, {});
    for (auto _ : state)
        if (files.save("copy", files.read("AF2005.txt").bytes)) state.SkipWithError("not saved");
}
BENCHMARK(copyOfTheFile)->Name("peer/tide_extension")->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
