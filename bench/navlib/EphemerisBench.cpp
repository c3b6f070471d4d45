// SPDX-License-Identifier: MIT
// Sun and Moon against ERFA's earth and moon position with sidereal time (at most 0.12 of its
// time), and a table of sixteen places against libnova's rise and set (at most 0.01).
#include "navlib/sky/ephemeris.h"
#include "navlib/sky/rise_set.h"

#include <benchmark/benchmark.h>
#include <erfa.h>
#include <libnova/libnova.h>

namespace
{

using namespace NavFunc113;

constexpr double firstInstant = 44196.25; // 2020-12-31 06:00
constexpr double serialZero = 2415018.5;
constexpr double step = 0.37;

void SunAndMoonByTheLibrary(benchmark::State& state)
{
    double instant = firstInstant;
    for (auto _ : state) {
        benchmark::DoNotOptimize(SunDeclination(instant));
        benchmark::DoNotOptimize(SunHourAngleOffset(instant));
        benchmark::DoNotOptimize(MoonDeclination(instant));
        benchmark::DoNotOptimize(MoonHourAngleOffset(instant));
        instant += step;
    }
}
BENCHMARK(SunAndMoonByTheLibrary)->Name("ours/sun_and_moon");

void SunAndMoonByErfa(benchmark::State& state)
{
    double instant = firstInstant;
    double earth[2][3], barycentric[2][3], moon[2][3];
    for (auto _ : state) {
        const double tt = instant + 69.2 / 86400;
        eraEpv00(serialZero, tt, earth, barycentric);
        eraMoon98(serialZero, tt, moon);
        benchmark::DoNotOptimize(eraGst06a(serialZero, instant, serialZero, tt));
        benchmark::DoNotOptimize(earth);
        benchmark::DoNotOptimize(moon);
        instant += step;
    }
}
BENCHMARK(SunAndMoonByErfa)->Name("peer/sun_and_moon");

struct Place {
    double TD, latitude, longitude;
};
constexpr Place places[16] = {
    {9, 35.26, 139.47},   {8, 1.17, 103.51},    {1, 51.57, 4.08},     {-5, 40.40, -74.02},
    {-8, 33.44, -118.16}, {10, -33.51, 151.12}, {2, -33.54, 18.26},   {-3, -23.57, -46.18},
    {4, 25.00, 55.04},    {5.5, 18.57, 72.51},  {0, 51.30, -0.05},    {2, 60.09, 24.57},
    {3, 12.47, 45.01},    {-4, -54.48, -68.18}, {12, -36.50, 174.47}, {-10, 21.18, -157.52}};

void SixteenPlacesByTheLibrary(benchmark::State& state)
{
    double date = 44197;
    for (auto _ : state) {
        for (const Place& place : places) {
            DegMin latitude(place.latitude);
            const auto find = [&](auto search) {
                benchmark::DoNotOptimize(
                    search(date, Hours(place.TD), latitude, DegMin(place.longitude)));
            };
            find(SunRiseSearch);
            find(SunSetSearch);
            benchmark::DoNotOptimize(SunRiseAzimuth(latitude, SunDeclination(date + 0.25)));
            benchmark::DoNotOptimize(SunSetAzimuth(latitude, SunDeclination(date + 0.75)));
            find(MoonRiseSearch);
            find(MoonSetSearch);
        }
        date += 1;
    }
}
BENCHMARK(SixteenPlacesByTheLibrary)->Name("ours/sixteen_places");

void SixteenPlacesByLibnova(benchmark::State& state)
{
    double date = 44197;
    for (auto _ : state) {
        for (const Place& place : places) {
            // Packed figures taken as decimal degrees: near enough for a timing.
            ln_lnlat_posn observer{place.longitude, place.latitude};
            ln_rst_time times;
            benchmark::DoNotOptimize(
                ln_get_solar_rst(serialZero + date - place.TD / 24, &observer, &times));
            benchmark::DoNotOptimize(
                ln_get_lunar_rst(serialZero + date - place.TD / 24, &observer, &times));
        }
        date += 1;
    }
}
BENCHMARK(SixteenPlacesByLibnova)->Name("peer/sixteen_places");

} // namespace

BENCHMARK_MAIN();
