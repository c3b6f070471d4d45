// SPDX-License-Identifier: MIT
#include "almanac/hourly_places.h"
#include "navlib/angles.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace almanac
{
namespace
{

constexpr std::ptrdiff_t nodes = 4;

Degrees reduced(Degrees angle)
{
    const double turns = std::floor(angle.value() / 360);
    return Degrees(std::max(0.0, angle.value() - 360 * turns));
}

/// The angle beyond the one before it by less than half a turn either way.
Degrees runningOn(Degrees angle, Degrees before)
{
    return before + NavFunc113::WithinHalfTurn(angle - before);
}

/// Weights of places at 0, 1, 2, 3 for a place at x.
std::array<double, nodes> weightsAt(double x)
{
    return {-(x - 1) * (x - 2) * (x - 3) / 6, x * (x - 2) * (x - 3) / 2, -x * (x - 1) * (x - 3) / 2,
            x * (x - 1) * (x - 2) / 6};
}

} // namespace

std::vector<Sky> hourlySkies(DateTime from, DateTime to)
{
    std::vector<Sky> skies;
    const double last = std::ceil(to * 24 - 1e-6) + 1;
    for (double hour = std::floor(from * 24 + 1e-6) - 1; hour <= last; ++hour)
        skies.push_back(Sky::nearRange(hour / 24));
    return skies;
}

HourlyPlaces::HourlyPlaces(Body body, std::span<const Sky> skies)
    : m_body(body), m_first(skies.front().instant())
{
    m_places.reserve(skies.size());
    for (const Sky& sky : skies) {
        Place place = sky.place(body);
        if (!m_places.empty()) {
            // The GHA of an hour later, less the hour's turn, is near the one before.
            const Degrees turn(15);
            place.gha = runningOn(place.gha, m_places.back().gha + turn);
            place.sha = runningOn(place.sha, m_places.back().sha);
        }
        m_places.push_back(place);
    }
}

HourlyPlaces::HourlyPlaces(Body body, DateTime from, DateTime to)
    : HourlyPlaces(body, hourlySkies(from, to))
{
}

Place HourlyPlaces::at(DateTime ut) const
{
    const double hours = (ut - m_first) * 24;
    const auto first = std::clamp(static_cast<std::ptrdiff_t>(std::floor(hours)) - 1,
                                  std::ptrdiff_t{0}, std::ssize(m_places) - nodes);
    const auto weights = weightsAt(hours - static_cast<double>(first));
    Place sum;
    for (std::size_t i = 0; i < weights.size(); ++i) {
        const Place& node = m_places[static_cast<std::size_t>(first) + i];
        sum.gha += weights[i] * node.gha;
        sum.declination += weights[i] * node.declination;
        sum.sha += weights[i] * node.sha;
        sum.horizontalParallax += weights[i] * node.horizontalParallax;
        sum.semiDiameter += weights[i] * node.semiDiameter;
    }
    sum.gha = reduced(sum.gha);
    sum.sha = reduced(sum.sha);
    return sum;
}

} // namespace almanac
