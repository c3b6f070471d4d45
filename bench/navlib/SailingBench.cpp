// SPDX-License-Identifier: MIT
#include "navlib/angles.h"
#include "navlib/sailing/sailing.h"

#include <GeographicLib/Geodesic.hpp>
#include <GeographicLib/GeodesicLine.hpp>
#include <GeographicLib/Rhumb.hpp>
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <random>
#include <string_view>
#include <vector>

/// The sailing routines beside GeographicLib's, on the same varied passages: "ours/..." and
/// "peer/..." of one name make one ratio. With the argument "count NAME ROUNDS" only that work is
/// done, that many times, for an instruction count.
namespace
{

using namespace NavFunc113;
using GeographicLib::Geodesic;
using GeographicLib::Rhumb;

struct Leg {
    double lat1, long1, lat2, long2; ///< as the routine under test takes them
    double course;                   ///< degrees
    double miles;
};

constexpr std::size_t legCount = 256;
constexpr std::size_t routeCount = 16;
constexpr int waypoints = 19;
constexpr double metresPerMile = 1852;

/// Ocean passages between 60 S and 60 N, in decimal degrees.
std::vector<Leg> passages()
{
    std::mt19937 random(2000);
    std::uniform_real_distribution<double> unit(0, 1);
    std::vector<Leg> legs(legCount);
    for (Leg& leg : legs) {
        leg.lat1 = 120 * unit(random) - 60;
        leg.long1 = 360 * unit(random) - 180;
        leg.lat2 = 120 * unit(random) - 60;
        leg.long2 = 360 * unit(random) - 180;
        leg.course = 360 * unit(random);
        leg.miles = 10 + 500 * unit(random);
    }
    return legs;
}

/// Passages with at least 170 degrees of longitude, which have the most waypoints.
std::vector<Leg> longPassages()
{
    std::vector<Leg> legs = passages();
    legs.resize(routeCount);
    for (Leg& leg : legs) {
        leg.lat1 = std::fabs(leg.lat1);
        leg.lat2 = std::fabs(leg.lat2);
        leg.long2 = leg.long1 + 178;
    }
    return legs;
}

std::vector<Leg> packed(std::vector<Leg> legs)
{
    for (Leg& leg : legs)
        for (double* angle : {&leg.lat1, &leg.long1, &leg.lat2, &leg.long2})
            *angle = DegToDegMin(Degrees(*angle)).packed();
    return legs;
}

const std::vector<Leg> inDegrees = passages();
const std::vector<Leg> inDegMin = packed(inDegrees);
const std::vector<Leg> routesInDegrees = longPassages();
const std::vector<Leg> routesInDegMin = packed(routesInDegrees);

double rhumbLeg(const Leg& leg, Earth earth)
{
    const auto [course, distance, steps] = RhumbCourseAndDistance(
        DegMin(leg.lat1), DegMin(leg.long1), DegMin(leg.lat2), DegMin(leg.long2), earth);
    return course.value() + distance.value();
}

double deadReckoning(const Leg& leg, Earth earth)
{
    const DegMin lat1(leg.lat1), long1(leg.long1);
    const Degrees course(leg.course);
    const Miles miles(leg.miles);
    const DegMin lat = DRLatitude(lat1, course, miles, earth);
    return lat.packed() + DRLongitude(lat1, long1, course, miles, earth, lat).packed();
}

double greatCircle(const Leg& leg, Earth)
{
    return GCDistance(DegMin(leg.lat1), DegMin(leg.long1), DegMin(leg.lat2), DegMin(leg.long2))
        .value();
}

double route(const Leg& leg, Earth earth)
{
    double sum = 0;
    DegMin lat(leg.lat1);
    DegMin longitude(leg.long1);
    const GreatCircle circle(lat, longitude, DegMin(leg.lat2), DegMin(leg.long2));
    for (int i = 1; i <= waypoints; ++i) {
        const DegMin nextLong(leg.long1 + (leg.long2 - leg.long1) * i / waypoints);
        const DegMin nextLat = circle.latitudeAt(nextLong);
        const auto [course, distance, steps] =
            RhumbCourseAndDistance(lat, longitude, nextLat, nextLong, earth);
        sum += course.value() + distance.value();
        lat = nextLat;
        longitude = nextLong;
    }
    return sum;
}

double peerRhumbLeg(const Leg& leg, Earth)
{
    double metres = 0;
    double course = 0;
    Rhumb::WGS84().Inverse(leg.lat1, leg.long1, leg.lat2, leg.long2, metres, course);
    return course + metres;
}

double peerDeadReckoning(const Leg& leg, Earth)
{
    double lat = 0;
    double longitude = 0;
    Rhumb::WGS84().Direct(leg.lat1, leg.long1, leg.course, leg.miles * metresPerMile, lat,
                          longitude);
    return lat + longitude;
}

double peerGreatCircle(const Leg& leg, Earth)
{
    double metres = 0;
    Geodesic::WGS84().Inverse(leg.lat1, leg.long1, leg.lat2, leg.long2, metres);
    return metres;
}

double peerRoute(const Leg& leg, Earth)
{
    const auto line = Geodesic::WGS84().InverseLine(leg.lat1, leg.long1, leg.lat2, leg.long2);
    double sum = 0;
    double lat = leg.lat1;
    double longitude = leg.long1;
    for (int i = 1; i <= waypoints; ++i) {
        double nextLat = 0;
        double nextLong = 0;
        line.Position(line.Distance() * i / waypoints, nextLat, nextLong);
        double metres = 0;
        double course = 0;
        Rhumb::WGS84().Inverse(lat, longitude, nextLat, nextLong, metres, course);
        sum += course + metres;
        lat = nextLat;
        longitude = nextLong;
    }
    return sum;
}

struct Work {
    const char* name;
    double (*run)(const Leg&, Earth earth);
    Earth earth;
    const std::vector<Leg>& legs;
};

const std::array works{
    Work{"peer/rhumb", peerRhumbLeg, Earth::Sphere, inDegrees},
    Work{"ours/rhumb/sphere", rhumbLeg, Earth::Sphere, inDegMin},
    Work{"ours/rhumb/spheroid", rhumbLeg, Earth::Spheroid, inDegMin},
    Work{"peer/dr", peerDeadReckoning, Earth::Sphere, inDegrees},
    Work{"ours/dr/sphere", deadReckoning, Earth::Sphere, inDegMin},
    Work{"ours/dr/spheroid", deadReckoning, Earth::Spheroid, inDegMin},
    Work{"peer/gc", peerGreatCircle, Earth::Sphere, inDegrees},
    Work{"ours/gc/sphere", greatCircle, Earth::Sphere, inDegMin},
    Work{"peer/route", peerRoute, Earth::Sphere, routesInDegrees},
    Work{"ours/route/sphere", route, Earth::Sphere, routesInDegMin},
    Work{"ours/route/spheroid", route, Earth::Spheroid, routesInDegMin},
};

void measure(benchmark::State& state, const Work& work)
{
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(work.run(work.legs[i], work.earth));
        if (++i == work.legs.size()) i = 0;
    }
}

int countOnly(std::string_view name, int rounds)
{
    for (const Work& work : works) {
        if (name != work.name) continue;
        for (int round = 0; round < rounds; ++round)
            for (const Leg& leg : work.legs)
                benchmark::DoNotOptimize(work.run(leg, work.earth));
        return 0;
    }
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 4 && std::string_view(argv[1]) == "count")
        return countOnly(argv[2], std::atoi(argv[3]));
    for (const Work& work : works)
        benchmark::RegisterBenchmark(work.name, measure, work);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
