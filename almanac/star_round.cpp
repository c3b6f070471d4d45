// SPDX-License-Identifier: MIT
#include "almanac/star_round.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace almanac
{
namespace
{

using Indices = std::vector<std::size_t>;

/// Sums of the normal equations for north, east and a constant.
struct NormalSums {
    double weight = 0, north = 0, east = 0, northNorth = 0, northEast = 0, eastEast = 0;

    void add(const RoundBody& body)
    {
        const double sigma = errorByMagnitude(body.magnitude);
        const double w = 1 / (sigma * sigma);
        const double n = cos(body.direction.azimuth), e = sin(body.direction.azimuth);
        weight += w;
        north += w * n;
        east += w * e;
        northNorth += w * n * n;
        northEast += w * n * e;
        eastEast += w * e * e;
    }

    /// With the constant eliminated.
    RoundNormals reduced() const
    {
        if (weight <= 0) return {};
        return {northNorth - north * north / weight, northEast - north * east / weight,
                eastEast - east * east / weight};
    }
};

double errorOf(std::span<const RoundBody> all, const Indices& chosen)
{
    NormalSums sums;
    for (const std::size_t index : chosen)
        sums.add(all[index]);
    return sums.reduced().variance();
}

bool holds(const Indices& chosen, std::size_t index)
{
    return std::ranges::find(chosen, index) != chosen.end();
}

/// The places at the end of a list that make it best, tried in all ways.
void takeBest(std::span<const RoundBody> all, Indices& chosen, std::size_t more)
{
    Indices best, tried = chosen;
    double least = std::numeric_limits<double>::infinity();
    const auto tryFrom = [&](const auto& self, std::size_t first, std::size_t left) -> void {
        if (left == 0) {
            const double error = errorOf(all, tried);
            if (best.empty() || error < least) {
                least = error;
                best = tried;
            }
            return;
        }
        for (std::size_t index = first; index < all.size(); ++index) {
            if (holds(chosen, index)) continue;
            tried.push_back(index);
            self(self, index + 1, left - 1);
            tried.pop_back();
        }
    };
    tryFrom(tryFrom, 0, more);
    if (!best.empty()) chosen = best;
}

/// Puts two others, or one of them, in the place of two as long as that makes the round better.
void exchange(std::span<const RoundBody> all, Indices& chosen)
{
    constexpr double gain = 1 - 1e-9; // or two equal ones would change places for ever
    for (bool isBetter = true; isBetter;) {
        isBetter = false;
        for (std::size_t first = 0; first < chosen.size(); ++first) {
            for (std::size_t second = first + 1; second < chosen.size(); ++second) {
                Indices tried = chosen;
                tried.erase(tried.begin() + static_cast<std::ptrdiff_t>(second));
                tried.erase(tried.begin() + static_cast<std::ptrdiff_t>(first));
                takeBest(all, tried, 2);
                if (!(errorOf(all, tried) < gain * errorOf(all, chosen))) continue;
                chosen = tried;
                isBetter = true;
            }
        }
    }
}

} // namespace

Degrees reachOfMoon(double lit)
{
    return Degrees(4 + 8 * std::clamp(lit, 0.0, 1.0));
}

Degrees angleBetween(const Direction& a, const Direction& b)
{
    // By the half angle: exact for bodies that are close.
    const double high = sin((a.altitude - b.altitude) / 2);
    const double wide = sin((a.azimuth - b.azimuth) / 2);
    const double square = high * high + cos(a.altitude) * cos(b.altitude) * wide * wide;
    return NavFunc113::RadToDeg(
        NavFunc113::Radians(2 * std::asin(std::sqrt(std::min(1.0, square)))));
}

std::vector<RoundBody> fitForRound(std::span<const RoundBody> bodies, std::span<const Glare> glares)
{
    std::vector<RoundBody> fit;
    for (const RoundBody& body : bodies) {
        const Degrees altitude = body.direction.altitude;
        const bool isDrowned = std::ranges::any_of(glares, [&](const Glare& glare) {
            return angleBetween(body.direction, glare.direction) < glare.reach;
        });
        if (altitude >= lowestOfRound && altitude <= highestOfRound &&
            body.magnitude <= faintestOfRound && !isDrowned)
            fit.push_back(body);
    }
    return fit;
}

double errorByMagnitude(double magnitude)
{
    return 1 + 0.25 * std::clamp(magnitude - 0.5, 0.0, 4.0);
}

double RoundNormals::variance() const
{
    const double determinant = northNorth * eastEast - northEast * northEast;
    constexpr double none = 1e-6; // all bearings equal
    if (determinant < none) return std::numeric_limits<double>::infinity();
    return (northNorth + eastEast) / determinant;
}

RoundNormals normalsOfRound(std::span<const RoundBody> round)
{
    NormalSums sums;
    for (const RoundBody& body : round)
        sums.add(body);
    return sums.reduced();
}

double errorOfRound(std::span<const RoundBody> round)
{
    return normalsOfRound(round).variance();
}

std::vector<RoundBody> bestRound(std::span<const RoundBody> fit, std::size_t count)
{
    Indices chosen;
    while (chosen.size() < count && chosen.size() < fit.size()) {
        const std::size_t left = std::min(count, fit.size()) - chosen.size();
        takeBest(fit, chosen,
                 chosen.empty() ? std::min<std::size_t>(3, left) : std::min<std::size_t>(2, left));
    }
    exchange(fit, chosen);
    std::vector<RoundBody> round;
    for (const std::size_t index : chosen)
        round.push_back(fit[index]);
    std::ranges::sort(round, {}, [](const RoundBody& body) { return body.direction.azimuth; });
    return round;
}

} // namespace almanac
