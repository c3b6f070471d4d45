// SPDX-License-Identifier: MIT
// The places of all bodies at one instant against one Sun place of ERFA: at most 40 of its time.
#include "almanac/sky.h"

#include <benchmark/benchmark.h>
#include <erfa.h>

#include <cmath>

namespace
{

constexpr double firstInstant = 44196.25; // 2020-12-31 06:00
constexpr double serialZero = 2415018.5;
constexpr double step = 0.37;

void AllBodiesByTheRoom(benchmark::State& state)
{
    double instant = firstInstant;
    for (auto _ : state) {
        const almanac::Sky sky(instant);
        benchmark::DoNotOptimize(sky.ghaAries());
        for (const almanac::BodyEntry& entry : almanac::bodies())
            benchmark::DoNotOptimize(sky.place(entry.body));
        instant += step;
    }
}
BENCHMARK(AllBodiesByTheRoom)->Name("ours/all_bodies");

/// Apparent place and Greenwich hour angle of the Sun: earth, aberration, precession and nutation,
/// sidereal time.
void SunByErfa(benchmark::State& state)
{
    double instant = firstInstant;
    double earth[2][3], barycentric[2][3], matrix[3][3];
    constexpr double lightAuPerDay = 173.1446326846693;
    for (auto _ : state) {
        const double tt = instant + 69.184 / 86400;
        eraEpv00(serialZero, tt, earth, barycentric);
        const double distance = eraPm(earth[0]);
        double natural[3], velocity[3], seen[3], ofDate[3], rightAscension = 0, declination = 0;
        for (int i = 0; i < 3; ++i) {
            natural[i] = -earth[0][i] / distance;
            velocity[i] = barycentric[1][i] / lightAuPerDay;
        }
        eraAb(natural, velocity, distance, std::sqrt(1 - eraPdp(velocity, velocity)), seen);
        eraPnm06a(serialZero, tt, matrix);
        eraRxp(matrix, seen, ofDate);
        eraC2s(ofDate, &rightAscension, &declination);
        benchmark::DoNotOptimize(eraGst06a(serialZero, instant, serialZero, tt) - rightAscension);
        benchmark::DoNotOptimize(declination);
        instant += step;
    }
}
BENCHMARK(SunByErfa)->Name("peer/all_bodies");

} // namespace

BENCHMARK_MAIN();
