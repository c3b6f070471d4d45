// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/horizon.h"

#include <optional>

/// From an altitude above the sea horizon to that of a body's centre at the earth's centre, which
/// the navigator's computed altitude is held against.
namespace almanac
{

enum class Limb { Lower, Upper };

/// What dip and refraction depend on.
struct SextantAir {
    Metres heightOfEye; ///< 0 or more
    double air{};       ///< degrees Celsius, above absolute zero
    double sea{};       ///< degrees Celsius
    double pressure{};  ///< hectopascals
};

/// Where the sight was taken, as far as the earth's shape matters: 0.2' for the Moon.
struct SightPlace {
    Observer observer;
    Degrees azimuth; ///< of the body
};

/// The terms of a correction in minutes of arc, each with the sign that it is applied with.
struct SextantTerms {
    double dip{};          ///< -1.76 sqrt(height of eye)
    double airSea{};       ///< 0.2 for each degree by which the air is warmer than the sea
    double refraction{};   ///< of mean air: 10 degrees, 1010 hPa
    double temperature{};  ///< what the air's temperature changes of it
    double pressure{};     ///< and the pressure
    double semiDiameter{}; ///< of the Sun and the Moon, as seen from the earth's centre
    double augmentation{}; ///< what the observer's being nearer adds to it
    double parallax{};     ///< in altitude, on a sphere of the equator's radius
    double oblateness{};   ///< what the earth's shape adds; 0 where no place is known
    Degrees apparent;      ///< altitude above the horizontal of the eye: dip and airSea put on
    Degrees seen;          ///< of the centre, refraction and semi-diameter put on
    Degrees corrected;
};

/// Corrects an altitude.
///
/// The order is that of nature: dip, refraction of the limb, semi-diameter, parallax of the
/// centre. Of planets and stars the middle of the light is observed, which for Venus her place
/// is already.
/// @param place    of the body at the instant of the sight
/// @param observed above the sea horizon, index error taken off; -2 to 90 degrees, or a little
///                 beyond the zenith
/// @param taken    nothing: the sphere
/// Sources: Bowditch, American Practical Navigator (dip); Bennett 1982 (refraction), which goes
/// with the density of the air. Against 40 altitudes worked with full series (Moon 10, planets
/// 14, Sun and stars 16; tests/golden/almanac_altitudes.csv) parallax is within 0.02'.
SextantTerms correctSextant(const Place& place, Body body, Degrees observed, Limb limb,
                            const SextantAir& air, const std::optional<SightPlace>& taken);

/// The way back: the altitude above the sea horizon, index error taken off, at which a body
/// stands for an observer. What a sextant is preset to.
/// @param limb of the Sun and the Moon
/// @return nothing when it would lie more than 2 degrees below that horizon
std::optional<Degrees> sextantAltitude(const Place& place, Body body, Limb limb,
                                       const SextantAir& air, const Observer& observer);

} // namespace almanac
