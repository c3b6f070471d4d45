// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/bodies.h"
#include "almanac/time_scales.h"
#include "navlib/units.h"

#include <memory>

namespace almanac
{

using NavFunc113::Degrees;

struct Frame;

/// Apparent geocentric place of a body, referred to the true equator and equinox of date.
struct Place {
    Degrees gha;                ///< Greenwich hour angle, west, 0 <= gha < 360
    Degrees declination;        ///< north positive
    Degrees sha;                ///< sidereal hour angle, 0 <= sha < 360: GHA less that of Aries
    Degrees horizontalParallax; ///< equatorial; 0 for stars
    Degrees semiDiameter;       ///< seen from the earth's centre; 0 for stars
};

/// The sky at one instant. What all bodies share is worked once, when it is made; a place then
/// costs its own series alone.
///
/// Accuracy against 120 places of 1960 to 2060 worked with full series (tests/golden/
/// almanac_places.csv): largest difference in GHA / declination, seconds of arc, of how many cases.
///
///     Sun      0.01 / 0.01  12      Mars     0.90 / 0.40  12
///     Moon     1.26 / 0.62  20      Jupiter  1.01 / 1.10  10
///     Venus    0.27 / 0.39  18      Saturn   1.07 / 1.32  10
///     stars    0.01 / 0.01  38      Aries    0.01        120
///
/// Horizontal parallax 0.0005', semi-diameter 0.0002'. The series themselves bound the differences
/// of all years (series.h).
class Sky
{
public:
    /// @param ut UT, taken as UTC and as UT1: up to 0.9 s, 0.23' of hour angle, as in every almanac
    /// @throws OutOfRange outside 1950 to 2100
    explicit Sky(DateTime ut);

    /// The same some days beyond the range, for what reaches across its ends: the last Moonrise of
    /// 2100, the age of the Moon on the first day.
    static Sky nearRange(DateTime ut);

    DateTime instant() const;
    DeltaT deltaT() const;
    Degrees ghaAries() const; ///< 0 <= gha < 360
    Place place(Body body) const;

private:
    explicit Sky(std::shared_ptr<const Frame> frame);
    std::shared_ptr<const Frame> m_frame;
};

} // namespace almanac
