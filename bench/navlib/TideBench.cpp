// SPDX-License-Identifier: MIT
#include "bench/FullPrediction.h"
#include "forms/frmTIDE/PredictTide.h"
#include "forms/frmTIDE/TideData.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>

// A day's 49 heights. The baseline is the plain way: a sum of 37 constituents, their arguments and
// node factors for the day given.
namespace
{

constexpr long serial = 37817; // 2003-07-15
const std::filesystem::path root = KORVEL_SOURCE_DIR;

void plainSumOf37Constituents(benchmark::State& state)
{
    const auto sources = tidedata::readSources(root / "tools/tidedata/sources.json");
    const auto station = std::ranges::find(sources.stations, "Yokohama", &tidedata::Station::place);
    const bench::FullPrediction full(*station, 37);
    const auto waves = full.wavesOf(serial);
    for (auto _ : state) {
        NavFunc113::TideValues values;
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = full.height(waves, static_cast<double>(i) / 2);
        benchmark::DoNotOptimize(values);
    }
}
BENCHMARK(plainSumOf37Constituents)->Name("peer/tide_day");

// The same with the day's arguments and node factors worked out: what the daily file saves.
void plainDayOf37Constituents(benchmark::State& state)
{
    const auto sources = tidedata::readSources(root / "tools/tidedata/sources.json");
    const auto station = std::ranges::find(sources.stations, "Yokohama", &tidedata::Station::place);
    const bench::FullPrediction full(*station, 37);
    for (auto _ : state) {
        const auto waves = full.wavesOf(serial);
        NavFunc113::TideValues values;
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = full.height(waves, static_cast<double>(i) / 2);
        benchmark::DoNotOptimize(values);
    }
}
BENCHMARK(plainDayOf37Constituents)->Name("peer/tide_from_disk");

void dayOfValues(benchmark::State& state)
{
    const auto factors = korvel::readDaysFactors(root / "data", serial - 37530);
    const auto station = korvel::readTideStation(root / "data", "Yokohama");
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
    const std::filesystem::path data = root / "data";
    for (auto _ : state) {
        const auto factors = korvel::readDaysFactors(data, serial - 37530);
        const auto station = korvel::readTideStation(data, "Yokohama");
        const NavFunc113::TideDay day(station.constituents, factors.thisDay, factors.nextDay,
                                      station.shallowWater);
        NavFunc113::TideValues values = day.halfHourly(station.meanLevel);
        benchmark::DoNotOptimize(values);
    }
}
BENCHMARK(dayOfValuesFromDisk)->Name("ours/tide_from_disk");

} // namespace

BENCHMARK_MAIN();
