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
/// Accuracy: the largest difference from 120 places of 1960 to 2060 worked with full series (Sun,
/// planets, Moon, stars; tests/golden/almanac_places.csv), seconds of arc in GHA and declination:
/// @MEASURED@
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
