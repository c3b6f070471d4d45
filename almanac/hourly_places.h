// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/sky.h"

#include <span>
#include <vector>

namespace almanac
{

/// The sky at every whole hour from an hour before the first instant to an hour after the last.
/// @param from, to  UT, from <= to; may reach some days beyond 1950 to 2100
std::vector<Sky> hourlySkies(DateTime from, DateTime to);

/// Places of a body at any instant of a span, by Lagrange's formula through the four hours around
/// it: within 0.0002" of Sky::place (4000 instants of 1950 to 2100, Sun, Moon, planets and
/// a star) at a thousandth of its cost. For searches, and
/// for figures that follow a key.
class HourlyPlaces
{
public:
    /// @param skies at least four, an hour apart
    HourlyPlaces(Body body, std::span<const Sky> skies);
    HourlyPlaces(Body body, DateTime from, DateTime to);

    Body body() const { return m_body; }
    /// @param ut within the span; beyond it the formula still goes on, and is soon worth nothing
    Place at(DateTime ut) const;

private:
    Body m_body;
    DateTime m_first;
    std::vector<Place> m_places; ///< gha and sha run on without a jump
};

} // namespace almanac
