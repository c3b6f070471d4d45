// SPDX-License-Identifier: MIT
#include "almanac/events.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace almanac
{
namespace
{

using Curve = std::function<double(DateTime)>;

constexpr double searchStep = 10.0 / 1440;
constexpr double searchEnd = 0.05 / 86400;

/// @param a, b the curve has different signs there
DateTime rootBetween(const Curve& curve, DateTime a, DateTime b)
{
    const bool isPositiveAtA = curve(a) >= 0;
    while (b - a > searchEnd) {
        const DateTime middle = (a + b) / 2;
        (curve(middle) >= 0) == isPositiveAtA ? a = middle : b = middle;
    }
    return (a + b) / 2;
}

struct Sample {
    DateTime at;
    double value;
    bool positive() const { return value >= 0; }
};

/// The turning point of a parabola through three samples, if it lies next to the middle one and on
/// the other side of 0 than that.
std::optional<Sample> turnBeyondZero(const Curve& curve, const Sample& a, const Sample& b,
                                     const Sample& c)
{
    const double bend = a.value - 2 * b.value + c.value;
    const double part = (a.value - c.value) / (2 * bend);
    if (!(std::fabs(part) <= 0.5)) return std::nullopt; // no number where the curve is straight
    const DateTime at = b.at + part * (c.at - b.at);
    const Sample turn{at, curve(at)};
    return turn.positive() == b.positive() ? std::nullopt : std::optional(turn);
}

std::vector<DateTime> rootsOf(const Curve& curve, DateTime from, DateTime to)
{
    std::vector<Sample> samples;
    const int steps = std::max(2, static_cast<int>(std::ceil((to - from) / searchStep)));
    for (int i = 0; i <= steps; ++i) {
        const DateTime at = from + (to - from) * i / steps;
        samples.push_back({at, curve(at)});
    }
    std::vector<Sample> all = samples;
    for (std::size_t i = 1; i + 1 < samples.size(); ++i)
        if (const auto turn = turnBeyondZero(curve, samples[i - 1], samples[i], samples[i + 1]))
            all.push_back(*turn);
    std::ranges::sort(all, {}, &Sample::at);
    std::vector<DateTime> roots;
    for (std::size_t i = 1; i < all.size(); ++i)
        if (all[i - 1].positive() != all[i].positive())
            roots.push_back(rootBetween(curve, all[i - 1].at, all[i].at));
    return roots;
}

} // namespace

Track standingAt(const Observer& observer)
{
    return [observer](DateTime) { return observer; };
}

AltitudeWanted upperLimbOnHorizon(Degrees dip)
{
    constexpr Degrees refraction(34.0 / 60);
    return [=](const Place& body) {
        return body.horizontalParallax - body.semiDiameter - refraction - dip;
    };
}

AltitudeWanted civilTwilight()
{
    return [](const Place&) { return Degrees(-6); };
}

AltitudeWanted nauticalTwilight()
{
    return [](const Place&) { return Degrees(-12); };
}

std::vector<Crossing> crossings(const HourlyPlaces& places, const Track& track,
                                const AltitudeWanted& wanted, DateTime from, DateTime to)
{
    const Curve height = [&](DateTime ut) {
        const Place body = places.at(ut);
        return (computedDirection(body, track(ut)).altitude - wanted(body)).value();
    };
    std::vector<Crossing> found;
    for (const DateTime root : rootsOf(height, from, to))
        found.push_back({root, height(root + searchEnd) >= 0});
    return found;
}

std::vector<Passage> passages(const HourlyPlaces& places, const Track& track, DateTime from,
                              DateTime to)
{
    const auto hourAngle = [&](DateTime ut) { return places.at(ut).gha + track(ut).longitude; };
    const Curve sine = [&](DateTime ut) { return sin(hourAngle(ut)); };
    std::vector<Passage> found;
    for (const DateTime root : rootsOf(sine, from, to))
        found.push_back({root, cos(hourAngle(root)) > 0});
    return found;
}

} // namespace almanac
