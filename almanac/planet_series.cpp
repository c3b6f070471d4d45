// SPDX-License-Identifier: MIT
#include "almanac/series.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace almanac
{
namespace
{

enum class Heliocentric { L, B, R };

struct PlanetTerm {
    Body planet;
    Heliocentric coordinate;
    int power;
    double amplitude;
    double phase; ///< radians
    double speed; ///< radians a millennium
};

using enum Heliocentric;
constexpr Body Venus = Body::Venus;
constexpr Body Mars = Body::Mars;
constexpr Body Jupiter = Body::Jupiter;
constexpr Body Saturn = Body::Saturn;
constexpr PlanetTerm planetTerms[] = {
#include "planets.inc"
};

std::span<const PlanetTerm> termsOf(Body planet)
{
    const auto* const first =
        std::ranges::lower_bound(planetTerms, planet, {}, &PlanetTerm::planet);
    const auto* const last = std::ranges::upper_bound(planetTerms, planet, {}, &PlanetTerm::planet);
    return {first, last};
}

} // namespace

Vector heliocentricPlanet(Body planet, double daysTT)
{
    const double t = daysTT / 365250;
    const double powers[] = {1, t, t * t};
    double sums[3] = {};
    for (const PlanetTerm& term : termsOf(planet))
        sums[static_cast<std::size_t>(term.coordinate)] +=
            powers[term.power] * term.amplitude * std::cos(term.phase + term.speed * t);
    return equatorOfVsop * fromPolar(sums[0], sums[1], sums[2]);
}

} // namespace almanac
